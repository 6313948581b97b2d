// The application around every window: whatever a handler throws is reported, and a second start
// of the program calls the first forward instead of opening the same folder twice.

#include "ui/GuardedApplication.h"

#include "ProgramFixtures.h"
#include "core/FileCalls.h"
#include "core/ProgramError.h"
#include "ui/SingleCopy.h"

#include <QSysInfo>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <functional>
#include <new>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

namespace veyrant {

class GuardedApplicationTest : public QObject {
    Q_OBJECT

public:
    explicit GuardedApplicationTest(std::vector<int>& reported) : reported_(reported) {}

private slots:
    // Whatever a handler throws reaches the system error box with a number, never a silent exit.
    void AnyExceptionOfAHandlerIsReportedWithItsNumber() {
        const std::vector<std::pair<std::function<void()>, int>> cases = {
            {[] {
                 throw std::filesystem::filesystem_error(
                     "directory iterator", std::make_error_code(std::errc::permission_denied));
             },
             ErrorNumber::PermissionDenied},
            {[] { throw std::bad_alloc(); }, ErrorNumber::OutOfMemory},
            {[] { throw std::runtime_error("anything"); }, ErrorNumber::ProgramState},
            {[] { throw ProgramError(ErrorNumber::DiskFull); }, ErrorNumber::DiskFull},
        };
        for (const auto& [fail, number] : cases) {
            reported_.clear();
            QTimer::singleShot(0, fail);
            QCoreApplication::processEvents();
            QCOMPARE(reported_, std::vector<int>{number});
        }
    }

    // A lock whose copy is no longer running is taken over; at every file call of a save a second
    // start finds the folder held, and the first copy comes forward when asked.
    void ACrashedCopysLockIsTakenOverAndASecondStartCallsTheFirstForward() {
        WriteWindow write;
        std::ofstream(write.Temp / ".lock") << "2147483646\nveyrant-sagrel\n"
                                            << QSysInfo::machineHostName().toStdString() << "\n";
        SingleCopy first(write.Temp.Path());
        QVERIFY(first.First());
        int called = 0;
        first.OnCalled = [&] { ++called; };
        int steps = 0;
        int held = 0;
        SetFileFault([&](FileCall, const std::filesystem::path&) {
            ++steps;
            held += SingleCopy(write.Temp.Path()).First() ? 0 : 1;
            return 0;
        });
        QVERIFY(write.Buffers.WriteWorkBuffers({"\tA river.", "\r\n\r\n\t\x93Why?\x94", "", 1}));
        QVERIFY(write.Library.AddToLibrary("\tA river.", "\r\n\r\n\t\x93Why?\x94"));
        SetFileFault({});
        QVERIFY(steps > 0);
        QCOMPARE(held, steps);
        bool reached = false;
        std::thread second([&] { reached = SingleCopy(write.Temp.Path()).CallFirstForward(); });
        QTRY_COMPARE(called, 1);
        second.join();
        QVERIFY(reached);
    }

private:
    std::vector<int>& reported_;
};

} // namespace veyrant

int main(int argc, char** argv) {
    std::vector<int> reported;
    veyrant::GuardedApplication app(argc, argv, [&](int number) { reported.push_back(number); });
    veyrant::GuardedApplicationTest test(reported);
    return QTest::qExec(&test, argc, argv);
}

#include "GuardedApplicationTest.moc"

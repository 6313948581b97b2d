#include "ui/GuardedApplication.h"

#include "core/ProgramError.h"

#include <QEvent>
#include <QTest>
#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace veyrant {

namespace {

// A window object whose handler fails as the test says.
class FailingHandler : public QObject {
public:
    explicit FailingHandler(std::function<void()> fail) : fail_(std::move(fail)) {}
    bool event(QEvent*) override {
        fail_();
        return true;
    }

private:
    std::function<void()> fail_;
};

} // namespace

class GuardedApplicationTest : public QObject {
    Q_OBJECT

public:
    explicit GuardedApplicationTest(std::vector<int>& reported) : reported_(reported) {}

private slots:
    // Whatever a handler throws reaches the system error box with a number, never a silent exit.
    void AnyExceptionOfAHandlerIsReportedWithItsNumber() {
        struct Case {
            std::function<void()> Fail;
            int Number;
        };
        const std::vector<Case> cases = {
            {[] {
                 throw std::filesystem::filesystem_error(
                     "directory iterator", std::make_error_code(std::errc::permission_denied));
             },
             ErrorNumber::PermissionDenied},
            {[] { throw std::bad_alloc(); }, ErrorNumber::OutOfMemory},
            {[] { throw std::runtime_error("anything"); }, ErrorNumber::ProgramState},
            {[] { throw ProgramError(ErrorNumber::DiskFull); }, ErrorNumber::DiskFull},
        };
        for (const auto& c : cases) {
            reported_.clear();
            FailingHandler handler(c.Fail);
            QEvent event(QEvent::User);
            QCoreApplication::sendEvent(&handler, &event);
            QCOMPARE(reported_, std::vector<int>{c.Number});
        }
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

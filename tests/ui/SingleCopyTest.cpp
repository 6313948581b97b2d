#include "ui/SingleCopy.h"

#include "core/FileCalls.h"
#include "shell/AppFolder.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"
#include "storage/WorkBuffers.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <QSysInfo>
#include <QTest>
#include <fstream>
#include <thread>

namespace veyrant {

class SingleCopyTest : public QObject {
    Q_OBJECT

private slots:
    // At every file call of a save a second start finds the folder held, and the first copy
    // comes forward when asked.
    void ASecondStartDuringASaveCallsTheFirstForward() {
        testing::TempFolder temp;
        SingleCopy first(temp.Path());
        QVERIFY(first.First());
        int called = 0;
        first.OnCalled = [&] { ++called; };
        const AppFolder folder{temp.Path()};
        Settings settings;
        testing::FakeClock clock;
        testing::FakeWindowLayer windows;
        WorkBuffers buffers(folder, settings, clock, windows);
        DialogueLibrary library(folder, settings, clock, windows);
        int steps = 0;
        int held = 0;
        SetFileFault([&](FileCall, const std::filesystem::path&) {
            ++steps;
            held += SingleCopy(temp.Path()).First() ? 0 : 1;
            return 0;
        });
        QVERIFY(buffers.WriteWorkBuffers({"\tA river.", "\r\n\r\n\t\x93Why?\x94", "", 1}));
        QVERIFY(library.AddToLibrary("\tA river.", "\r\n\r\n\t\x93Why?\x94"));
        SetFileFault({});
        QVERIFY(steps > 0);
        qInfo() << "a second start at each of" << steps << "file calls of a save";
        QCOMPARE(held, steps);
        bool reached = false;
        std::thread second([&] { reached = SingleCopy(temp.Path()).CallFirstForward(); });
        QTRY_COMPARE(called, 1);
        second.join();
        QVERIFY(reached);
    }

    // A lock whose copy is no longer running is taken over.
    void ALockACrashedCopyLeftIsTakenOver() {
        testing::TempFolder temp;
        std::ofstream(temp / ".lock") << "2147483646\nveyrant-sagrel\n"
                                      << QSysInfo::machineHostName().toStdString() << "\n";
        QVERIFY(SingleCopy(temp.Path()).First());
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::SingleCopyTest)
#include "SingleCopyTest.moc"

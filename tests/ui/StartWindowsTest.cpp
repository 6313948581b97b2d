#include "shell/Application.h"
#include "shell/DisplayScale.h"
#include "shell/MirrorLayout.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "ui/BannerWindow.h"
#include "ui/MirrorWindow.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <cmath>

namespace veyrant {

class StartWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void BannerStandsAboveTheMiddle() {
        testing::FakeWindowLayer windows;
        windows.ScreenWidth = 1920 * 15;
        windows.ScreenHeight = 1080 * 15;
        BannerWindow banner(windows);
        QCOMPARE(banner.width(), 512);
        QCOMPARE(banner.height(), 302);
        QCOMPARE(banner.x(), (1920 - 512) / 2);
        QCOMPARE(banner.y(), static_cast<int>((1080 - 302) / 2.3));
        QVERIFY(banner.windowFlags().testFlag(Qt::FramelessWindowHint));
    }

    void WriteWindowGrowsWithTheDisplayOption() {
        for (const int option : {0, 1, 2, 3}) {
            testing::FakeWindowLayer windows;
            testing::FakeClock clock;
            Random random;
            Application app(AppFolder{"/nonexistent"}, "/nonexistent", clock, random, windows);
            SetDisplayScale(option, app.Scale);
            app.Fonts = {"Liberation Serif", "Liberation Serif Italic"};
            MirrorWindow mirror(app);
            const MirrorLayout design = MirrorDesign();
            const double factor = app.Scale.ScaleFactor;
            const auto pixels = [](double twips) {
                return static_cast<int>(std::lround(twips / 15));
            };
            QCOMPARE(mirror.width(), pixels((design.WindowWidth - 90) * factor));
            QCOMPARE(mirror.height(), pixels((design.WindowHeight - 405) * factor));
            const MirrorControls& c = mirror.Controls();
            QCOMPARE(c.txtResponse->y(), pixels(960 * factor));
            QCOMPARE(c.txtSaved->y(), pixels(2760 * factor));
            QCOMPARE(c.cmdNotate->text(), QStringLiteral("Comment"));
            QCOMPARE(c.cmdHelp->text(), QStringLiteral("Information"));
            QCOMPARE(c.cmdRetrieve->parentWidget(), c.Panel1);
            QCOMPARE(c.cmdClear->font().pointSizeF(), app.Scale.ButtonFontSize);
            QCOMPARE(c.txtSaved->font().pointSizeF(), app.Scale.TextSize[1]);
            QCOMPARE(c.txtSaved->font().bold(), option < 2);
            QCOMPARE(c.txtSaved->font().family(), QStringLiteral("Liberation Serif"));
        }
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::StartWindowsTest)
#include "StartWindowsTest.moc"

#include "support/FakeWindowLayer.h"
#include "ui/BannerWindow.h"

#include <QTest>

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
};

} // namespace veyrant

QTEST_MAIN(veyrant::StartWindowsTest)
#include "StartWindowsTest.moc"

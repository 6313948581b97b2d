// The Utilities window passes the user on to one other window, or shows the About box; the Display
// Size window stores the chosen scale. Every way out of either ends the program.

#include "app/Utility.h"

#include "shell/Resize.h"
#include "support/FakeWindowLayer.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant::testing {
namespace {

TEST(Utility, EachButtonHidesTheWindowAndLeadsOnOrEnds) {
    const std::pair<void (Utility::*)(), const char*> cases[] = {
        {&Utility::cmdOptions_Click, "show Options"},
        {&Utility::cmdResize_Click, "show Resize"},
        {&Utility::cmdExport_Click, "show Export"},
        {&Utility::cmdAbout_Click, nullptr},
        {&Utility::Form_Close, nullptr},
    };
    for (const auto& [press, shown] : cases) {
        SCOPED_TRACE(shown == nullptr ? "ends" : shown);
        FakeWindowLayer layer;
        int exits = 0;
        Utility window(layer, "5.0.27.1.3", "2027", [&] { ++exits; });
        (window.*press)();
        std::vector<std::string> events{"hide Utility"};
        if (shown != nullptr) {
            events.emplace_back(shown);
        }
        EXPECT_EQ(layer.WindowEvents, events);
        EXPECT_EQ(exits, shown == nullptr ? 1 : 0);
        if (press == &Utility::cmdAbout_Click) {
            ASSERT_EQ(layer.Boxes.size(), 1u);
            EXPECT_EQ(layer.Boxes[0].Icon, MessageIcon::Information);
            EXPECT_EQ(
                layer.Boxes[0].Text,
                "Veyrant Sagrel 5 for Linux\r\nVeyrant Ardelune\r\nVersion "
                "5.0.27.1.3\r\n\r\nA Program for Psychological Self-Reflection\r\n\r\nPowered "
                "by the Veyrant Technology Dovrin\r\n A 'Ambrel' Application\r\n\r\nFor "
                "Linux Desktops on X11 and Wayland\r\n\r\n\xA9 2027 Veyrant "
                "Technology\r\nveyrant-sagrel.org");
        } else {
            EXPECT_TRUE(layer.Boxes.empty());
        }
    }
    FakeWindowLayer layer;
    EXPECT_EQ(Utility(layer, "5.0.27.1.3", "2027", [] {}).Dump(),
              "title \"Veyrant Sagrel Utilities\"\ncmdOptions \"Library Options Window\"\n"
              "cmdResize \"Display Size Window\"\ncmdExport \"Export Library\"\n"
              "cmdAbout \"About Veyrant Sagrel\"\n");
}

// A click stores the scale and the marks at once; Cancel puts both back.
TEST(Resize, TheChosenScaleIsStoredAtOnceAndCancelPutsItBack) {
    FakeWindowLayer layer;
    Settings settings;
    settings.DisplayOption = 2;
    Preferences preferences;
    int exits = 0;
    Resize window(settings, preferences, layer, [&] { ++exits; });
    window.Form_Load();
    window.Option_Click(0);
    window.chkSpelling_Click(false);
    EXPECT_EQ(settings.DisplayOption, 0);
    EXPECT_FALSE(preferences.SpellingMarks);
    EXPECT_EQ(window.Dump(), "title \"Display Size\"\n"
                             "Option4 (x) \"90% for 12\" display, 640x480 (not recomnd)\"\n"
                             "Option1 ( ) \"100% for 15\" display, 800x600 resolution\"\n"
                             "Option2 ( ) \"120% for 17\" display, 1280x960 resolution\"\n"
                             "Option3 ( ) \"145% for 19\" display, 1600x1200 resolution\"\n"
                             "chkSpelling [ ] \"Mark misspelt words while typing\"\n");
    window.cmdCancel_Click();
    EXPECT_EQ(settings.DisplayOption, 2);
    EXPECT_TRUE(preferences.SpellingMarks);
    EXPECT_NE(window.Dump().find("Option2 (x)"), std::string::npos) << window.Dump();
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(layer.WindowEvents.back(), "hide Resize");
}

} // namespace
} // namespace veyrant::testing

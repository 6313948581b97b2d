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

TEST(Utility, EachButtonHidesTheWindowAndLeadsOn) {
    struct Case {
        const char* Name;
        void (Utility::*Press)();
        std::vector<std::string> Events;
        bool AboutShown;
        bool Exited;
    };
    const Case cases[] = {
        {"Library Options",
         &Utility::cmdOptions_Click,
         {"hide Utility", "show Options"},
         false,
         false},
        {"Display Size", &Utility::cmdResize_Click, {"hide Utility", "show Resize"}, false, false},
        {"Export Library",
         &Utility::cmdExport_Click,
         {"hide Utility", "show Export"},
         false,
         false},
        {"About", &Utility::cmdAbout_Click, {"hide Utility"}, true, true},
        {"closing", &Utility::Form_Close, {"hide Utility"}, false, true},
    };
    for (const Case& c : cases) {
        FakeWindowLayer layer;
        layer.ShowWindow(WindowId::Utility);
        layer.WindowEvents.clear();
        int exits = 0;
        Utility window(layer, "4.1.26.11.22", "2026", [&] { ++exits; });

        (window.*c.Press)();

        EXPECT_EQ(layer.WindowEvents, c.Events) << c.Name;
        EXPECT_FALSE(layer.IsWindowVisible(WindowId::Utility)) << c.Name;
        EXPECT_EQ(exits, c.Exited ? 1 : 0) << c.Name;
        ASSERT_EQ(layer.Boxes.size(), c.AboutShown ? 1u : 0u) << c.Name;
        if (c.AboutShown) {
            EXPECT_EQ(layer.Boxes[0].Title, "About the Veyrant Sagrel Program");
            EXPECT_EQ(layer.Boxes[0].Text, AboutText("4.1.26.11.22", "2026"));
            EXPECT_EQ(layer.Boxes[0].Icon, MessageIcon::Information);
        }
    }
}

TEST(Utility, CaptionsAndTheProgramNumberInTheAboutText) {
    FakeWindowLayer layer;
    const Utility window(layer, "5.0.27.1.3", "2027", [] {});
    EXPECT_EQ(window.Dump(), "title \"Veyrant Sagrel Utilities\"\n"
                             "cmdOptions \"Library Options Window\"\n"
                             "cmdResize \"Display Size Window\"\n"
                             "cmdExport \"Export Library\"\n"
                             "cmdAbout \"About Veyrant Sagrel\"\n");
    EXPECT_EQ(AboutText("5.0.27.1.3", "2027"),
              "Veyrant Sagrel 5 for Linux\r\nVeyrant Ardelune\r\nVersion 5.0.27.1.3\r\n\r\nA "
              "Program for Psychological Self-Reflection\r\n\r\nPowered by the Veyrant "
              "Technology Dovrin\r\n A 'Ambrel' Application\r\n\r\nFor Linux Desktops on X11 "
              "and Wayland\r\n\r\n\xA9 2027 Veyrant Technology\r\nveyrant-sagrel.org");
}

TEST(Resize, TheChosenScaleIsStoredAtOnceAndCancelPutsItBack) {
    struct Case {
        const char* Name;
        std::int16_t Stored;
        int Clicked;
        bool SpellingOff;
        bool Cancel;
        std::int16_t Kept;
        bool SpellingKept;
    };
    const Case cases[] = {
        {"OK keeps a larger scale", 1, 3, false, false, 3, true},
        {"OK keeps the smallest scale and no spelling marks", 2, 0, true, false, 0, false},
        {"Cancel puts back the stored scale and the marks", 1, 2, true, true, 1, true},
        {"Cancel without a click", 3, -1, false, true, 3, true},
    };
    for (const Case& c : cases) {
        FakeWindowLayer layer;
        Settings settings;
        settings.DisplayOption = c.Stored;
        Preferences preferences;
        int exits = 0;
        Resize window(settings, preferences, layer, [&] { ++exits; });
        window.Form_Load();
        if (c.Clicked >= 0) {
            window.Option_Click(c.Clicked);
            EXPECT_EQ(settings.DisplayOption, c.Clicked) << c.Name;
            EXPECT_EQ(exits, 0) << c.Name;
        }
        if (c.SpellingOff) {
            window.chkSpelling_Click(false);
            EXPECT_FALSE(preferences.SpellingMarks) << c.Name;
        }

        c.Cancel ? window.cmdCancel_Click() : window.cmdOK_Click();

        EXPECT_EQ(settings.DisplayOption, c.Kept) << c.Name;
        EXPECT_EQ(preferences.SpellingMarks, c.SpellingKept) << c.Name;
        EXPECT_EQ(exits, 1) << c.Name;
        EXPECT_EQ(layer.WindowEvents.back(), "hide Resize") << c.Name;
    }
}

TEST(Resize, OpensWithTheStoredScaleTicked) {
    FakeWindowLayer layer;
    Settings settings;
    settings.DisplayOption = 2;
    Preferences preferences;
    Resize window(settings, preferences, layer, [] {});
    window.Form_Load();
    EXPECT_EQ(window.Dump(), "title \"Display Size\"\n"
                             "Option4 ( ) \"90% for 12\" display, 640x480 (not recomnd)\"\n"
                             "Option1 ( ) \"100% for 15\" display, 800x600 resolution\"\n"
                             "Option2 (x) \"120% for 17\" display, 1280x960 resolution\"\n"
                             "Option3 ( ) \"145% for 19\" display, 1600x1200 resolution\"\n"
                             "chkSpelling [x] \"Mark misspelt words while typing\"\n");
    window.Option_Click(0);
    EXPECT_EQ(window.Dump().substr(21, 12), "Option4 (x) ");
}

} // namespace
} // namespace veyrant::testing

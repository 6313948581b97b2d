#include "shell/DisplayScale.h"

#include "app/AppFixture.h"
#include "app/FontCheck.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(DisplayScale, AnOptionWithNoRowLeavesTheFactorAtZero) {
    for (const int option : {7, -1, 4}) {
        DisplayScale scale;
        SetDisplayScale(option, scale);
        EXPECT_EQ(scale.ScaleFactor, 0) << option;
        EXPECT_EQ(scale.ButtonFontSize, 0) << option;
    }
}

// Installed faces pass without a word; each face that cannot be selected is named and the
// program ends.
TEST(FontCheck, EachFaceThatCannotBeSelectedIsNamedAndTheProgramEnds) {
    AppFixture installed;
    installed.PutExeFile("Qdrfonts.ini", "Liberation Serif\r\nLiberation Serif Italic\r\n");
    EXPECT_TRUE(CheckFonts(installed.App));
    EXPECT_TRUE(installed.Windows.Boxes.empty());
    EXPECT_FALSE(installed.Windows.Ended);
    const std::string romanSlot = "Error 380 accessing your font named {Garamond} associated "
                                  "with the file <times.ttf> usually named {Times New "
                                  "Roman}.\r\n\r\n";
    const std::string italicSlot = "Error 380 accessing your font named {Garamond Italic} "
                                   "associated with the file <timesi.ttf> usually named {Times "
                                   "New Roman Italic}.\r\n\r\n";
    struct Case {
        const char* Missing;
        std::string Slots;
    };
    const Case cases[] = {
        {"Garamond", romanSlot + italicSlot},
        {"Garamond/italic", italicSlot},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        fixture.PutExeFile("Qdrfonts.ini", "Garamond\r\nGaramond Italic\r\n");
        fixture.Windows.MissingFaces.insert(c.Missing);
        EXPECT_FALSE(CheckFonts(fixture.App));
        EXPECT_TRUE(fixture.Windows.Ended);
        const auto& boxes = fixture.Windows.Boxes;
        ASSERT_FALSE(boxes.empty());
        const MessageBoxRequest& last = boxes.back();
        EXPECT_EQ(last.Title, "Fonts Not Functioning");
        EXPECT_EQ(last.Icon, MessageIcon::Stop);
        EXPECT_EQ(last.Text, "The Veyrant Sagrel font system is not functioning, probably "
                             "because one or more fonts have been changed since "
                             "installation.\r\n\r\nThese required font(s) cannot be "
                             "accessed:\r\n\r\n" +
                                 c.Slots +
                                 " Details on how to resolve font problems are given in the "
                                 "Information Library.");
        // One stop box per failed step before the summary.
        EXPECT_EQ(boxes.size(), c.Slots == italicSlot ? 2u : 3u);
        EXPECT_EQ(boxes.front().Icon, MessageIcon::Stop);
    }
}

} // namespace
} // namespace veyrant::testing

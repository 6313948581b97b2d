#include "ReaderFixture.h"
#include "core/KeyCodes.h"

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

// The list runs latest first; a damaged inspiration lists as a format error; Latest opens the
// newest Dialogue with its age, and stepping goes on to the earlier one.
TEST_F(ReaderFixture, ListsLatestFirstAndStepsIntoDialogues) {
    SaveDialogue({2026, 11, 12, 9, 5, 0}, "no tab here");
    SaveDialogue({2026, 11, 20, 15, 30, 0}, "\tA calm lake.");
    Open(1);
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- 2/30 Saved/Max -- Latest, Nov 20 -- Earliest, "
                       "Nov 12 -- 10/21 Days Old/Max");
    EXPECT_EQ(
        Read().Controls().List.Rows,
        (std::vector<std::string>{"26-11-20 -- A calm lake.", "26-11-12 -- < format error >"}));
    EXPECT_EQ(Lines({RC::cmdNext, RC::cmdSearch}), "\"Latest\" | \"Search\"");
    Read().Click(RC::cmdNext);
    EXPECT_EQ(Title(),
              "Veyrant Dialogue -- 2/2 -- Friday, 3:30 pm, November 20, 2026 -- 2/21 Days Old/Max");
    EXPECT_EQ(Read().Controls()[RC::txtSpin].Text,
              "Friday, 3:30 pm, November 20, 2026\r\n\r\nInspiration\r\n\r\n\tA calm "
              "lake.\r\n\r\nDialogue\r\n\r\n\t\x93Hello.\x94\r\n\tA reply.");
    EXPECT_EQ(Lines({RC::cmdNext, RC::cmdPrior}), "\"Earlier >>\" | \"<< Later\" disabled");
    EXPECT_EQ(App.ReaderSettings.MarkRows[LibraryId::Dialogue], 0);
    Key(KeyCode::PageDown);
    EXPECT_EQ(
        Title(),
        "Veyrant Dialogue -- 1/2 -- Thursday, 9:05 am, November 12, 2026 -- 10/21 Days Old/Max");
    EXPECT_EQ(Line(RC::cmdNext), "\"Earlier >>\" disabled");
    Key(KeyCode::Escape);
    EXPECT_EQ(Line(RC::cmdNext), "\"Latest\"");
    EXPECT_EQ(App.ReaderSettings.MarkRows[LibraryId::Dialogue], -1);
}

// Rows too wide for the list are cut and marked; those that fit stand whole.
TEST_F(ReaderFixture, LongInspirationsAreCutToTheListWidth) {
    SaveDialogue({2026, 11, 20, 15, 30, 0}, "\t" + std::string(200, 'w'));
    Open(1);
    const std::string row = Read().Controls().List.Rows.at(0);
    ASSERT_GT(row.size(), 3u);
    EXPECT_EQ(row.substr(row.size() - 3), "...");
    EXPECT_EQ(row.rfind("26-11-20 -- www", 0), 0u);
    const int listWidth = Read().Controls()[RC::List1].Width;
    EXPECT_LE(Windows.TextWidthTwips("", 12, true, false, "<" + row), listWidth);
    EXPECT_GT(Windows.TextWidthTwips("", 12, true, false, "<" + row + "ww"), listWidth);
}

// A file in the Library whose name holds no date the program can read opens as a damaged
// Dialogue: the box says so and the Reader goes on.
TEST_F(ReaderFixture, ANameWithNoDateOpensAsADamagedDialogue) {
    for (const auto& folder : {Folder.Isp(), Folder.Dlg()}) {
        std::filesystem::create_directories(folder);
        WriteWholeFile(folder / "99999999.999", "\tA name out of any calendar.");
    }
    Open(1);
    ASSERT_EQ(Read().Controls().List.Rows.size(), 1u);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    Read().Click(RC::cmdNext);
    // The scan has named the file already; the opening says it cannot be retrieved.
    EXPECT_EQ(BoxTitles(),
              (std::vector<std::string>{"Error 13 Dialogue Library File Names",
                                        "Dialogue Library Corrupted -- Cannot Retrieve"}));
    EXPECT_EQ(Line(RC::cmdDelete), "\"Delete\"");
}

} // namespace
} // namespace veyrant::testing

#include "ReaderFixture.h"
#include "core/DateFormat.h"
#include "engine/EngineFiles.h"
#include "printing/ExportText.h"
#include "support/FileFaults.h"

#include <algorithm>
#include <functional>
#include <sstream>

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

// The fixture's members are open to the cases' steps, which are plain functions.
class ReaderActions : public ReaderFixture {
public:
    using ReaderFixture::App;
    using ReaderFixture::Folder;
    using ReaderFixture::Line;
    using ReaderFixture::Open;
    using ReaderFixture::Read;
    using ReaderFixture::SaveDialogue;
    using ReaderFixture::Title;
    using ReaderFixture::Windows;

    std::string ReadIni() { return ReadWholeFile(Folder.Exe() / "Read.ini"); }
    void Click(RC control) { Read().Click(control); }
    // The pointer comes onto the button, which starts its hover help, and clicks it.
    void MarkExit() {
        Read().MouseMove(RC::cmdExitM);
        Click(RC::cmdExitM);
    }
    // Opens the library's Index-2 and selects a row, as a user clicking 'Index 1' then a row.
    void OpenRow(int library, int row) {
        Open(library);
        Click(RC::cmdSelect);
        Read().ListRowClicked(row);
    }
    // Opens a Section from the Index-1 list.
    void OpenSection(int library, int section) {
        Open(library);
        Read().ListRowClicked(section);
    }
    void SaveDialogues(int count) {
        for (int day = count; day >= 1; --day) {
            SaveDialogue(DateTime{2026, 11, 22 - day, 9, 30, 0},
                         "\r\n\tInspiration of day " + std::to_string(22 - day) + ".");
        }
    }
    // The Library's files, both folders, by name.
    std::vector<std::string> Files() {
        std::vector<std::string> names;
        for (const auto& folder : {Folder.Isp(), Folder.Dlg()}) {
            for (const auto& entry : std::filesystem::directory_iterator(folder)) {
                names.push_back(folder.filename().string() + "/" +
                                entry.path().filename().string());
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

// A program of its own for each case of a table.
struct Session : ReaderActions {
    void TestBody() override {}
};

// Runs a user's steps, one word each: "expand" saves the Knowledge Library's expanded mode, "K/R"
// opens library K's Index-2 at row R, "K:R" opens library K and clicks row R of its list, "mark" is
// Mark Exit, "close" a normal close, "help" the Write window's Help, "3days" saves three Dialogues.
void Steps(ReaderActions& t, const std::string& steps) {
    std::istringstream words(steps);
    for (std::string word; words >> word;) {
        if (word == "expand") {
            t.App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
        } else if (word == "mark") {
            t.MarkExit();
        } else if (word == "close") {
            t.App.Links.CloseLibrary();
        } else if (word == "help") {
            t.App.Write->MouseDown(MirrorControl::cmdHelp, MouseButton::Left);
            t.App.Write->Click(MirrorControl::cmdHelp);
        } else if (word == "3days") {
            t.SaveDialogues(3);
        } else if (word[1] == '/') {
            t.OpenRow(word[0] - '0', std::stoi(word.substr(2)));
        } else {
            t.Open(word[0] - '0');
            t.Read().ListRowClicked(std::stoi(word.substr(2)));
        }
    }
}

// Mark Exit keeps the place of each library in Read.ini and closes the Reader; the next opening
// of that library shows the marked row in Index-2 in the library's saved mode. A normal close
// forgets the place, and a mark of a library not opened stays.
TEST_F(ReaderActions, MarkExitReopensAtTheMark) {
    const struct {
        const char* Visit;
        int ReadIniLine; // the line of Read.ini holding the mark, -1: none
        const char* Mark;
        const char* Reopen;
        std::string Title;
        std::string List;
        std::string Spin;
        std::string Next;
    } cases[] = {
        // The Knowledge Library expanded: its Topic fills the window.
        {"expand 3/1 mark", 2, " 1  1 ", "3", "Veyrant Knowledge Library -- 2/4/7 -- A", "(hidden)",
         "high \"A |  | \\tText of row 1. | \" back=ReadingText", "\"Next >>\""},
        {"3/3 mark", 2, " 1  3 ", "3", "Veyrant Knowledge Library -- 4/4/7 -- B",
         "7 rows, selected 3, top 0, split back=IndexText",
         "low \"B |  | \\tText of row 3. | \" back=ReadingText", "\"Next >>\""},
        {"3/3 close", -1, "", "3", "Veyrant Knowledge Library",
         "3 rows, selected -1, top 0, split back=ListInUse",
         "low \"Knowledge Library | \\tThis Library includes the first level of\" back=IndexText",
         "\"First\""},
        {"3/3 mark 2:1 close", 2, " 1  3 ", "3", "Veyrant Knowledge Library -- 4/4/7 -- B",
         "7 rows, selected 3, top 0, split back=IndexText",
         "low \"B |  | \\tText of row 3. | \" back=ReadingText", "\"Next >>\""},
        // The Information row shown earlier in the run is no mark.
        {"2/1 close 3/3 mark", 2, " 1  3 ", "2", "Veyrant Information Library",
         "6 rows, selected -1, top 0, split back=ListInUse",
         "low \"Information Library | \\tSections are listed in the main (colla\" back=IndexText",
         "\"First\""},
        {"4/2 mark", 3, " 1  2 ", "help", "Veyrant Advanced Knowledge Library -- 3/3/3 -- Y",
         "3 rows, selected 2, top 0, split back=IndexText",
         "low \"Y |  | \\tText of row 2. | \" back=ReadingText", "\"Next >>\" disabled"},
        {"3days 1:1 mark", 1, " 1  1 ", "1",
         "Veyrant Dialogue -- 2/3 -- Friday, 9:30 am, November 20, 2026 -- 2/21 Days Old/Max",
         "3 rows, selected 1, top 0, split back=IndexText",
         "low \"Friday, 9:30 am, November 20, 2026 |  | Inspiration |  |  | \\tInsp\" "
         "back=ReadingText",
         "\"Earlier >>\""},
        // The marked Dialogue and the one after it are gone (below): the list opens with nothing
        // selected rather than show a Dialogue that was never marked.
        {"3days 1:2 mark", 1, " 1  2 ", "1",
         "Veyrant Dialogue Library -- 1/30 Saved/Max -- Nov 21 -- 1/21 Days Old/Max",
         "1 rows, selected -1, top 0, split back=ListInUse",
         "low \"Dialogue Library | \\tDialogues are listed latest-to-earliest, \" "
         "back=IndexText",
         "\"Latest\""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Visit);
        Session t;
        // Read.ini as an earlier visit to the Reader left it.
        const std::string unmarked = " 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n";
        WriteWholeFile(t.Folder.Exe() / "Read.ini", unmarked);
        Steps(t, c.Visit);
        EXPECT_EQ(t.App.Reading.ReaderOpen, ReaderOpenState::Closed);
        EXPECT_FALSE(t.Windows.IsWindowVisible(WindowId::Read));
        // No hover help outlives the window, to blank the instruction of the next opening.
        EXPECT_EQ(t.Windows.Timers.count(TimerId::ReadHover), 0u);
        std::string marked = unmarked;
        if (c.ReadIniLine >= 0) {
            marked.replace(static_cast<std::size_t>(c.ReadIniLine) * 8, 6, c.Mark);
        }
        EXPECT_EQ(t.ReadIni(), marked);
        if (std::string(c.Visit) == "3days 1:2 mark") {
            for (const auto& name : {"76111909.300", "76112009.300"}) {
                std::filesystem::remove(t.Folder.Isp() / name);
                std::filesystem::remove(t.Folder.Dlg() / name);
            }
        }
        std::string reopen = c.Reopen;
        reopen == "help" ? Steps(t, reopen) : t.Open(reopen[0] - '0');
        EXPECT_EQ(t.Title(), c.Title);
        EXPECT_EQ(t.Line(RC::List1), c.List);
        EXPECT_EQ(t.Line(RC::txtSpin), c.Spin);
        EXPECT_EQ(t.Line(RC::cmdNext), c.Next);
        // A mark serves once. Read.ini's lines are Information, Dialogue, Knowledge, Advanced;
        // Help here reopens the marked Advanced Knowledge Library.
        t.App.Links.CloseLibrary();
        const auto line = std::string("2134").find(reopen == "help" ? '4' : reopen[0]);
        EXPECT_EQ(t.ReadIni().substr(line * 8, 3), " 0 ");
    }
}

// Merge shows every Topic of the open Section as one essay, expanded, from the first Topic's
// title to the row before the next Section or the library's last row.
TEST_F(ReaderActions, MergeShowsTheSectionsTopicsExpanded) {
    const struct {
        int Library;
        int Section;
        std::string Title;
        std::string Starts;
        std::string Ends;
    } cases[] = {
        {3, 0, "Veyrant Knowledge Library -- Merged Essay -- < First >",
         "A\r\n\r\n\tText of row 1.\r\n\r\nA1\r\n\r\n\tText of row 2.\r\n\r\n",
         "\r\nB\r\n\r\n\tText of row 3.\r\n\r\n"},
        {4, 0, "Veyrant Advanced Knowledge Library -- Merged Essay -- < Adv One >",
         "X\r\n\r\n\tText of row 1.\r\n\r\n", "\r\nY\r\n\r\n\tText of row 2.\r\n\r\n"},
        {2, 5, "Veyrant Information Library -- Merged Section -- < About the Veyrant Sagrel >",
         "The Name and Its Background\r\n\r\n\tText of row 167.\r\n\r\n",
         "\r\nTrademarks\r\n\r\n\tText of row 184.\r\n\r\n"},
    };
    for (const auto& c : cases) {
        Session t;
        t.OpenSection(c.Library, c.Section);
        ASSERT_EQ(t.Line(RC::cmdPrint), "\"Merge\"");
        t.Click(RC::cmdPrint);
        EXPECT_EQ(t.Title(), c.Title);
        const std::string& text = t.Read().Controls()[RC::txtSpin].Text;
        EXPECT_TRUE(text.starts_with(c.Starts)) << text;
        EXPECT_TRUE(text.ends_with(c.Ends)) << text;
        EXPECT_EQ(t.Line(RC::txtSpin).substr(0, 5), "high ") << c.Title;
        EXPECT_EQ(t.Line(RC::List1), "(hidden)") << c.Title;
        EXPECT_EQ(t.Line(RC::cmdPrint), "\"Merge\" disabled") << c.Title;
        EXPECT_EQ(t.Line(RC::cmdExitM), "\"Mark Exit\"") << c.Title;
        EXPECT_EQ(t.Line(RC::cmdSelect), "\"< Index >\"") << c.Title;
        EXPECT_EQ(t.Line(RC::txtNote), "\"Click 'Window' or the text to split the window and "
                                       "show the index. Click 'Index' to clear the window and "
                                       "reset the list.\"")
            << c.Title;
        EXPECT_EQ(t.App.UserSettings.WindowMode[static_cast<LibraryId>(c.Library)], 0);
        EXPECT_TRUE(t.Windows.Boxes.empty()) << c.Title;
        EXPECT_FALSE(t.Windows.Busy) << c.Title;
        EXPECT_GE(t.Windows.Yields, 2) << c.Title;
    }
}

// The merged view is expanded without the saved mode saying so: Window splits it, whatever the
// mode held, and the split is what is saved.
TEST_F(ReaderActions, WindowAfterMergeSplits) {
    for (const std::int16_t mode : {0, 1}) {
        Session t;
        t.App.UserSettings.WindowMode[LibraryId::Knowledge] = mode;
        t.OpenSection(3, 0);
        t.Click(RC::cmdPrint);
        t.Click(RC::cmdWindow);
        EXPECT_EQ(t.Line(RC::List1), "7 rows, selected 0, top 0, split back=IndexText") << mode;
        EXPECT_EQ(t.Line(RC::txtSpin).substr(0, 8), "low \"A |") << mode;
        EXPECT_EQ(t.App.UserSettings.WindowMode[LibraryId::Knowledge], 0) << mode;
    }
}

// With the real libraries every Section merges but "< The Ambrel >", which is refused with the
// Section left on view.
TEST_F(ReaderActions, OnlyTheAmbrelIsTooLongToMerge) {
    LoadLibraries(App.Libraries);
    for (auto* library :
         {&App.Libraries[LibraryId::Information], &App.Libraries[LibraryId::Knowledge],
          &App.Libraries[LibraryId::Advanced]}) {
        BuildLibraryIndex(*library);
    }
    const FixedLibrary* libraries[] = {&App.Libraries[LibraryId::Information],
                                       &App.Libraries[LibraryId::Knowledge],
                                       &App.Libraries[LibraryId::Advanced]};
    int refused = 0;
    for (int library = 2; library <= 4; ++library) {
        const FixedLibrary& content = *libraries[library - 2];
        for (int section = 0; section <= content.LastSection; ++section) {
            Windows.Boxes.clear();
            OpenSection(library, section);
            const std::string sectionText = Read().Controls()[RC::txtSpin].Text;
            const std::string sectionTitle = Title();
            Click(RC::cmdPrint);
            const std::string& title = content.SectionTitle[static_cast<std::size_t>(section)];
            if (title != "< The Ambrel >") {
                EXPECT_TRUE(Windows.Boxes.empty()) << title;
                EXPECT_EQ(Line(RC::txtSpin).substr(0, 5), "high ") << title;
            } else {
                ++refused;
                ASSERT_EQ(Windows.Boxes.size(), 1u);
                EXPECT_EQ(Windows.Boxes[0].Title, "Cannot Merge");
                EXPECT_EQ(Windows.Boxes[0].Text, "This Essay is too long to be merged.");
                EXPECT_EQ(Read().Controls()[RC::txtSpin].Text, sectionText);
                EXPECT_EQ(Title(), sectionTitle);
                EXPECT_EQ(Line(RC::txtSpin).substr(0, 4), "low ");
                EXPECT_EQ(Line(RC::cmdPrint), "\"Merge\" disabled");
            }
            App.Links.CloseLibrary();
        }
    }
    EXPECT_EQ(refused, 1);
}

// A Section small enough by the merge limit whose essay still overflows the text box is refused
// the same way, and the Section's text comes back.
TEST_F(ReaderActions, AnEssayTheTextBoxCannotHoldIsRefused) {
    FixedLibrary many;
    many.Titles.assign(10001, "\tA");
    many.Titles[0] = "< Many >";
    many.Texts.assign(10001, "");
    many.LastRow = 10000;
    many.RecordWidth = 10;
    BuildLibraryIndex(many);
    App.Libraries[LibraryId::Advanced] = many;
    OpenSection(4, 0);
    const std::string sectionText = Read().Controls()[RC::txtSpin].Text;
    Click(RC::cmdPrint);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Title, "Cannot Merge");
    EXPECT_EQ(Read().Controls()[RC::txtSpin].Text, sectionText);
    EXPECT_FALSE(Windows.Busy);
}

// Print and File hand the open Dialogue on, with its own date; a failed print says so.
TEST_F(ReaderActions, PrintAndFileHandTheDialogueOn) {
    const DateTime saved{2026, 11, 20, 9, 30, 0};
    const std::string body = "\t\x93Hello.\x94\r\n\tA reply.";
    const struct {
        PrintOutcome Answer;
        std::vector<std::string> Boxes;
    } cases[] = {
        {PrintOutcome::Printed, {}},
        {PrintOutcome::Cancelled, {}},
        {PrintOutcome::Failed, {"Print Error"}},
    };
    for (const auto& c : cases) {
        Session t;
        t.SaveDialogue(saved, "\r\n\tMy inspiration.");
        t.Open(1);
        t.Click(RC::cmdNext);
        t.Windows.PrintAnswer = c.Answer;
        t.Click(RC::cmdPrint);
        ASSERT_EQ(t.Windows.Printed.size(), 1u);
        const PrintRequest& printed = t.Windows.Printed[0];
        EXPECT_EQ(printed.Inspiration, "\r\n\tMy inspiration.");
        EXPECT_EQ(printed.Dialogue, body);
        EXPECT_EQ(printed.Title, "Veyrant Dialogue");
        EXPECT_EQ(FormatDate(printed.ShownDate, "yyyy-mm-dd hh:nn"), "2026-11-20 09:30");
        EXPECT_TRUE(t.Windows.BusyWhilePrinting);
        EXPECT_FALSE(t.Windows.Busy);
        EXPECT_EQ(t.Line(RC::cmdPrint), "\"Print\"");
        std::vector<std::string> titles;
        for (const auto& box : t.Windows.Boxes) {
            titles.push_back(box.Title);
        }
        EXPECT_EQ(titles, c.Boxes);

        t.Click(RC::cmdFile);
        ASSERT_EQ(t.Windows.EditorTexts.size(), 1u);
        EXPECT_EQ(t.Windows.EditorTexts[0].Text,
                  ExportText(saved, "Inspiration\r\n\r\n\r\n\tMy inspiration.\r\n\r\nDialogue\r\n"
                                    "\r\n" +
                                        body));
        EXPECT_EQ(t.Windows.EditorTexts[0].ProposedFileName, ExportFileName(saved));
    }
}

// Delete asks first; Yes takes the pair off the disk, lists the Library anew and brings the
// Write window's Library status up to date.
TEST_F(ReaderActions, DeleteTakesTheDialogueOutOfTheLibrary) {
    InstallEngineFiles(App.Folder);
    App.Engine.LoadSystem(App.Folder);
    App.Engine.SeedSeries();
    SaveDialogue(DateTime{2026, 11, 20, 9, 30, 0}, "\r\n\tOnly one.");
    App.Library.ScanLibrary();
    App.Write->StartWindow();
    const auto status = [&] { return App.Write->Controls()[MirrorControl::txtSaved].Text; };
    ASSERT_NE(status().find("You have 1 Dialogue saved in the Library."), std::string::npos);
    Open(1);
    Click(RC::cmdNext);
    const std::string shown = Title();

    for (const auto answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
        Windows.Answers = {answer};
        Click(RC::cmdDelete);
        EXPECT_EQ(Title(), shown);
        EXPECT_EQ(Files().size(), 2u);
    }
    Windows.Answers = {MessageAnswer::Yes};
    Click(RC::cmdDelete);
    ASSERT_EQ(Windows.Boxes.size(), 3u);
    EXPECT_EQ(Windows.Boxes[2].Title, "Delete Dialogue");
    EXPECT_EQ(Windows.Boxes[2].Text, "Are you certain you want to delete this Dialogue?");
    EXPECT_EQ(Windows.Boxes[2].Icon, MessageIcon::Stop);
    EXPECT_EQ(Windows.Boxes[2].Buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(Windows.Boxes[2].DefaultButton, 2);
    EXPECT_TRUE(Files().empty());
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- No Dialogues Saved");
    EXPECT_EQ(Line(RC::List1), "0 rows, selected -1, top 0, split back=ListEmpty");
    EXPECT_EQ(Line(RC::cmdNext), "\"Latest\" disabled");
    EXPECT_EQ(Line(RC::cmdDelete), "\"Delete\" disabled");
    EXPECT_NE(status().find("There are currently no Dialogues saved in the Library."),
              std::string::npos);
}

// A delete the disk refuses shows the program's box with the error's number, and both files of
// the pair stay with the Dialogue on view.
TEST_F(ReaderActions, AFailedDeleteKeepsThePair) {
    SaveDialogues(2);
    Open(1);
    Click(RC::cmdNext);
    const std::string shown = Title();
    const auto before = Files();
    Windows.Answers = {MessageAnswer::Yes};
    {
        FileFaults faults;
        faults.FailEvery(FileCall::Rename, EROFS);
        Click(RC::cmdDelete);
    }
    // The trash cannot take the pair either, and the user's Yes to deleting it for good meets
    // the same refusal.
    ASSERT_EQ(Windows.Boxes.size(), 3u);
    EXPECT_EQ(Windows.Boxes[1].Title, "Error 70 Moving to the Trash");
    EXPECT_EQ(Windows.Boxes[2].Title, "Dialogue Library Corrupted");
    EXPECT_EQ(Windows.Boxes[2].Text,
              "Error 70 attempting to delete the file from the Dialogue Library. Because the "
              "Library has become corrupted, it is necessary for you to repair it. Open the "
              "Information Library and review the Topic, 'Repairing the Dialogue Library'.");
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(Title(), shown);

    // With its dialogue file gone the pair is half deleted: the list no longer offers it.
    std::filesystem::remove(Folder.Dlg() / "76112109.300");
    Windows.Answers = {MessageAnswer::Yes};
    Click(RC::cmdDelete);
    EXPECT_EQ(Windows.Boxes.back().Title, "Dialogue Library Corrupted");
    EXPECT_EQ(Line(RC::List1), "1 rows, selected -1, top 0, split back=ListInUse");
}

} // namespace
} // namespace veyrant::testing

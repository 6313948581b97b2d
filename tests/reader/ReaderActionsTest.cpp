#include "ReaderFixture.h"
#include "core/KeyCodes.h"
#include "engine/EngineFiles.h"
#include "printing/ExportText.h"
#include "support/FileFaults.h"

#include <set>
#include <sstream>

namespace veyrant::testing {
namespace {

using MC = MirrorControl;

// The Library's files, both folders.
std::set<std::filesystem::directory_entry> Files(const AppFolder& folder) {
    std::set<std::filesystem::directory_entry> files;
    for (const auto& place : {folder.Isp(), folder.Dlg()}) {
        files.insert(std::filesystem::directory_iterator(place), {});
    }
    return files;
}

// Runs a user's steps, one word each: "expand" saves the Knowledge Library's expanded mode, "K/R"
// opens library K's Index-2 at row R, "K:R" opens library K and clicks row R of its list, "mark" is
// Mark Exit, "close" a normal close, "help" the Write window's Help, "3days" saves three Dialogues.
void Steps(ReaderFixture& t, const std::string& steps) {
    std::istringstream words(steps);
    for (std::string word; words >> word;) {
        if (word == "expand") {
            t.App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
        } else if (word == "mark") {
            // The pointer comes onto the button, which starts its hover help, and clicks it.
            t.Read().MouseMove(RC::cmdExitM);
            t.Read().Click(RC::cmdExitM);
        } else if (word == "close") {
            t.App.Links.CloseLibrary();
        } else if (word == "help") {
            t.Press(MirrorControl::cmdHelp);
        } else if (word == "3days") {
            for (int day = 19; day <= 21; ++day) {
                t.SaveDialogue(DateTime{2026, 11, day, 9, 30, 0},
                               "\r\n\tInspiration of day " + std::to_string(day) + ".");
            }
        } else {
            t.Open(word[0] - '0');
            if (word[1] == '/') {
                t.Read().Click(RC::cmdSelect);
            }
            t.Read().ListRowClicked(std::stoi(word.substr(2)));
        }
    }
}

// Mark Exit keeps the place of each library in Read.ini and closes the Reader; the next opening
// of that library shows the marked row in Index-2 in the library's saved mode, once.
TEST(ReaderActions, MarkExitReopensAtTheMark) {
    const struct {
        std::string Visit;
        int ReadIniLine;                        // the line of Read.ini holding the mark
        std::string Mark, Reopen, Title, Shown; // Shown: List1 | cmdNext
    } cases[] = {
        // The Knowledge Library expanded: its Topic fills the window.
        {"expand 3/1 mark", 2, " 1  1 ", "3", "Veyrant Knowledge Library -- 2/4/7 -- A",
         "(hidden) | \"Next >>\""},
        // The Information row shown earlier in the run is no mark.
        {"2/1 close 3/3 mark", 2, " 1  3 ", "2", "Veyrant Information Library",
         "6 rows, selected -1, top 0, split back=ListInUse | \"First\""},
        {"4/2 mark", 3, " 1  2 ", "help", "Veyrant Advanced Knowledge Library -- 3/3/3 -- Y",
         "3 rows, selected 2, top 0, split back=IndexText | \"Next >>\" disabled"},
        {"3days 1:1 mark", 1, " 1  1 ", "1",
         "Veyrant Dialogue -- 2/3 -- Friday, 9:30 am, November 20, 2026 -- 2/21 Days Old/Max",
         "3 rows, selected 1, top 0, split back=IndexText | \"Earlier >>\""},
        // The marked Dialogue and the one after it are gone (below): the list opens with nothing
        // selected rather than show a Dialogue that was never marked.
        {"3days 1:2 mark", 1, " 1  2 ", "1",
         "Veyrant Dialogue Library -- 1/30 Saved/Max -- Nov 21 -- 1/21 Days Old/Max",
         "1 rows, selected -1, top 0, split back=ListInUse | \"Latest\""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Visit);
        ReaderFixture t;
        // Read.ini as an earlier visit to the Reader left it.
        const std::string unmarked = " 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n";
        WriteWholeFile(t.Folder.Exe() / "Read.ini", unmarked);
        Steps(t, c.Visit);
        // No hover help outlives the window, to blank the instruction of the next opening.
        EXPECT_TRUE(t.App.Reading.ReaderOpen == ReaderOpenState::Closed &&
                    !t.Windows.IsWindowVisible(WindowId::Read) &&
                    t.Windows.Timers.count(TimerId::ReadHover) == 0);
        std::string marked = unmarked;
        marked.replace(static_cast<std::size_t>(c.ReadIniLine) * 8, 6, c.Mark);
        EXPECT_EQ(ReadWholeFile(t.Folder.Exe() / "Read.ini"), marked);
        if (c.Visit == "3days 1:2 mark") {
            for (const auto& name : {"76111909.300", "76112009.300"}) {
                std::filesystem::remove(t.Folder.Isp() / name);
                std::filesystem::remove(t.Folder.Dlg() / name);
            }
        }
        c.Reopen == "help" ? Steps(t, c.Reopen) : t.Open(c.Reopen[0] - '0');
        EXPECT_EQ(t.Shows({RC::List1, RC::cmdNext}), c.Title + " | " + c.Shown);
        // Read.ini's lines are Information, Dialogue, Knowledge, Advanced; Help here reopens
        // the marked Advanced Knowledge Library.
        t.App.Links.CloseLibrary();
        const auto line = std::string("2134").find(c.Reopen == "help" ? '4' : c.Reopen[0]);
        EXPECT_EQ(ReadWholeFile(t.Folder.Exe() / "Read.ini").substr(line * 8, 3), " 0 ");
    }
}

// Merge shows every Topic of the open Section as one essay, expanded, from the first Topic's
// title to the row before the next Section or the library's last row. The merged view is
// expanded without the saved mode saying so: Window splits it, and the split is what is saved.
TEST(ReaderActions, MergeShowsTheSectionsTopicsExpandedAndRefusesOnlyTheAmbrelAndOverflows) {
    const struct {
        int Library, Section;
        std::int16_t Mode;
        std::string Title, Starts, Ends, Split;
    } cases[] = {
        {3, 0, 1, "Veyrant Knowledge Library -- Merged Essay -- < First >",
         "A\r\n\r\n\tText of row 1.\r\n\r\nA1\r\n\r\n\tText of row 2.\r\n\r\n",
         "\r\nB\r\n\r\n\tText of row 3.\r\n\r\n", "7 rows, selected 0, top 0"},
        {2, 5, 0, "Veyrant Information Library -- Merged Section -- < About the Veyrant Sagrel >",
         "The Name and Its Background\r\n\r\n\tText of row 167.\r\n\r\n",
         "\r\nTrademarks\r\n\r\n\tText of row 184.\r\n\r\n", "185 rows, selected 166, top 163"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Title);
        ReaderFixture t;
        const auto library = static_cast<LibraryId>(c.Library);
        t.App.UserSettings.WindowMode[library] = c.Mode;
        Steps(t, std::to_string(c.Library) + ":" + std::to_string(c.Section));
        t.Read().Click(RC::cmdPrint);
        EXPECT_EQ(t.Title(), c.Title);
        const std::string& text = t.Read().Controls()[RC::txtSpin].Text;
        EXPECT_TRUE(text.starts_with(c.Starts) && text.ends_with(c.Ends)) << text;
        EXPECT_EQ(t.Line(RC::txtSpin).substr(0, 5), "high ");
        EXPECT_EQ(t.Lines({RC::List1, RC::cmdPrint, RC::cmdExitM, RC::cmdSelect}),
                  "(hidden) | \"Merge\" disabled | \"Mark Exit\" | \"< Index >\"");
        EXPECT_TRUE(t.Line(RC::txtNote).starts_with("\"Click 'Window' or the text"));
        EXPECT_EQ(t.App.UserSettings.WindowMode[library], c.Mode);
        EXPECT_TRUE(t.Windows.Boxes.empty() && !t.Windows.Busy && t.Windows.Yields >= 2);
        t.Read().Click(RC::cmdWindow);
        EXPECT_EQ(t.Line(RC::List1) + " " + t.Line(RC::txtSpin).substr(0, 5),
                  c.Split + ", split back=IndexText low \"");
        EXPECT_EQ(t.App.UserSettings.WindowMode[library], 0);
    }
    // With the real libraries every Section merges but "< The Ambrel >", which is refused at once
    // by its size with the Section left on view; a Section whose essay then overflows the text box
    // is refused the same way once the merging has shown.
    ReaderFixture t;
    LoadLibraries(t.App.Libraries);
    // Ten thousand empty Topics pass the size check and overflow the text box only once merged.
    FixedLibrary many = LibraryOf(std::vector<std::string>(10001, "\tA"));
    many.Titles[0] = "< Many >";
    many.Texts.assign(10001, "");
    many.RecordWidth = 10;
    const auto merge = [&](int library, int section) {
        t.Windows.Boxes.clear();
        Steps(t, std::to_string(library) + ":" + std::to_string(section));
        const std::string shown = t.Read().Controls()[RC::txtSpin].Text + t.Title();
        const int yields = t.Windows.Yields;
        t.Read().Click(RC::cmdPrint);
        const bool refused = !t.Windows.Boxes.empty();
        if (refused) {
            EXPECT_EQ(t.Windows.Boxes[0].Title, "Cannot Merge");
            EXPECT_EQ(t.Read().Controls()[RC::txtSpin].Text + t.Title(), shown);
            EXPECT_EQ(t.Line(RC::cmdPrint) + t.Line(RC::txtSpin).substr(0, 4),
                      "\"Merge\" disabledlow ");
            EXPECT_FALSE(t.Windows.Busy);
        } else {
            EXPECT_EQ(t.Line(RC::txtSpin).substr(0, 5), "high ");
        }
        t.App.Links.CloseLibrary();
        return refused ? "refused at yield " + std::to_string(t.Windows.Yields - yields)
                       : std::string("merged");
    };
    std::vector<std::string> refused;
    for (const auto id : {LibraryId::Information, LibraryId::Knowledge, LibraryId::Advanced}) {
        BuildLibraryIndex(t.App.Libraries[id]);
        const FixedLibrary& content = t.App.Libraries[id];
        for (int section = 0; section <= content.LastSection; ++section) {
            const std::string verdict = merge(static_cast<int>(id), section);
            if (verdict != "merged") {
                refused.push_back(verdict + " " +
                                  content.SectionTitle[static_cast<std::size_t>(section)]);
            }
        }
    }
    EXPECT_EQ(refused, std::vector<std::string>{"refused at yield 1 < The Ambrel >"});
    BuildLibraryIndex(many);
    t.App.Libraries[LibraryId::Advanced] = many;
    EXPECT_EQ(std::string(merge(4, 0)), "refused at yield 2");
}

// Delete asks first; Yes takes the pair off the disk, lists the Library anew and brings the
// Write window's Library status up to date.
TEST_F(ReaderFixture, DeleteTakesTheDialogueOutOfTheLibrary) {
    InstallEngineFiles(App.Folder);
    App.Engine.LoadSystem(App.Folder);
    App.Engine.SeedSeries();
    SaveDialogue(DateTime{2026, 11, 20, 9, 30, 0}, "\r\n\tOnly one.");
    App.Library.ScanLibrary();
    App.Write->StartWindow();
    const auto status = [&] { return App.Write->Controls()[MirrorControl::txtSaved].Text; };
    ASSERT_NE(status().find("You have 1 Dialogue saved in the Library."), std::string::npos);
    Open(1);
    Read().Click(RC::cmdNext);
    const std::string shown = Title();
    for (const auto answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
        Windows.Answers = {answer};
        Read().Click(RC::cmdDelete);
        EXPECT_TRUE(Title() == shown && Files(Folder).size() == 2) << Title();
    }
    Windows.Answers = {MessageAnswer::Yes};
    Read().Click(RC::cmdDelete);
    ASSERT_EQ(Windows.Boxes.size(), 3u);
    const MessageBoxRequest& box = Windows.Boxes[2];
    EXPECT_TRUE(box.Title == "Delete Dialogue" && box.Icon == MessageIcon::Stop &&
                box.Buttons == MessageButtons::YesNoCancel && box.DefaultButton == 2);
    EXPECT_TRUE(Files(Folder).empty());
    const auto empty = [&] {
        return Shows({RC::List1, RC::cmdNext, RC::cmdSelect, RC::cmdDelete});
    };
    const std::string nothing =
        "Veyrant Dialogue Library -- No Dialogues Saved | 0 rows, selected -1, top 0, split "
        "back=ListEmpty | \"Latest\" disabled | \"< Index >\" disabled | \"Delete\" disabled";
    EXPECT_EQ(empty(), nothing);
    // Keys and a click that reaches a disabled button, as a screen reader's action might, do
    // nothing.
    Key(KeyCode::PageDown);
    Key(KeyCode::Enter);
    for (auto button : {RC::cmdNext, RC::cmdPrint, RC::cmdFile, RC::cmdDelete, RC::cmdSearch}) {
        Read().Click(button);
    }
    EXPECT_EQ(empty(), nothing);
    EXPECT_EQ(Windows.Boxes.size(), 3u);
    EXPECT_NE(status().find("There are currently no Dialogues"), std::string::npos);
    // A file whose name holds no date the program can read opens as a damaged Dialogue: the scan
    // names it, the opening says it cannot be retrieved, and the Reader goes on.
    for (const auto& folder : {Folder.Isp(), Folder.Dlg()}) {
        WriteWholeFile(folder / "99999999.999", "\tA name out of any calendar.");
    }
    Windows.Boxes.clear();
    Reopen(1);
    ASSERT_EQ(Read().Controls().List.Rows.size(), 1u);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    Read().Click(RC::cmdNext);
    EXPECT_EQ(BoxTitles(),
              (std::vector<std::string>{"Error 13 Dialogue Library File Names",
                                        "Dialogue Library Corrupted -- Cannot Retrieve"}));
    EXPECT_EQ(Line(RC::cmdDelete), "\"Delete\"");
}

// Print and File hand the open Dialogue on, with its own date; a failed print says so. A delete
// the disk refuses shows the program's box with the error's number, and both files of the pair
// stay with the Dialogue on view.
TEST_F(ReaderFixture, PrintFileAndAFailedDeleteKeepTheDialogue) {
    const DateTime saved{2026, 11, 21, 9, 30, 0};
    const std::string body = "\t\x93Hello.\x94\r\n\tA reply.";
    Steps(*this, "3days");
    Open(1);
    Read().Click(RC::cmdNext);
    Windows.PrintAnswer = PrintOutcome::Failed;
    Read().Click(RC::cmdPrint);
    ASSERT_EQ(Windows.Printed.size(), 1u);
    const PrintRequest& printed = Windows.Printed[0];
    EXPECT_EQ(printed.Inspiration + "|" + printed.Dialogue + "|" + printed.Title,
              "\r\n\tInspiration of day 21.|" + body + "|Veyrant Dialogue");
    EXPECT_EQ(printed.ShownDate, saved);
    EXPECT_TRUE(Windows.BusyWhilePrinting && !Windows.Busy);
    EXPECT_EQ(Line(RC::cmdPrint), "\"Print\"");
    Read().Click(RC::cmdFile);
    ASSERT_EQ(Windows.EditorTexts.size(), 1u);
    EXPECT_EQ(Windows.EditorTexts[0].Text,
              ExportText(saved, "Inspiration\r\n\r\n\r\n\tInspiration of day 21.\r\n\r\n"
                                "Dialogue\r\n\r\n" +
                                    body));
    EXPECT_EQ(Windows.EditorTexts[0].ProposedFileName, ExportFileName(saved));
    const std::string shown = Title();
    const auto before = Files(Folder);
    Windows.Answers = {MessageAnswer::Yes};
    {
        FileFaults faults;
        faults.FailEvery(FileCall::Rename, EROFS);
        Read().Click(RC::cmdDelete);
    }
    // The trash cannot take the pair either, and the user's Yes to deleting it for good meets
    // the same refusal.
    EXPECT_EQ(BoxTitles(), (std::vector<std::string>{"Print Error", "Delete Dialogue",
                                                     "Error 70 Moving to the Trash",
                                                     "Dialogue Library Corrupted"}));
    EXPECT_TRUE(Windows.Boxes.back().Text.starts_with("Error 70 attempting to delete"));
    EXPECT_TRUE(Files(Folder) == before && Title() == shown) << Title();
    // With its dialogue file gone the pair is half deleted: the list no longer offers it.
    std::filesystem::remove(Folder.Dlg() / "76112109.300");
    Windows.Answers = {MessageAnswer::Yes};
    Read().Click(RC::cmdDelete);
    EXPECT_EQ(Windows.Boxes.back().Title, "Dialogue Library Corrupted");
    EXPECT_EQ(Line(RC::List1), "2 rows, selected -1, top 0, split back=ListInUse");
}

// A library button opens its library with the Write window minimised behind the Reader and the
// backdrop kept, and bringing the Write window back closes the Reader and releases the button.
// Which button opens which library the platform test shows on real windows.
TEST_F(ReaderFixture, LibraryButtonsOpenTheReaderAndRestoringClosesIt) {
    const auto pressed = [&](MC button) { return App.Write->Controls()[button].PressedIn; };
    Windows.ShowWindow(WindowId::Back);
    App.Back.Load();
    Press(MC::cmdKnow, MouseButton::Right);
    EXPECT_EQ(Title(), "Veyrant Advanced Knowledge Library");
    EXPECT_EQ(App.Write->State().ReadLibrary, LibraryId::Advanced);
    EXPECT_TRUE(App.Reading.ReaderOpen == ReaderOpenState::Open && pressed(MC::cmdKnow) &&
                !pressed(MC::cmdHelp) && Windows.IsWindowMinimised(WindowId::Mirror) &&
                Windows.IsWindowVisible(WindowId::Read) &&
                Windows.IsWindowVisible(WindowId::Back) && !Windows.Busy);
    // The same library is not opened twice.
    const auto events = Windows.WindowEvents.size();
    Press(MC::cmdKnow, MouseButton::Right);
    EXPECT_EQ(Windows.WindowEvents.size(), events);
    // The user brings the Write window back.
    Windows.RestoreWindow(WindowId::Mirror);
    App.Write->WindowStateChanged(false);
    EXPECT_TRUE(App.Reading.ReaderOpen == ReaderOpenState::Closed && !pressed(MC::cmdKnow) &&
                !Windows.IsWindowVisible(WindowId::Read) &&
                App.Write->State().ReadLibrary == LibraryId::None);
    // Closing the Reader's own window brings the Write window back from minimised.
    Press(MC::cmdKnow);
    App.Links.CloseLibrary();
    EXPECT_FALSE(Windows.IsWindowMinimised(WindowId::Mirror) || pressed(MC::cmdKnow) ||
                 App.Write->State().ReadLibrary != LibraryId::None);
    // The backdrop goes when the user minimises the Write window, and comes back with it; while
    // a library is open it stays behind the Read window.
    App.Write->WindowStateChanged(true);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
    App.Write->WindowStateChanged(false);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back) &&
                Windows.WindowEvents.back() == "show Mirror");
    Press(MC::cmdHelp);
    App.Write->WindowStateChanged(true);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    // A backdrop the user clicked away stays away when the Write window comes back.
    App.Back.MouseDown();
    Windows.RestoreWindow(WindowId::Mirror);
    App.Write->WindowStateChanged(false);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
}

// The pointer on the bare background of the Write or the Read window: with the backdrop hidden
// each window's note tells how to bring it back, for seven ticks; with the backdrop up it says
// nothing of it and silences the backdrop's own hint. Any button there restores the backdrop.
TEST(BackgroundHelp, TellsHowToRestoreAHiddenBackdropOnEitherWindow) {
    for (const bool onReader : {false, true}) {
        SCOPED_TRACE(onReader ? "Read" : "Write");
        ReaderFixture t;
        t.App.Back.Load();
        t.Windows.ShowWindow(WindowId::Back);
        if (onReader) {
            t.Open(3);
        }
        const TimerId timer = onReader ? TimerId::ReadHover : TimerId::MirrorHover;
        const auto move = [&] {
            onReader ? t.Read().MouseMove(RC::Window) : t.App.Write->MouseMove(MC::Panel1);
        };
        const auto tick = [&] {
            onReader ? t.Read().TimerFired(timer) : t.App.Write->TimerFired(timer);
        };
        const auto note = [&] {
            return onReader ? t.Read().Controls()[RC::txtNote].Text
                            : t.App.Write->Controls()[MC::txtNote].Text;
        };
        const std::string instruction = note();
        t.App.Back.MouseMove();
        t.App.Back.TimerFired();
        ASSERT_TRUE(t.App.Back.HintShowing());
        move();
        EXPECT_FALSE(t.App.Back.HintShowing());
        tick();
        EXPECT_EQ(note(), instruction);
        t.App.Back.MouseDown();
        ASSERT_FALSE(t.Windows.IsWindowVisible(WindowId::Back));
        move();
        EXPECT_EQ(t.Windows.Timers.at(timer), 1250);
        tick();
        EXPECT_TRUE(note().starts_with("Click to restore the background"));
        // Further moves over the same place neither restart the count nor the help.
        const auto starts = t.Windows.TimerStarts[timer];
        move();
        EXPECT_EQ(t.Windows.TimerStarts[timer], starts);
        for (int ticks = 0; ticks < 7; ++ticks) {
            tick();
        }
        EXPECT_EQ(note(), instruction);
        for (const auto button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
            t.App.Back.MouseDown();
            onReader ? t.Read().MouseDown(RC::Window, button)
                     : t.App.Write->MouseDown(MC::Window, button);
            EXPECT_TRUE(t.Windows.IsWindowVisible(WindowId::Back));
        }
    }
}

} // namespace
} // namespace veyrant::testing

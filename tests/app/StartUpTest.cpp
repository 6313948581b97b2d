#include "app/StartUp.h"

#include "app/AppFixture.h"
#include "core/ProgramError.h"
#include "support/FileFaults.h"

#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace veyrant::testing {
namespace {

const char* const DefaultSettings =
    " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 1 \r\n 21  30 \r\n 0 \r\n";

TEST(StartUp, Timer1WaitsOutThreeSecondsOfBanner) {
    struct Case {
        float Start;
        float End;
        int Interval;
    };
    const Case cases[] = {
        {100, 100, 3000}, {100, 101, 2000},       {100, 102.5f, 500}, {100, 103, 100},
        {100, 140, 100},  {86399.5f, 0.5f, 1000}, {86000, 10, 1000},  {100, 102.9996f, 100},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Timer1Interval(c.Start, c.End), c.Interval) << c.Start << " to " << c.End;
    }
}

TEST(StartUp, MainLoadsTheWriteWindowBehindTheBanner) {
    AppFixture fixture;
    fixture.PutExeFile("Qdrfonts.ini", "Liberation Serif\r\nLiberation Serif Italic\r\n");
    Main(fixture.App);
    EXPECT_TRUE(fixture.Windows.Boxes.empty());
    EXPECT_FALSE(fixture.Windows.Ended);
    EXPECT_EQ(fixture.Windows.WindowEvents,
              (std::vector<std::string>{"show Banner", "load Mirror"}));
    EXPECT_EQ(fixture.Windows.Timers.at(TimerId::MirrorTimer1), 3000);
    EXPECT_TRUE(fixture.Windows.Busy);
    EXPECT_EQ(fixture.App.ProgramYear, "2026");
    EXPECT_EQ(fixture.App.VersionString, "4.1.26.03.09");
    EXPECT_DOUBLE_EQ(fixture.App.Scale.ScaleFactor, 1.21);
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"),
              " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 2 \r\n 21  30 \r\n 0 \r\n");
    EXPECT_TRUE(std::filesystem::is_directory(fixture.Folder.Dlg()));
    // The fixed libraries are loaded and indexed before the window shows.
    EXPECT_EQ(fixture.App.Libraries[LibraryId::Information].LastRow, 184);
    EXPECT_EQ(fixture.App.Libraries[LibraryId::Knowledge].SectionEnd[0], 11);
    EXPECT_EQ(fixture.App.Libraries[LibraryId::Advanced].LastSection, 2);
}

TEST(StartUp, Timer1RevealsTheWriteWindowAndTheBackdropOnWideScreens) {
    struct Case {
        int ScreenPixels;
        std::vector<std::string> Events;
    };
    const Case cases[] = {
        {800, {"unload Banner", "show Back", "show Mirror"}},
        {640, {"unload Banner", "show Mirror"}},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        fixture.PutExeFile("Tolmira.ini", " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 0 \r\n"
                                          " 21  30 \r\n 0 \r\n");
        fixture.Windows.ScreenWidth = c.ScreenPixels * TwipsPerPixel;
        Main(fixture.App);
        ASSERT_TRUE(fixture.Windows.Boxes.empty()) << fixture.Windows.Boxes[0].Title;
        fixture.Windows.WindowEvents.clear();
        Timer1(fixture.App);
        EXPECT_EQ(fixture.Windows.WindowEvents, c.Events) << c.ScreenPixels;
        EXPECT_EQ(fixture.Windows.Timers.count(TimerId::MirrorTimer1), 0u);
        EXPECT_FALSE(fixture.Windows.Busy);
        // A new Dialogue with its own Inspiration.
        const MirrorState& state = fixture.App.Write->State();
        EXPECT_EQ(state.ActiveMethod, WriteMethod::None);
        EXPECT_EQ(state.InspirationText.substr(0, 1), "\t");
        EXPECT_GT(state.InspirationText.size(), 20u);
        EXPECT_FALSE(state.SuggestionText.empty());
        EXPECT_TRUE(std::filesystem::exists(fixture.Folder.Exe() / "qdr41.mtx"));
    }
}

TEST(StartUp, ADamagedEngineFileEndsTheStartWithTheEnginesBox) {
    AppFixture first;
    Main(first.App);
    // The installed file is kept as it stands, damage and all, until a newer build ships.
    const std::string tables = first.ExeFile("qdr41.sys");
    first.PutExeFile("qdr41.sys", tables.substr(0, tables.rfind("\"Parity\"")) + "\"Parit\"");

    FakeWindowLayer nextRun;
    Application again(first.Folder, first.Program, first.Clock, first.Series, nextRun);
    Main(again);
    ASSERT_EQ(nextRun.Boxes.size(), 1u);
    EXPECT_EQ(nextRun.Boxes[0].Title, "Error LoadSystem");
    EXPECT_EQ(nextRun.Boxes[0].Text, "Parity error loading the configuration system file. Data "
                                     "structure is incorrect.");
    EXPECT_TRUE(nextRun.Ended);
    EXPECT_EQ(nextRun.Timers.count(TimerId::MirrorTimer1), 0u);
}

TEST(StartUp, LargeOptionOnASmallScreenIsLoweredAndTheNextStartRuns) {
    AppFixture fixture;
    fixture.PutExeFile("Tolmira.ini", " 2 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 2 \r\n"
                                      " 21  30 \r\n 0 \r\n");
    fixture.Windows.ScreenWidth = 640 * TwipsPerPixel;
    Main(fixture.App);
    ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
    EXPECT_EQ(fixture.Windows.Boxes[0].Title, "Veyrant Sagrel Window Size Adjustment");
    EXPECT_EQ(fixture.Windows.Boxes[0].Icon, MessageIcon::Warning);
    EXPECT_TRUE(fixture.Windows.Ended);
    EXPECT_EQ(fixture.Windows.Loaded.count(WindowId::Mirror), 0u);
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"),
              " 2 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 0 \r\n 21  30 \r\n 0 \r\n");

    FakeWindowLayer nextRun;
    nextRun.ScreenWidth = 640 * TwipsPerPixel;
    Application again(fixture.Folder, fixture.Program, fixture.Clock, fixture.Series, nextRun);
    Main(again);
    EXPECT_TRUE(nextRun.Boxes.empty());
    EXPECT_EQ(nextRun.Loaded.count(WindowId::Mirror), 1u);
    EXPECT_DOUBLE_EQ(again.Scale.ScaleFactor, 0.9);
}

TEST(StartUp, ClosingTheWriteWindowStoresTheSettingsAndEndsBehindTheBanner) {
    AppFixture fixture;
    Main(fixture.App);
    Timer1(fixture.App);
    fixture.App.UserSettings.WriteFontStep = 2;
    fixture.Windows.WindowEvents.clear();
    UnloadMirror(fixture.App);
    EXPECT_EQ(fixture.App.ClosingState, ClosingStates::Exiting);
    EXPECT_EQ(fixture.Windows.WindowEvents,
              (std::vector<std::string>{"hide Mirror", "unload Back", "show Banner"}));
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini").substr(0, 5), " 2 \r\n");
    EXPECT_EQ(fixture.Windows.Timers.at(TimerId::BannerTimer), 700);
    EXPECT_FALSE(fixture.Windows.Ended);
    BannerTimer(fixture.App);
    EXPECT_TRUE(fixture.Windows.Ended);
}

// The Dialogues are kept by then; the box says what failed, and the program still ends.
TEST(StartUp, ExitThatCannotStoreTheSettingsSaysWhatFailedAndEnds) {
    struct Case {
        int Error;
        const char* Title;
        const char* Cause;
    };
    const Case cases[] = {
        {ENOSPC, "Error 61 Storing the Settings", "The disk is full."},
        {EROFS, "Error 70 Storing the Settings", "The program is not allowed to write in"},
        {EIO, "Error 75 Storing the Settings", " cannot be written."},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        Main(fixture.App);
        FileFaults faults;
        faults.FailEvery(FileCall::Write, c.Error);
        ExitProgram(fixture.App);
        ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
        const auto& box = fixture.Windows.Boxes[0];
        EXPECT_EQ(box.Title, c.Title);
        EXPECT_NE(box.Text.find(c.Cause), std::string::npos) << box.Text;
        EXPECT_NE(box.Text.find("Your Dialogues are not affected."), std::string::npos);
        EXPECT_TRUE(fixture.Windows.Ended);
    }
}

// A program folder the disk refuses is no unknown error: the box names the folder and the cause,
// and the program ends before its banner.
TEST(StartUp, AFolderTheDiskRefusesIsNamedWithItsCause) {
    struct Case {
        const char* Name;
        FileCall Call; // fails with Error (0: runs); the folder is new unless FileInTheWay
        int Error;
        bool FileInTheWay;
        const char* Folder; // under the temporary folder
        const char* Cause;
    };
    const Case cases[] = {
        {"read-only home", FileCall::MakeFolder, EROFS, false, "veyrant-sagrel",
         "The disk is read-only. The system reports: Read-only file system.\r\n\r\nYour "
         "Dialogues are not affected. Make the disk writable"},
        {"disk full", FileCall::Write, ENOSPC, false, "veyrant-sagrel/exe",
         "The disk is full. The system reports: No space left on device.\r\n\r\nYour "
         "Dialogues are not affected. Make room on the disk"},
        {"the system says a file is in the way", FileCall::MakeFolder, ENOTDIR, false,
         "veyrant-sagrel",
         "A file stands where the folder should be. The system reports: Not a "
         "directory.\r\n\r\nYour Dialogues are not affected. Move that file"},
        {"a file where the folder should be", FileCall::Narrow, 0, true, "veyrant-sagrel",
         "A file stands where the folder should be. The system reports: Not a directory."},
        {"a disk failing in an unforeseen way", FileCall::MakeFolder, EIO, false, "veyrant-sagrel",
         "The folder cannot be written. The system reports: Input/output error.\r\n\r\nYour "
         "Dialogues are not affected. Check the folder and the disk"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        AppFixture fixture;
        std::filesystem::remove_all(fixture.Folder.Root);
        if (c.FileInTheWay) {
            WriteWholeFile(fixture.Folder.Root, "a file where a folder should be");
        }
        FileFaults faults;
        faults.FailEvery(c.Call, c.Error);
        Main(fixture.App);
        ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
        const auto& box = fixture.Windows.Boxes[0];
        EXPECT_EQ(box.Title, "Cannot Set Up the Veyrant Sagrel Folder");
        EXPECT_EQ(box.Text.rfind("The Veyrant Sagrel cannot start, because it cannot make or "
                                 "write its folder " +
                                     (fixture.Temp / c.Folder).string() + ".\r\n\r\n",
                                 0),
                  0u)
            << box.Text;
        EXPECT_NE(box.Text.find(c.Cause), std::string::npos) << box.Text;
        EXPECT_EQ(box.Icon, MessageIcon::Warning);
        EXPECT_TRUE(fixture.Windows.Ended);
        EXPECT_TRUE(fixture.Windows.WindowEvents.empty());
    }
}

// Whatever goes wrong in the start, the user sees the program's box before it ends.
TEST(StartUp, AnyFailureOfTheStartEndsInTheSystemErrorBox) {
    struct Case {
        const char* Name;
        std::function<void()> Fail;
        const char* Title;
    };
    const Case cases[] = {
        {"a folder listing the system refuses",
         [] {
             throw std::filesystem::filesystem_error(
                 "directory iterator", std::make_error_code(std::errc::permission_denied));
         },
         "Unknown System Error 70 -- Please Notify Veyrant Technology"},
        {"out of memory", [] { throw std::bad_alloc(); }, "Cannot Load -- Out of Memory"},
        {"a failure of the library", [] { throw std::length_error("basic_string::_M_create"); },
         "Unknown System Error 1001 -- Please Notify Veyrant Technology"},
        {"the program's own error", [] { throw ProgramError(ErrorNumber::FileNotFound); },
         "Unknown System Error 53 -- Please Notify Veyrant Technology"},
        {"the program's file gone", nullptr,
         "Unknown System Error 53 -- Please Notify Veyrant Technology"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        AppFixture fixture;
        if (c.Fail) {
            SetFileFault([&](FileCall, const std::filesystem::path&) -> int {
                c.Fail();
                return 0;
            });
        } else {
            fixture.App.ProgramFile = fixture.Temp / "gone";
        }
        Main(fixture.App);
        SetFileFault({});
        ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
        EXPECT_EQ(fixture.Windows.Boxes[0].Title, c.Title);
        EXPECT_EQ(fixture.Windows.Boxes[0].Icon, MessageIcon::Warning);
        EXPECT_EQ(fixture.Windows.Boxes[0].Buttons, MessageButtons::Ok);
        EXPECT_TRUE(fixture.Windows.Ended);
        EXPECT_TRUE(fixture.Windows.WindowEvents.empty());
    }
}

TEST(StartUp, ASystemConflictAndAnUnknownErrorSayWhatToDo) {
    EXPECT_EQ(SystemErrorBox(35).Title,
              "System Conflict, Error 35 -- Close Programs and Log In Again");
    EXPECT_NE(SystemErrorBox(1001).Text.find("support@veyrant-sagrel.org that you encountered "
                                             "System Error 1001"),
              std::string::npos);
}

} // namespace
} // namespace veyrant::testing

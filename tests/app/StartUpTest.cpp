#include "app/StartUp.h"

#include "app/AppFixture.h"
#include "support/FileFaults.h"

#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <system_error>

namespace veyrant::testing {
namespace {

// The one box the start showed, a warning, which ended the program.
MessageBoxRequest EndingBox(const FakeWindowLayer& windows) {
    EXPECT_TRUE(windows.Ended);
    EXPECT_EQ(windows.Boxes.size(), 1u);
    EXPECT_TRUE(windows.Boxes.empty() || windows.Boxes.back().Icon == MessageIcon::Warning);
    return windows.Boxes.empty() ? MessageBoxRequest{} : windows.Boxes.back();
}

// The Write window loads behind the banner; Timer1, which waits out three seconds of banner,
// reveals it with a new Dialogue and its own Inspiration, and the backdrop on a wide screen;
// closing it stores the settings and ends behind the banner.
TEST(StartUp, TheWriteWindowComesBehindTheBannerAndClosingEndsBehindIt) {
    struct Case {
        int ScreenPixels;
        bool OptionZeroStored;
        int Option;
        double Scale;
        std::vector<std::string> Revealed;
    };
    const Case cases[] = {
        {1920, false, 2, 1.21, {"unload Banner", "show Back", "show Mirror"}},
        {800, true, 0, 0.9, {"unload Banner", "show Back", "show Mirror"}},
        {640, true, 0, 0.9, {"unload Banner", "show Mirror"}},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        fixture.PutExeFile("Qdrfonts.ini", "Liberation Serif\r\nLiberation Serif Italic\r\n");
        if (c.OptionZeroStored) {
            fixture.PutExeFile("Tolmira.ini", SettingsText(0));
        }
        fixture.Windows.ScreenWidth = c.ScreenPixels * TwipsPerPixel;
        Main(fixture.App);
        ASSERT_TRUE(fixture.Windows.Boxes.empty()) << fixture.Windows.Boxes[0].Title;
        EXPECT_FALSE(fixture.Windows.Ended);
        EXPECT_EQ(fixture.Windows.WindowEvents,
                  (std::vector<std::string>{"show Banner", "load Mirror"}));
        EXPECT_EQ(fixture.Windows.Timers.at(TimerId::MirrorTimer1), 3000);
        EXPECT_TRUE(fixture.Windows.Busy);
        EXPECT_EQ(fixture.App.ProgramYear + " " + fixture.App.VersionString, "2026 4.1.26.03.09");
        EXPECT_DOUBLE_EQ(fixture.App.Scale.ScaleFactor, c.Scale);
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), SettingsText(c.Option));
        EXPECT_TRUE(std::filesystem::is_directory(fixture.Folder.Dlg()));
        // The fixed libraries are loaded and indexed before the window shows.
        EXPECT_EQ(fixture.App.Libraries[LibraryId::Information].LastRow, 184);
        EXPECT_EQ(fixture.App.Libraries[LibraryId::Knowledge].SectionEnd[0], 11);
        EXPECT_EQ(fixture.App.Libraries[LibraryId::Advanced].LastSection, 2);

        fixture.Windows.WindowEvents.clear();
        Timer1(fixture.App);
        EXPECT_EQ(fixture.Windows.WindowEvents, c.Revealed) << c.ScreenPixels;
        EXPECT_EQ(fixture.Windows.Timers.count(TimerId::MirrorTimer1), 0u);
        EXPECT_FALSE(fixture.Windows.Busy);
        const MirrorState& state = fixture.App.Write->State();
        EXPECT_EQ(state.ActiveMethod, WriteMethod::None);
        EXPECT_EQ(state.InspirationText.substr(0, 1), "\t");
        EXPECT_GT(state.InspirationText.size(), 20u);
        EXPECT_FALSE(state.SuggestionText.empty());
        EXPECT_TRUE(std::filesystem::exists(fixture.Folder.Exe() / "qdr41.mtx"));

        fixture.App.UserSettings.WriteFontStep = 2;
        fixture.Windows.WindowEvents.clear();
        UnloadMirror(fixture.App);
        EXPECT_EQ(fixture.App.ClosingState, ClosingStates::Exiting);
        EXPECT_EQ(fixture.Windows.WindowEvents,
                  (std::vector<std::string>{"hide Mirror", "unload Back", "show Banner"}));
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), SettingsText(c.Option, 2));
        EXPECT_EQ(fixture.Windows.Timers.at(TimerId::BannerTimer), 700);
        EXPECT_FALSE(fixture.Windows.Ended);
        BannerTimer(fixture.App);
        EXPECT_TRUE(fixture.Windows.Ended);
    }
    const std::tuple<float, float, int> waits[] = {
        {100, 100, 3000}, {100, 101, 2000},       {100, 102.5f, 500}, {100, 103, 100},
        {100, 140, 100},  {86399.5f, 0.5f, 1000}, {86000, 10, 1000},  {100, 102.9996f, 100},
    };
    for (const auto& [start, end, interval] : waits) {
        EXPECT_EQ(Timer1Interval(start, end), interval) << start << " to " << end;
    }
}

// A damaged engine file ends the next start with its box; a large option on a small screen is
// lowered with a warning, to the option zero that a start on that screen runs with.
TEST(StartUp, ADamagedEngineFileEndsTheStartAndALargeOptionIsLowered) {
    AppFixture first;
    Main(first.App);
    // The installed file is kept as it stands, damage and all, until a newer build ships.
    const std::string tables = first.ExeFile("qdr41.sys");
    first.PutExeFile("qdr41.sys", tables.substr(0, tables.rfind("\"Parity\"")) + "\"Parit\"");
    FakeWindowLayer damaged;
    Application again(first.Folder, first.Program, first.Clock, first.Series, damaged);
    Main(again);
    const auto box = EndingBox(damaged);
    EXPECT_EQ(box.Title + ": " + box.Text.substr(0, 12), "Error LoadSystem: Parity error");
    EXPECT_EQ(damaged.Timers.count(TimerId::MirrorTimer1), 0u);

    AppFixture small;
    small.PutExeFile("Tolmira.ini", SettingsText(2, 2));
    small.Windows.ScreenWidth = 640 * TwipsPerPixel;
    Main(small.App);
    EXPECT_EQ(EndingBox(small.Windows).Title, "Veyrant Sagrel Window Size Adjustment");
    EXPECT_EQ(small.Windows.Loaded.count(WindowId::Mirror), 0u);
    EXPECT_EQ(small.ExeFile("Tolmira.ini"), SettingsText(0, 2));
}

// Whatever goes wrong in the start, the user sees the program's box before it ends, before the
// banner. A program folder the disk refuses is no unknown error: the box names the folder and the
// cause.
TEST(StartUp, AnyFailureEndsInItsBoxAndAFolderTheDiskRefusesIsNamedWithItsCause) {
    // The call fails with the error (0: a file stands where the folder should be); the box
    // names the cause, in the system's words too, and the remedy.
    const std::tuple<FileCall, int, const char*, const char*, const char*> refusals[] = {
        {FileCall::MakeFolder, EROFS, "veyrant-sagrel",
         "The disk is read-only. The system reports: Read-only file system.", "Make the disk"},
        {FileCall::Write, ENOSPC, "veyrant-sagrel/exe", "The disk is full.", "Make room"},
        {FileCall::MakeFolder, ENOTDIR, "veyrant-sagrel", "A file stands", "Move that file"},
        {FileCall::Narrow, 0, "veyrant-sagrel", "A file stands", "Move that file"},
        {FileCall::MakeFolder, EIO, "veyrant-sagrel", "The folder cannot", "Check the folder"},
    };
    for (const auto& [call, error, folder, cause, remedy] : refusals) {
        SCOPED_TRACE(cause);
        AppFixture fixture;
        std::filesystem::remove_all(fixture.Folder.Root);
        if (error == 0) {
            WriteWholeFile(fixture.Folder.Root, "a file where a folder should be");
        }
        FileFaults faults;
        faults.FailEvery(call, error);
        Main(fixture.App);
        const auto box = EndingBox(fixture.Windows);
        EXPECT_EQ(box.Title, "Cannot Set Up the Veyrant Sagrel Folder");
        EXPECT_NE(
            box.Text.find(" folder " + (fixture.Temp / folder).string() + ".\r\n\r\n" + cause),
            std::string::npos)
            << box.Text;
        EXPECT_NE(box.Text.find("affected. " + std::string(remedy)), std::string::npos);
        EXPECT_TRUE(fixture.Windows.WindowEvents.empty());
    }
    // The titles are named by their first words and number. No failure: the program's file is
    // gone.
    const auto unknown = [](int n) { return "Unknown System Error " + std::to_string(n) + " --"; };
    const std::pair<std::function<void()>, std::string> failures[] = {
        {[] {
             throw std::filesystem::filesystem_error(
                 "directory iterator", std::make_error_code(std::errc::permission_denied));
         },
         unknown(70)},
        {[] { throw std::bad_alloc(); }, "Cannot Load -- Out of Memory"},
        {[] { throw std::length_error("basic_string::_M_create"); }, unknown(1001)},
        {nullptr, unknown(53)},
    };
    for (const auto& [fail, title] : failures) {
        SCOPED_TRACE(title);
        AppFixture fixture;
        if (fail) {
            SetFileFault([&](FileCall, const std::filesystem::path&) -> int {
                fail();
                return 0;
            });
        } else {
            fixture.App.ProgramFile = fixture.Temp / "gone";
        }
        Main(fixture.App);
        SetFileFault({});
        const auto box = EndingBox(fixture.Windows);
        EXPECT_TRUE(box.Title.starts_with(title)) << box.Title;
        EXPECT_EQ(box.Buttons, MessageButtons::Ok);
        EXPECT_TRUE(fixture.Windows.WindowEvents.empty());
    }
    EXPECT_TRUE(SystemErrorBox(35).Title.starts_with("System Conflict, Error 35 --"));
    EXPECT_NE(SystemErrorBox(1001).Text.find("System Error 1001"), std::string::npos);
}

} // namespace
} // namespace veyrant::testing

#include "app/SettingsFiles.h"

#include "app/AppFixture.h"
#include "app/StartUp.h"
#include "support/FileFaults.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace veyrant::testing {
namespace {

// The settings in the order of Tolmira.ini.
std::vector<int> Values(const Settings& s) {
    std::vector<int> values{s.WriteFontStep, s.ReaderFontStep};
    values.reserve(12);
    values.insert(values.end(), s.WindowMode.begin(), s.WindowMode.end());
    values.insert(values.end(), {s.IntroDone, s.IntroDone2, s.DisplayOption, s.MaxLibraryDays,
                                 s.MaxLibraryFiles, s.GuestMode});
    return values;
}

// Each library's open flag and mark, Information, Dialogue, Knowledge, Advanced.
std::string Places(const ReadSettings& read) {
    std::string places;
    for (const auto id :
         {LibraryId::Information, LibraryId::Dialogue, LibraryId::Knowledge, LibraryId::Advanced}) {
        places += std::to_string(static_cast<int>(read.OpenFlags[id])) + " " +
                  std::to_string(read.MarkRows[id]) + ",";
    }
    return places;
}

const char* const ZeroPlaces = " 0  0 \r\n 0  0 \r\n 0  0 \r\n 0  0 \r\n";

// Each file is read as it stands or repairs itself in silence. Preferences.ini is read and
// written with Tolmira.ini: a damaged one becomes the defaults, a key of another build is kept,
// and a damaged Tolmira.ini leaves it as it was.
TEST(SettingsFiles, EachFileIsReadAsItStandsOrRepairsItselfInSilence) {
    const char* const defaults = "version 1\r\nSpellingMarks 1\r\n";
    const std::tuple<const char*, bool, const char*> preferences[] = {
        {nullptr, true, defaults},
        {"version 1\nLastFolder /home/a b\nSpellingMarks 0\n", false,
         "version 1\r\nSpellingMarks 0\r\nLastFolder /home/a b\r\n"},
        {"SpellingMarks 0\r\n", true, defaults},
        {"version 1\r\nSpellingMarks 2\r\n", true, defaults},
        {"version 1\r\nSpellingMarks\r\n", true, defaults},
    };
    for (const auto& [text, marks, saved] : preferences) {
        AppFixture fixture;
        fixture.PutExeFile("Tolmira.ini", "damaged");
        fixture.PutExeFile("Preferences.ini", text);
        LoadSettings(fixture.App);
        EXPECT_EQ(fixture.App.UserPreferences.SpellingMarks, marks) << text;
        EXPECT_EQ(fixture.ExeFile("Preferences.ini"), saved) << text;
        EXPECT_TRUE(fixture.Windows.Boxes.empty());
    }
    // Tolmira.ini is used as it stands, in any spacing and out of range, and is not rewritten; a
    // damaged one is repaired with the defaults and the option for the screen.
    struct Case {
        const char* Text; // nullptr: no file
        int ScreenPixels;
        std::vector<int> Values;
        std::string Saved; // empty: the file as it was
    };
    const std::vector<int> read{2, 3, 1, 0, 1, 0, 1, 1, 2, 14, 99, 1};
    const auto repaired = [](const char* text, int pixels, int option) {
        return Case{
            text, pixels, {1, 1, 0, 0, 0, 0, 1, 1, option, 21, 30, 0}, SettingsText(option)};
    };
    const Case settings[] = {
        {" 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 7 \r\n 21  0 \r\n 0",
         1024,
         {1, 1, 0, 0, 0, 0, 1, 1, 7, 21, 0, 0},
         ""},
        {" 2 \r\n 3 \r\n 1  0  1  0 \r\n 1  1 \r\n 2 \r\n 14  99 \r\n 1 \r\n", 1024, read, ""},
        {"  2 ,\t3\r\n\r\n1 0,1 0\r\n1,1\r\n2\r\n14 , 99\r\n1", 1024, read, ""},
        // Six lines: GuestMode is missing, so every value read so far is dropped too.
        repaired(" 2 \r\n 3 \r\n 1  1  1  1 \r\n 1  1 \r\n 3 \r\n 5  6 \r\n", 1024, 1),
        repaired(nullptr, 799, 0),
        repaired(nullptr, 800, 1),
        repaired(nullptr, 1279, 1),
        repaired(nullptr, 1280, 2),
        repaired(" 2 \r\n x \r\n 0  0  0  0 \r\n 1  1 \r\n 1 \r\n 21  30 \r\n 0 \r\n", 1920, 2),
    };
    for (const Case& c : settings) {
        AppFixture fixture;
        fixture.PutExeFile("Tolmira.ini", c.Text);
        fixture.Windows.ScreenWidth = c.ScreenPixels * TwipsPerPixel;
        LoadSettings(fixture.App);
        EXPECT_EQ(Values(fixture.App.UserSettings), c.Values) << c.Text;
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), c.Saved.empty() ? c.Text : c.Saved) << c.Text;
        EXPECT_TRUE(fixture.Windows.Boxes.empty()) << c.Text;
    }
    // The flags of Read.ini keep a request made in memory; a damaged file is laid down as zeros
    // and the request stands.
    using enum OpenFlag;
    const std::tuple<const char*, OpenFlag, const char*, const char*> placesRead[] = {
        {"0 5\r\n0 -1\r\n0 7\r\n0 8\r\n", Marked, "1 5,1 -1,1 7,1 8,", nullptr},
        {"2 5\r\n2 -1\r\n2 7\r\n2 8\r\n", Marked, "2 5,2 -1,2 7,2 8,", nullptr},
        {nullptr, Marked, "1 0,1 0,1 0,1 0,", ZeroPlaces},
        {"1 2 3", None, "0 0,0 0,0 0,0 0,", ZeroPlaces},
        {"1 2 3 4 5 6 7 x", Marked, "1 0,1 0,1 0,1 0,", ZeroPlaces},
        {"3 5 0 -1 0 7 0 8", None, "0 0,0 0,0 0,0 0,", ZeroPlaces},
    };
    for (const auto& [text, requested, places, saved] : placesRead) {
        AppFixture fixture;
        fixture.PutExeFile("Read.ini", text);
        ReadSettings& read = fixture.App.ReaderSettings;
        read.OpenFlags = PerLibrary<OpenFlag>::Filled(requested);
        read.MarkRows = PerLibrary<std::int16_t>::Filled(99);
        LoadReadSettings(fixture.App);
        EXPECT_EQ(Places(read), places) << text;
        EXPECT_EQ(fixture.ExeFile("Read.ini"), saved == nullptr ? text : saved);
        EXPECT_TRUE(fixture.Windows.Boxes.empty());
    }
    // A pipe would hold the start for ever and a device would fill the memory; a file past the
    // limit is no file the program wrote. Each is damaged, and the usual repair or box follows.
    for (const auto& [kind, error] : {std::pair{"pipe", 75}, {"device", 75}, {"oversized", 7}}) {
        SCOPED_TRACE(kind);
        AppFixture fixture;
        for (const char* name : {"Tolmira.ini", "Read.ini", "Qdrfonts.ini"}) {
            const auto path = fixture.Folder.Exe() / name;
            if (kind == std::string("pipe")) {
                ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
            } else if (kind == std::string("device")) {
                std::filesystem::create_symlink("/dev/zero", path);
            } else {
                fixture.PutExeFile(name, SettingsText(2, 2) + std::string(70000, ' '));
            }
        }
        fixture.Windows.ScreenWidth = 1024 * TwipsPerPixel;
        LoadSettings(fixture.App);
        fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge] = OpenFlag::Marked;
        LoadReadSettings(fixture.App);
        LoadFontNames(fixture.App);
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), SettingsText(1));
        EXPECT_TRUE(std::filesystem::is_regular_file(
            std::filesystem::symlink_status(fixture.Folder.Exe() / "Tolmira.ini")));
        EXPECT_EQ(fixture.ExeFile("Read.ini"), ZeroPlaces);
        EXPECT_EQ(fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge], OpenFlag::Marked);
        ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
        const std::string n = std::to_string(error);
        EXPECT_TRUE(fixture.Windows.Boxes[0].Text.starts_with(
            "Error " + n + " loading file " + (fixture.Folder.Exe() / "Qdrfonts.ini").string() +
            "."));
    }
}

// Saves write every value in its place, a negative one with its minus sign; whether a save cut
// short leaves the old file whole is the fault sweep's to show. Read.ini is not worth the running
// Dialogue: when it cannot be written, a box says so and the program goes on. The settings are
// stored at the exit, when the Dialogues are kept: the box says what failed, and the program
// still ends.
TEST(SettingsFiles, SavesWriteEveryValueAndAFileThatCannotBeWrittenIsToldAndOnlyTheExitEnds) {
    AppFixture fixture;
    fixture.App.UserSettings.WindowMode = PerLibrary<std::int16_t>({1, 0, 1, 1});
    fixture.App.UserSettings.MaxLibraryDays = -3;
    SaveSettings(fixture.App);
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"),
              " 1 \r\n 1 \r\n 1  0  1  1 \r\n 1  1 \r\n 1 \r\n-3  30 \r\n 0 \r\n");
    std::filesystem::create_directories(fixture.Folder.Exe() / "Read.ini");
    LoadReadSettings(fixture.App);
    SaveReadSettings(fixture.App);
    ASSERT_EQ(fixture.Windows.Boxes.size(), 2u);
    EXPECT_EQ(fixture.Windows.Boxes[1].Title, "Error 75 Storing the Library Places");
    EXPECT_FALSE(fixture.Windows.Ended);
    FileFaults faults;
    faults.FailEvery(FileCall::Write, ENOSPC);
    ExitProgram(fixture.App);
    EXPECT_TRUE(fixture.Windows.Ended);
    const MessageBoxRequest& box = fixture.Windows.Boxes.back();
    EXPECT_EQ(box.Title, "Error 61 Storing the Settings");
    EXPECT_NE(box.Text.find("The disk is full."), std::string::npos) << box.Text;
}

} // namespace
} // namespace veyrant::testing

#include "app/SettingsFiles.h"

#include "app/AppFixture.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <vector>

namespace veyrant::testing {
namespace {

std::vector<int> Values(const Settings& s) {
    return {s.WriteFontStep,
            s.ReaderFontStep,
            s.WindowMode[LibraryId::Dialogue],
            s.WindowMode[LibraryId::Information],
            s.WindowMode[LibraryId::Knowledge],
            s.WindowMode[LibraryId::Advanced],
            s.IntroDone,
            s.IntroDone2,
            s.DisplayOption,
            s.MaxLibraryDays,
            s.MaxLibraryFiles,
            s.GuestMode};
}

const char* const DefaultFileOnMiddleScreen =
    " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 1 \r\n 21  30 \r\n 0 \r\n";

// Preferences.ini is read and written with Tolmira.ini. A damaged one becomes the defaults in
// silence, a key of another build is kept, and a damaged Tolmira.ini leaves it as it was.
TEST(SettingsFiles, PreferencesAreKeptByKeyAndRepairThemselves) {
    struct Case {
        const char* Text; // nullptr: no file
        bool SpellingMarks;
        const char* Saved;
    };
    const char* const defaults = "version 1\r\nSpellingMarks 1\r\n";
    const Case cases[] = {
        {nullptr, true, defaults},
        {"version 1\nLastFolder /home/a b\nSpellingMarks 0\n", false,
         "version 1\r\nSpellingMarks 0\r\nLastFolder /home/a b\r\n"},
        {"SpellingMarks 0\r\n", true, defaults},
        {"version 1\r\nSpellingMarks 2\r\n", true, defaults},
        {"version 1\r\nSpellingMarks\r\n", true, defaults},
        {"version 2\r\nSpellingMarks 0\r\n", true, defaults},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        fixture.PutExeFile("Tolmira.ini", "damaged");
        if (c.Text != nullptr) {
            fixture.PutExeFile("Preferences.ini", c.Text);
        }
        LoadSettings(fixture.App);
        EXPECT_EQ(fixture.App.UserPreferences.SpellingMarks, c.SpellingMarks) << c.Text;
        EXPECT_EQ(fixture.ExeFile("Preferences.ini"), c.Saved) << c.Text;
        EXPECT_TRUE(fixture.Windows.Boxes.empty());
    }
}

// Out-of-range values are used as they stand; the field reader's own tests cover every spacing.
TEST(SettingsFiles, ReadTheSameInAnySpacingOrSeparator) {
    const std::vector<int> expected{2, 3, 1, 0, 1, 0, 1, 1, 2, 14, 99, 1};
    AppFixture outOfRange;
    outOfRange.PutExeFile("Tolmira.ini",
                          " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n 7 \r\n 21  0 \r\n 0");
    LoadSettings(outOfRange.App);
    EXPECT_EQ(Values(outOfRange.App.UserSettings),
              (std::vector<int>{1, 1, 0, 0, 0, 0, 1, 1, 7, 21, 0, 0}));
    const char* const forms[] = {
        " 2 \r\n 3 \r\n 1  0  1  0 \r\n 1  1 \r\n 2 \r\n 14  99 \r\n 1 \r\n",
        "2,3,1,0,1,0,1,1,2,14,99,1\r\n",
        "  2 ,\t3\r\n\r\n1 0,1 0\r\n1,1\r\n2\r\n14 , 99\r\n1",
    };
    for (const char* form : forms) {
        AppFixture fixture;
        fixture.PutExeFile("Tolmira.ini", form);
        LoadSettings(fixture.App);
        EXPECT_EQ(Values(fixture.App.UserSettings), expected) << form;
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), form) << "a readable file is not rewritten";
    }
}

TEST(SettingsFiles, DamagedFileRepairsItselfWithDefaultsAndScreenOption) {
    struct Case {
        const char* Text; // nullptr: no file
        int ScreenPixels;
        int DisplayOption;
    };
    const Case cases[] = {
        // Six lines: GuestMode is missing, so every value read so far is dropped too.
        {" 2 \r\n 3 \r\n 1  1  1  1 \r\n 1  1 \r\n 3 \r\n 5  6 \r\n", 1024, 1},
        {nullptr, 799, 0},
        {nullptr, 800, 1},
        {nullptr, 1279, 1},
        {nullptr, 1280, 2},
        {" 2 \r\n x \r\n 0  0  0  0 \r\n 1  1 \r\n 1 \r\n 21  30 \r\n 0 \r\n", 1920, 2},
        {" 2 \r\n 40000 \r\n 0  0  0  0 \r\n 1  1 \r\n 1 \r\n 21  30 \r\n 0 \r\n", 1920, 2},
        {"", 1920, 2},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        if (c.Text != nullptr) {
            fixture.PutExeFile("Tolmira.ini", c.Text);
        }
        fixture.Windows.ScreenWidth = c.ScreenPixels * TwipsPerPixel;
        LoadSettings(fixture.App);
        const std::vector<int> expected{1, 1, 0, 0, 0, 0, 1, 1, c.DisplayOption, 21, 30, 0};
        EXPECT_EQ(Values(fixture.App.UserSettings), expected) << c.ScreenPixels;
        const std::string option = std::to_string(c.DisplayOption);
        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), " 1 \r\n 1 \r\n 0  0  0  0 \r\n 1  1 \r\n " +
                                                      option + " \r\n 21  30 \r\n 0 \r\n");
        EXPECT_TRUE(fixture.Windows.Boxes.empty()) << "the repair is silent";
    }
}

TEST(SettingsFiles, SavedFilesReadBackAndDefaultsLookAsDocumented) {
    AppFixture fixture;
    fixture.App.UserSettings = Settings{};
    SaveSettings(fixture.App);
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), DefaultFileOnMiddleScreen);

    fixture.App.UserSettings.WindowMode = PerLibrary<std::int16_t>({1, 0, 1, 1});
    fixture.App.UserSettings.MaxLibraryDays = -3;
    SaveSettings(fixture.App);
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"),
              " 1 \r\n 1 \r\n 1  0  1  1 \r\n 1  1 \r\n 1 \r\n-3  30 \r\n 0 \r\n");
    const Settings saved = fixture.App.UserSettings;
    fixture.App.UserSettings = Settings{};
    LoadSettings(fixture.App);
    EXPECT_EQ(Values(fixture.App.UserSettings), Values(saved));

    // A negative mark is written with its minus sign.
    ReadSettings& read = fixture.App.ReaderSettings;
    read.OpenFlags[LibraryId::Information] = OpenFlag::Marked;
    read.MarkRows[LibraryId::Information] = 12;
    read.MarkRows[LibraryId::Dialogue] = -1;
    read.MarkRows[LibraryId::Advanced] = -250;
    SaveReadSettings(fixture.App);
    EXPECT_EQ(fixture.ExeFile("Read.ini"), " 1  12 \r\n 0 -1 \r\n 0  0 \r\n 0 -250 \r\n");
}

TEST(SettingsFiles, SavingReplacesTheFileWholeInsteadOfWritingIntoIt) {
    // A second name for the old file keeps seeing the old bytes only if the new text went to a
    // new file that was renamed over it; a crash midway then leaves the old file intact.
    AppFixture fixture;
    fixture.PutExeFile("Tolmira.ini", "old settings");
    fixture.PutExeFile("Read.ini", "old positions");
    std::filesystem::create_hard_link(fixture.Folder.Exe() / "Tolmira.ini",
                                      fixture.Temp / "Tolmira.old");
    std::filesystem::create_hard_link(fixture.Folder.Exe() / "Read.ini", fixture.Temp / "Read.old");
    SaveSettings(fixture.App);
    SaveReadSettings(fixture.App);
    EXPECT_EQ(ReadWholeFile(fixture.Temp / "Tolmira.old"), "old settings");
    EXPECT_EQ(ReadWholeFile(fixture.Temp / "Read.old"), "old positions");
    EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), DefaultFileOnMiddleScreen);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(fixture.Folder.Exe()),
                            std::filesystem::directory_iterator()),
              3)
        << "no temporary file is left behind beside the two files and Preferences.ini";
}

TEST(SettingsFiles, ReadFlagsKeepTheRequestMadeInMemory) {
    struct Case {
        OpenFlag Requested;
        OpenFlag InFile;
        OpenFlag Result;
    };
    using enum OpenFlag;
    const Case cases[] = {{Marked, None, Marked},
                          {None, None, None},
                          {None, Marked, Marked},
                          {Marked, Requested, Requested}};
    for (const Case& c : cases) {
        AppFixture fixture;
        const std::string flag = std::to_string(static_cast<int>(c.InFile));
        fixture.PutExeFile("Read.ini",
                           flag + " 5\r\n" + flag + " -1\r\n" + flag + " 7\r\n" + flag + " 8\r\n");
        ReadSettings& read = fixture.App.ReaderSettings;
        read.OpenFlags[LibraryId::Information] = read.OpenFlags[LibraryId::Dialogue] =
            read.OpenFlags[LibraryId::Knowledge] = read.OpenFlags[LibraryId::Advanced] =
                c.Requested;
        read.MarkRows[LibraryId::Information] = 99;
        LoadReadSettings(fixture.App);
        for (const OpenFlag value :
             {read.OpenFlags[LibraryId::Information], read.OpenFlags[LibraryId::Dialogue],
              read.OpenFlags[LibraryId::Knowledge], read.OpenFlags[LibraryId::Advanced]}) {
            EXPECT_EQ(value, c.Result) << flag;
        }
        EXPECT_EQ(read.MarkRows[LibraryId::Information], 5);
        EXPECT_EQ(read.MarkRows[LibraryId::Dialogue], -1);
        EXPECT_EQ(read.MarkRows[LibraryId::Knowledge], 7);
        EXPECT_EQ(read.MarkRows[LibraryId::Advanced], 8);
    }
}

TEST(SettingsFiles, DamagedReadFileIsLaidDownAsZerosAndTheRequestStands) {
    for (const char* text :
         {static_cast<const char*>(nullptr), "1 2 3", "1 2 3 4 5 6 7 x", "3 5 0 -1 0 7 0 8"}) {
        AppFixture fixture;
        if (text != nullptr) {
            fixture.PutExeFile("Read.ini", text);
        }
        fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge] = OpenFlag::Marked;
        fixture.App.ReaderSettings.MarkRows[LibraryId::Knowledge] = 40;
        LoadReadSettings(fixture.App);
        EXPECT_EQ(fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge], OpenFlag::Marked);
        EXPECT_EQ(fixture.App.ReaderSettings.MarkRows[LibraryId::Knowledge], 0);
        EXPECT_EQ(fixture.App.ReaderSettings.OpenFlags[LibraryId::Information], OpenFlag::None);
        EXPECT_EQ(fixture.ExeFile("Read.ini"), " 0  0 \r\n 0  0 \r\n 0  0 \r\n 0  0 \r\n");
        EXPECT_TRUE(fixture.Windows.Boxes.empty());
    }
}

// Read.ini is not worth the running Dialogue: when it cannot be written, a box says so and the
// program goes on.
TEST(SettingsFiles, AReadFileThatCannotBeWrittenIsToldAndTheProgramGoesOn) {
    AppFixture fixture;
    std::filesystem::create_directories(fixture.Folder.Exe() / "Read.ini");
    LoadReadSettings(fixture.App);
    SaveReadSettings(fixture.App);
    ASSERT_EQ(fixture.Windows.Boxes.size(), 2u);
    EXPECT_EQ(fixture.Windows.Boxes[1].Title, "Error 75 Storing the Library Places");
}

// A pipe would hold the start for ever and a device would fill the memory; a file past the
// limit is no file the program wrote. Each is damaged, and the usual repair or box follows.
TEST(SettingsFiles, OnlyASmallRegularFileIsRead) {
    struct Case {
        const char* Kind;
        int Error; // in the font box
    };
    const Case cases[] = {{"pipe", 75}, {"device", 75}, {"oversized", 7}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Kind);
        AppFixture fixture;
        for (const char* name : {"Tolmira.ini", "Read.ini", "Qdrfonts.ini"}) {
            const auto path = fixture.Folder.Exe() / name;
            if (c.Kind == std::string("pipe")) {
                ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
            } else if (c.Kind == std::string("device")) {
                std::filesystem::create_symlink("/dev/zero", path);
            } else {
                fixture.PutExeFile(name,
                                   " 2 \r\n 3 \r\n 1  1  1  1 \r\n 1  1 \r\n 2 \r\n 5  6 \r\n 1" +
                                       std::string(70000, ' '));
            }
        }
        fixture.Windows.ScreenWidth = 1024 * TwipsPerPixel;
        LoadSettings(fixture.App);
        fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge] = OpenFlag::Marked;
        LoadReadSettings(fixture.App);
        LoadFontNames(fixture.App);

        EXPECT_EQ(fixture.ExeFile("Tolmira.ini"), DefaultFileOnMiddleScreen);
        EXPECT_TRUE(std::filesystem::is_regular_file(
            std::filesystem::symlink_status(fixture.Folder.Exe() / "Tolmira.ini")));
        EXPECT_EQ(fixture.ExeFile("Read.ini"), " 0  0 \r\n 0  0 \r\n 0  0 \r\n 0  0 \r\n");
        EXPECT_EQ(fixture.App.ReaderSettings.OpenFlags[LibraryId::Knowledge], OpenFlag::Marked);
        ASSERT_EQ(fixture.Windows.Boxes.size(), 1u);
        EXPECT_EQ(fixture.Windows.Boxes[0].Title,
                  "Error " + std::to_string(c.Error) + " Loading Font Names");
    }
}

// The font table reads as text values; a broken or missing one is reported and the installed
// faces stand in.
TEST(SettingsFiles, FontNamesReadAsTextValuesAndABrokenTableIsReported) {
    struct Case {
        const char* Text; // nullptr: no file
        bool TimesInstalled;
        int Error; // 0: no box
        const char* Main;
        const char* Italic;
    };
    const Case cases[] = {
        {"Liberation Serif\r\nLiberation Serif Italic\r\n", false, 0, "Liberation Serif",
         "Liberation Serif Italic"},
        {"  Book Antiqua \r\n\"Book, Antiqua Italic\" x\r\n", false, 0, "Book Antiqua",
         "Book, Antiqua Italic"},
        {"Garamond\r\n", false, 62, "Liberation Serif", "Liberation Serif Italic"},
        {"Garamond\r\n", true, 62, "Times New Roman", "Times New Roman Italic"},
        {nullptr, false, 53, "Liberation Serif", "Liberation Serif Italic"},
    };
    for (const Case& c : cases) {
        AppFixture fixture;
        if (c.Text != nullptr) {
            fixture.PutExeFile("Qdrfonts.ini", c.Text);
        }
        if (!c.TimesInstalled) {
            fixture.Windows.MissingFaces.insert("Times New Roman");
        }
        LoadFontNames(fixture.App);
        EXPECT_EQ(fixture.App.Fonts.Main + "/" + fixture.App.Fonts.Italic,
                  std::string(c.Main) + "/" + c.Italic);
        ASSERT_EQ(fixture.Windows.Boxes.size(), c.Error == 0 ? 0u : 1u);
        if (c.Error != 0) {
            const std::string n = std::to_string(c.Error);
            EXPECT_EQ(fixture.Windows.Boxes[0].Title, "Error " + n + " Loading Font Names");
            EXPECT_TRUE(fixture.Windows.Boxes[0].Text.starts_with(
                "Error " + n + " loading file " + (fixture.Folder.Exe() / "Qdrfonts.ini").string() +
                ". This file is either missing or corrupted."));
        }
    }
}

} // namespace
} // namespace veyrant::testing

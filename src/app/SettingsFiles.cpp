#include "app/SettingsFiles.h"

#include "app/FontCheck.h"
#include "app/PreferencesFile.h"
#include "core/Cp1252.h"
#include "core/FieldReader.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "core/WindowLayer.h"
#include "storage/StorageFailure.h"

#include <array>
#include <initializer_list>

namespace veyrant {

namespace {

// Far above the few values each file holds, even with blanks added by hand; a larger file is
// damaged.
constexpr std::size_t SettingsFileLimit = 64 * 1024;

std::string ReadSettingsFile(const std::filesystem::path& path) {
    return ReadWholeFile(path, SettingsFileLimit);
}
std::filesystem::path SettingsFileIn(const AppFolder& folder) {
    return folder.Exe() / "Tolmira.ini";
}
std::filesystem::path ReadFile(const Application& app) {
    return app.Folder.Exe() / "Read.ini";
}
std::filesystem::path FontFile(const Application& app) {
    return app.Folder.Exe() / "Qdrfonts.ini";
}

// A non-negative value is printed as a blank, its digits and a blank; a negative one as the
// minus sign, its digits and a blank.
template <typename Values>
std::string SettingsLine(const Values& values) {
    std::string line;
    for (const int value : values) {
        line += value < 0 ? "" : " ";
        line += std::to_string(value);
        line += ' ';
    }
    return line + "\r\n";
}

std::string SettingsLine(std::initializer_list<int> values) {
    return SettingsLine<std::initializer_list<int>>(values);
}

Settings ReadSettingsText(const std::string& text) {
    FieldReader reader(text);
    Settings values;
    values.WriteFontStep = reader.ReadInt16();
    values.ReaderFontStep = reader.ReadInt16();
    for (const LibraryId library : AllLibraries) {
        values.WindowMode[library] = reader.ReadInt16();
    }
    values.IntroDone = reader.ReadInt16();
    values.IntroDone2 = reader.ReadInt16();
    values.DisplayOption = reader.ReadInt16();
    values.MaxLibraryDays = reader.ReadInt16();
    values.MaxLibraryFiles = reader.ReadInt16();
    values.GuestMode = reader.ReadInt16();
    return values;
}

// Read.ini holds one line of open flag and mark for each library, in this order.
constexpr std::array<LibraryId, 4> ReadFileOrder{LibraryId::Information, LibraryId::Dialogue,
                                                 LibraryId::Knowledge, LibraryId::Advanced};

// A number that is no open flag makes the file damaged.
OpenFlag OpenFlagFromNumber(std::int16_t number) {
    for (const OpenFlag flag : {OpenFlag::None, OpenFlag::Marked, OpenFlag::Requested}) {
        if (static_cast<std::int16_t>(flag) == number) {
            return flag;
        }
    }
    throw ProgramError(ErrorNumber::TypeMismatch);
}

ReadSettings ReadReaderText(const std::string& text) {
    FieldReader reader(text);
    ReadSettings values;
    for (const LibraryId library : ReadFileOrder) {
        values.OpenFlags[library] = OpenFlagFromNumber(reader.ReadInt16());
        values.MarkRows[library] = reader.ReadInt16();
    }
    return values;
}

} // namespace

std::filesystem::path SettingsFile(const Application& app) {
    return SettingsFileIn(app.Folder);
}

bool InGuestMode(const AppFolder& folder) {
    try {
        return ReadSettingsText(ReadSettingsFile(SettingsFileIn(folder))).GuestMode == 1;
    } catch (const ProgramError&) {
        return false;
    }
}

void LoadSettings(Application& app) {
    // First, so that the repair below writes back the choices read, not the defaults.
    LoadPreferences(app);
    try {
        app.UserSettings = ReadSettingsText(ReadSettingsFile(SettingsFile(app)));
    } catch (const ProgramError&) {
        app.UserSettings = Settings{};
        app.UserSettings.DisplayOption =
            static_cast<std::int16_t>(DisplayOptionForScreen(app.Windows.ScreenWidthTwips()));
        SaveSettings(app);
    }
}

void SaveSettings(const Application& app) {
    const Settings& s = app.UserSettings;
    WriteWholeFile(SettingsFile(app),
                   SettingsLine({s.WriteFontStep}) + SettingsLine({s.ReaderFontStep}) +
                       SettingsLine(s.WindowMode) + SettingsLine({s.IntroDone, s.IntroDone2}) +
                       SettingsLine({s.DisplayOption}) +
                       SettingsLine({s.MaxLibraryDays, s.MaxLibraryFiles}) +
                       SettingsLine({s.GuestMode}));
    SavePreferences(app);
}

void LoadReadSettings(Application& app) {
    const ReadSettings requested = app.ReaderSettings;
    try {
        app.ReaderSettings = ReadReaderText(ReadSettingsFile(ReadFile(app)));
    } catch (const ProgramError&) {
        app.ReaderSettings = ReadSettings{};
        SaveReadSettings(app);
    }
    // A flag the file leaves unset does not cancel a request made in memory.
    for (const LibraryId library : AllLibraries) {
        OpenFlag& flag = app.ReaderSettings.OpenFlags[library];
        if (flag == OpenFlag::None) {
            flag = requested.OpenFlags[library];
        }
    }
}

void SaveReadSettings(const Application& app) {
    const ReadSettings& r = app.ReaderSettings;
    std::string text;
    for (const LibraryId library : ReadFileOrder) {
        text +=
            SettingsLine({static_cast<std::int16_t>(r.OpenFlags[library]), r.MarkRows[library]});
    }
    try {
        WriteWholeFile(ReadFile(app), text);
    } catch (const ProgramError& error) {
        // The marked places are not worth the running Dialogue: the user is told, and goes on.
        app.Windows.ShowMessage(PlacesFailureBox(error.Number(), ReadFile(app)));
    }
}

void LoadFontNames(Application& app) {
    try {
        const std::string text = ReadSettingsFile(FontFile(app));
        FieldReader reader(text);
        FontNames names;
        names.Main = reader.ReadString();
        names.Italic = reader.ReadString();
        app.Fonts = names;
    } catch (const ProgramError& error) {
        const std::string number = std::to_string(error.Number());
        const auto path = Utf8ToCp1252(FontFile(app).string());
        app.Windows.ShowMessage(
            {"Error " + number + " Loading Font Names",
             "Error " + number + " loading file " + path.Text +
                 ". This file is either missing or corrupted.\r\n\r\nTo correct this problem, you "
                 "must re-install the Veyrant Sagrel. For now, a workaround will be attempted by "
                 "the program. If it does not work, then you must repair the font installation "
                 "to open the Veyrant Sagrel.",
             MessageIcon::Warning, MessageButtons::Ok, 1});
        app.Fonts = InstalledFaceNames(app.Windows);
    }
}

} // namespace veyrant

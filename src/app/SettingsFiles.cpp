#include "app/SettingsFiles.h"

#include "app/FontCheck.h"
#include "app/PreferencesFile.h"
#include "core/Cp1252.h"
#include "core/FieldReader.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "core/WindowLayer.h"
#include "storage/StorageFailure.h"

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
std::string SettingsLine(std::initializer_list<int> values) {
    std::string line;
    for (const int value : values) {
        line += value < 0 ? "" : " ";
        line += std::to_string(value);
        line += ' ';
    }
    return line + "\r\n";
}

Settings ReadSettingsText(const std::string& text) {
    FieldReader reader(text);
    Settings values;
    values.WriteFontStep = reader.ReadInt16();
    values.ReaderFontStep = reader.ReadInt16();
    for (int library = 1; library <= 4; ++library) {
        values.WindowMode[static_cast<std::size_t>(library)] = reader.ReadInt16();
    }
    values.IntroDone = reader.ReadInt16();
    values.IntroDone2 = reader.ReadInt16();
    values.DisplayOption = reader.ReadInt16();
    values.MaxLibraryDays = reader.ReadInt16();
    values.MaxLibraryFiles = reader.ReadInt16();
    values.GuestMode = reader.ReadInt16();
    return values;
}

ReadSettings ReadReaderText(const std::string& text) {
    FieldReader reader(text);
    ReadSettings values;
    values.OpenFlagInfo = reader.ReadInt16();
    values.MarkRowInfo = reader.ReadInt16();
    values.OpenFlagDialogue = reader.ReadInt16();
    values.MarkRowDialogue = reader.ReadInt16();
    values.OpenFlagKnow = reader.ReadInt16();
    values.MarkRowKnow = reader.ReadInt16();
    values.OpenFlagAdv = reader.ReadInt16();
    values.MarkRowAdv = reader.ReadInt16();
    return values;
}

// A flag the file leaves at 0 does not cancel a request made in memory.
void KeepRequest(std::int16_t& flag, std::int16_t requested) {
    if (flag == 0) {
        flag = requested;
    }
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
    WriteWholeFile(
        SettingsFile(app),
        SettingsLine({s.WriteFontStep}) + SettingsLine({s.ReaderFontStep}) +
            SettingsLine({s.WindowMode[1], s.WindowMode[2], s.WindowMode[3], s.WindowMode[4]}) +
            SettingsLine({s.IntroDone, s.IntroDone2}) + SettingsLine({s.DisplayOption}) +
            SettingsLine({s.MaxLibraryDays, s.MaxLibraryFiles}) + SettingsLine({s.GuestMode}));
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
    ReadSettings& read = app.ReaderSettings;
    KeepRequest(read.OpenFlagInfo, requested.OpenFlagInfo);
    KeepRequest(read.OpenFlagKnow, requested.OpenFlagKnow);
    KeepRequest(read.OpenFlagDialogue, requested.OpenFlagDialogue);
    KeepRequest(read.OpenFlagAdv, requested.OpenFlagAdv);
}

void SaveReadSettings(const Application& app) {
    const ReadSettings& r = app.ReaderSettings;
    try {
        WriteWholeFile(ReadFile(app), SettingsLine({r.OpenFlagInfo, r.MarkRowInfo}) +
                                          SettingsLine({r.OpenFlagDialogue, r.MarkRowDialogue}) +
                                          SettingsLine({r.OpenFlagKnow, r.MarkRowKnow}) +
                                          SettingsLine({r.OpenFlagAdv, r.MarkRowAdv}));
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

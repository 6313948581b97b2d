#include "app/PreferencesFile.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace veyrant {

namespace {

constexpr std::string_view VersionLine = "version 1";
constexpr std::string_view SpellingMarksKey = "SpellingMarks";
// Far above the few choices the file holds; a larger file is damaged.
constexpr std::size_t PreferencesFileLimit = 64 * 1024;

std::optional<bool> ReadFlag(std::string_view value) {
    if (value == "0" || value == "1") {
        return value == "1";
    }
    return std::nullopt;
}

// Nothing when the file is damaged: no version line, a line with no value, a value out of range.
std::optional<Preferences> ReadPreferencesText(std::string_view text) {
    Preferences values;
    bool versionSeen = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        if (!versionSeen) {
            if (line != VersionLine) {
                return std::nullopt;
            }
            versionSeen = true;
            continue;
        }
        if (line.empty()) {
            continue;
        }
        const std::size_t blank = line.find(' ');
        if (blank == 0 || blank == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view key = line.substr(0, blank);
        const std::string_view value = line.substr(blank + 1);
        if (key == SpellingMarksKey) {
            const auto flag = ReadFlag(value);
            if (!flag) {
                return std::nullopt;
            }
            values.SpellingMarks = *flag;
        } else {
            values.OtherValues.emplace_back(key, value);
        }
    }
    if (!versionSeen) {
        return std::nullopt;
    }
    return values;
}

std::string PreferencesLine(std::string_view key, std::string_view value) {
    std::string line(key);
    line += ' ';
    line += value;
    line += CrLf;
    return line;
}

} // namespace

std::filesystem::path PreferencesFile(const Application& app) {
    return app.Folder.Exe() / "Preferences.ini";
}

std::filesystem::path PersonalWordsFile(const Application& app) {
    return app.Folder.Exe() / "Words.txt";
}

void LoadPreferences(Application& app) {
    std::optional<Preferences> read;
    try {
        read = ReadPreferencesText(ReadWholeFile(PreferencesFile(app), PreferencesFileLimit));
    } catch (const ProgramError&) {
    }
    if (read) {
        app.UserPreferences = *read;
        return;
    }
    app.UserPreferences = Preferences{};
    SavePreferences(app);
}

void SavePreferences(const Application& app) {
    const Preferences& p = app.UserPreferences;
    std::string text(VersionLine);
    text += CrLf;
    text += PreferencesLine(SpellingMarksKey, p.SpellingMarks ? "1" : "0");
    for (const auto& [key, value] : p.OtherValues) {
        text += PreferencesLine(key, value);
    }
    WriteWholeFile(PreferencesFile(app), text);
}

} // namespace veyrant

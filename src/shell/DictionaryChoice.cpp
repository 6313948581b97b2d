#include "shell/DictionaryChoice.h"

#include <algorithm>
#include <system_error>

namespace veyrant {

namespace {

constexpr std::string_view FallbackDictionary = "en_US";

// "de_AT.UTF-8@euro" is de_AT; "C" and "POSIX" name no language.
std::string LocaleName(std::string_view locale) {
    const std::string_view name = locale.substr(0, locale.find_first_of(".@"));
    if (name == "C" || name == "POSIX") {
        return {};
    }
    return std::string(name);
}

} // namespace

std::vector<std::string> DictionaryNames(std::string_view lcAll, std::string_view lcMessages,
                                         std::string_view lang) {
    std::string name;
    for (const std::string_view locale : {lcAll, lcMessages, lang}) {
        if (!locale.empty()) {
            name = LocaleName(locale);
            break;
        }
    }
    std::vector<std::string> names;
    if (!name.empty()) {
        names.push_back(name);
        if (const auto country = name.find('_'); country != std::string::npos) {
            names.push_back(name.substr(0, country));
        }
    }
    if (std::find(names.begin(), names.end(), FallbackDictionary) == names.end()) {
        names.emplace_back(FallbackDictionary);
    }
    return names;
}

std::optional<DictionaryFiles> FindDictionary(const std::filesystem::path& folder,
                                              const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        // A name from the environment must not lead out of the folder.
        if (name.find('/') != std::string::npos) {
            continue;
        }
        DictionaryFiles files{folder / (name + ".aff"), folder / (name + ".dic")};
        std::error_code error;
        if (std::filesystem::is_regular_file(files.Affixes, error) &&
            std::filesystem::is_regular_file(files.Words, error)) {
            return files;
        }
    }
    return std::nullopt;
}

} // namespace veyrant

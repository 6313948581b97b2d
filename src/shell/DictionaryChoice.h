#pragma once

// Which installed dictionary the spelling marks use: the one of the user's language where the
// machine has it, else American English.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

// Where Debian's hunspell dictionaries are installed.
inline const std::filesystem::path SystemDictionaryFolder = "/usr/share/hunspell";

// The dictionary names to try, best first, for the locale variables LC_ALL, LC_MESSAGES and LANG
// (the first one set decides, as for messages): "de_AT.UTF-8" gives de_AT, de, en_US.
std::vector<std::string> DictionaryNames(std::string_view lcAll, std::string_view lcMessages,
                                         std::string_view lang);

struct DictionaryFiles {
    std::filesystem::path Affixes; // name.aff
    std::filesystem::path Words;   // name.dic
};

// The first name whose two files are both in the folder.
std::optional<DictionaryFiles> FindDictionary(const std::filesystem::path& folder,
                                              const std::vector<std::string>& names);

} // namespace veyrant

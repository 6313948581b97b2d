#include "storage/SavedDialogues.h"

#include "core/FileOperations.h"
#include "storage/DialogueFile.h"
#include "storage/LibraryFileName.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace veyrant {

std::vector<std::string> ListedDialogueNames(const std::filesystem::path& inspirations) {
    std::error_code unreadable;
    if (!std::filesystem::exists(inspirations, unreadable)) {
        return {};
    }
    std::vector<std::string> names;
    for (auto& name : ListFiles(inspirations)) {
        if (name.front() != '.') {
            names.push_back(std::move(name));
        }
    }
    return names;
}

// Each key read once, ranked latest first so that equal keys leave the one listed first at the
// higher rank; a name whose key is not above 0 ranks below every dated one, in listing order.
std::vector<std::string> RankByDate(const std::vector<std::string>& names) {
    std::vector<std::pair<double, std::size_t>> keys;
    keys.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const double key = SortKey(names[i]);
        keys.emplace_back(key > 0 ? key : 0, i);
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<std::string> ranked;
    ranked.reserve(names.size());
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        ranked.push_back(names[key->second]);
    }
    return ranked;
}

SavedDialogue ReadSavedDialogue(const AppFolder& folder, const std::string& fileName) {
    SavedDialogue saved;
    saved.FileName = fileName;
    saved.Date = FileDateValue(ParseFileName(fileName).FileDateText);
    saved.Inspiration = DialogueFile::SavedInspiration(folder, fileName).Read();
    saved.Dialogue = DialogueFile::SavedDialogue(folder, fileName).Read();
    return saved;
}

} // namespace veyrant

#include "printing/SaveFolder.h"

#include <system_error>

namespace veyrant {

std::filesystem::path SaveFolder::Proposed(const std::filesystem::path& documents,
                                           const std::filesystem::path& home) const {
    std::error_code unreadable;
    for (const auto& folder : {last_, documents}) {
        if (!folder.empty() && std::filesystem::is_directory(folder, unreadable)) {
            return folder;
        }
    }
    return home;
}

void SaveFolder::Saved(const std::filesystem::path& file) {
    last_ = file.parent_path();
}

} // namespace veyrant

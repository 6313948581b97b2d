#pragma once

// Where Save As opens. A proposed folder that does not exist could not take the file, so the
// documents folder is proposed only where there is one; once the user has saved, the folder they
// chose, for the rest of the run.

#include <filesystem>

namespace veyrant {

class SaveFolder {
public:
    // The last folder saved into, while it exists; else the documents folder, while it exists;
    // else home.
    std::filesystem::path Proposed(const std::filesystem::path& documents,
                                   const std::filesystem::path& home) const;
    // A file was saved at this path.
    void Saved(const std::filesystem::path& file);

private:
    std::filesystem::path last_;
};

} // namespace veyrant

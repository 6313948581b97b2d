#pragma once

// The user's trash, kept as the desktop's file managers keep it: files/ holds what was deleted,
// and info/ holds for each a NAME.trashinfo with the place it came from and when it was deleted,
// from which a file manager shows it and puts it back.

#include "core/DateTime.h"

#include <filesystem>
#include <string>

namespace veyrant {

struct TrashPlace {
    std::filesystem::path Trashed; // where the file goes, in files/
    std::filesystem::path Info;    // its .trashinfo, written already
};

// Takes the first free name for the file in the trash, the file's own name first, and writes its
// .trashinfo with the deletion date given. Raises ProgramError, leaving nothing behind, when the
// trash cannot take the file: its folders cannot be made or written, or it is on another disk
// than the file, where the move would be a copy.
TrashPlace ClaimTrashPlace(const std::filesystem::path& trash, const std::filesystem::path& file,
                           const DateTime& deleted);

// The .trashinfo of a place in files/.
std::filesystem::path TrashInfoPath(const std::filesystem::path& trashed);

// The path as a trashinfo file writes it: every byte but the unreserved ones and "/" as %XX.
std::string PercentEncoded(const std::string& path);

} // namespace veyrant

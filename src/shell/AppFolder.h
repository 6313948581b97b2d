#pragma once

// The application folder: one fixed root under the XDG data home, holding exe/, dlg/ and isp/.
// Every file of the program is this root plus a fixed relative name.

#include "core/SecretKey.h"

#include <filesystem>
#include <memory>

namespace veyrant {

struct AppFolder {
    std::filesystem::path Root;
    // The user's trash, where deleted Dialogues go; when none is named, one of the folder's own.
    std::filesystem::path TrashHome = {};
    // The key that seals the Dialogues while the Library is locked and open; none when the
    // Library is plain.
    std::shared_ptr<const SecretKey> Key = {};

    std::filesystem::path Exe() const { return Root / "exe"; }
    std::filesystem::path Dlg() const { return Root / "dlg"; }
    std::filesystem::path Isp() const { return Root / "isp"; }
    std::filesystem::path Trash() const { return TrashHome.empty() ? Root / "Trash" : TrashHome; }

    // $XDG_DATA_HOME/veyrant-sagrel, or ~/.local/share/veyrant-sagrel when it is unset or not
    // absolute, as the XDG rules say; the trash is Trash beside it, the desktop's own.
    static AppFolder FromEnvironment();
};

} // namespace veyrant

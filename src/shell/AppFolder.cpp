#include "shell/AppFolder.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace veyrant {

namespace {

std::filesystem::path HomeFolder() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return home;
    }
    if (const passwd* entry = ::getpwuid(::getuid());
        entry != nullptr && entry->pw_dir != nullptr) {
        return entry->pw_dir;
    }
    return "/tmp";
}

} // namespace

AppFolder AppFolder::FromEnvironment() {
    std::filesystem::path dataHome;
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && xdg[0] == '/') {
        dataHome = xdg;
    } else {
        dataHome = HomeFolder() / ".local" / "share";
    }
    return AppFolder{dataHome / "veyrant-sagrel", dataHome / "Trash"};
}

} // namespace veyrant

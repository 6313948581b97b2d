#include "app/FirstRun.h"

#include "app/FontCheck.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "engine/EngineFiles.h"

#include <system_error>

namespace veyrant {

namespace {

void MakeFolder(const std::filesystem::path& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) {
        throw ProgramError(ErrorNumberFor(error));
    }
}

} // namespace

void InstallAppFolder(const AppFolder& folder, const WindowLayer& windows) {
    MakeFolder(folder.Exe());
    MakeFolder(folder.Dlg());
    MakeFolder(folder.Isp());
    const auto fontFile = folder.Exe() / "Qdrfonts.ini";
    std::error_code error;
    if (!std::filesystem::exists(fontFile, error)) {
        const FontNames faces = InstalledFaceNames(windows);
        WriteWholeFile(fontFile, faces.Main + "\r\n" + faces.Italic + "\r\n");
    }
    // The engine files come from the program's image, as an installer would lay them down.
    InstallEngineFiles(folder);
}

} // namespace veyrant

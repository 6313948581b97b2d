#include "app/FirstRun.h"

#include "app/FontCheck.h"
#include "app/InstallFailure.h"
#include "core/FileCallError.h"
#include "core/FileCalls.h"
#include "core/FileOperations.h"
#include "core/WholeFile.h"
#include "engine/EngineFiles.h"
#include "storage/FileTransaction.h"

#include <system_error>

namespace veyrant {

namespace {

// Another account on this machine must not read the user's Dialogues, whatever rights an earlier
// version left on the folders and their files.
void NarrowToUser(const std::filesystem::path& folder) {
    if (files::Narrow(folder, PrivateFolderRights) != 0) {
        RaiseFromErrno();
    }
    for (const auto& name : ListFiles(folder)) {
        if (files::Narrow(folder / name, PrivateFileRights) != 0) {
            RaiseFromErrno();
        }
    }
}

} // namespace

void InstallAppFolder(const AppFolder& folder, WindowLayer& windows) {
    // The folder each step works in, for the box when the disk refuses.
    std::filesystem::path at = folder.Root;
    try {
        for (const auto& path : {folder.Exe(), folder.Dlg(), folder.Isp()}) {
            at = path;
            MakeFolder(path);
        }
        for (const auto& path : {folder.Root, folder.Exe(), folder.Dlg(), folder.Isp()}) {
            at = path;
            NarrowToUser(path);
        }
        at = folder.Root;
        try {
            FinishInterruptedChanges(folder);
        } catch (const UnfinishedChange& change) {
            // The Dialogues stand as the change left them and the note waits for a later start:
            // nothing stops the user from writing.
            windows.ShowMessage(UnfinishedChangeBox(change.Cause(), change.File()));
        }
        at = folder.Exe();
        const auto fontFile = folder.Exe() / "Qdrfonts.ini";
        std::error_code error;
        if (!std::filesystem::exists(fontFile, error)) {
            const FontNames faces = InstalledFaceNames(windows);
            WriteWholeFile(fontFile, faces.Main + "\r\n" + faces.Italic + "\r\n");
        }
        // The engine files come from the program's image, as an installer would lay them down.
        InstallEngineFiles(folder);
    } catch (const FileCallError& error) {
        throw InstallFailure(error.Number(), error.Cause(), FailedFolder(at));
    }
}

} // namespace veyrant

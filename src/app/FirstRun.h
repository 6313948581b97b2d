#pragma once

// Every start lays the application folder down as an installer would: exe/, dlg/ and isp/,
// and in exe/ the font table naming the faces this machine has and the engine's two data files.
// A font table already there is left alone, so the user's own corrections survive; the engine
// files are laid down again only when a newer build ships different ones. The folders are the
// user's alone (rights an earlier version left wider are narrowed), and a change of the files
// that a crash cut short is finished or cleared before anything reads them.

#include "core/WindowLayer.h"
#include "shell/AppFolder.h"

namespace veyrant {

// Raises InstallFailure when the disk refuses a folder or a file, ProgramError otherwise. A
// change an earlier run could not finish is told in a box, and the start goes on.
void InstallAppFolder(const AppFolder& folder, WindowLayer& windows);

} // namespace veyrant

#pragma once

// The program's two faces, a roman and its italic. They are named in Qdrfonts.ini and proved at
// every start; a face the machine does not really have ends the program with a word on why.

#include "app/Application.h"
#include "core/WindowLayer.h"
#include "shell/Settings.h"

namespace veyrant {

// The named faces where this machine has them, otherwise Liberation Serif and its italic, which
// take the same room on the page.
FontNames InstalledFaceNames(const WindowLayer& windows);

// Reads the face names and tries both faces. Returns false when a face cannot be selected; the
// user has been told and the process has been ended.
bool CheckFonts(Application& app);

} // namespace veyrant

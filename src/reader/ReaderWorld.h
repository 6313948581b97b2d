#pragma once

// What the Read window's logic reaches of the program around it. The composition root fills it;
// the logic never sees the whole application, nor the Write window.

#include "core/Clock.h"
#include "core/WindowLayer.h"
#include "reader/FixedLibrary.h"
#include "reader/ReaderHost.h"
#include "reader/ReaderValues.h"
#include "shell/AppFolder.h"
#include "shell/Backdrop.h"
#include "shell/DisplayScale.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"

namespace veyrant {

struct ReaderWorld {
    const veyrant::Clock& Clock;
    WindowLayer& Windows;
    const DisplayScale& Scale;
    const FontNames& Fonts;
    const AppFolder& Folder;
    // The window modes, the font step and the Library's limits.
    Settings& UserSettings;
    // The open flags and marks of Read.ini.
    ReadSettings& Marks;
    ReaderValues& Values;
    const FixedLibraries& Libraries;
    DialogueLibrary& Library;
    Backdrop& Back;
    ReaderHost& Host;
};

} // namespace veyrant

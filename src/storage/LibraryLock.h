#pragma once

// Locking the Library with a passphrase, opening it, changing the passphrase and unlocking it.
// Turning the lock on or off rewrites every saved Dialogue and the work buffers, with the key
// file, as one change: a crash at any point leaves the Library all plain or all locked.

#include "core/WindowLayer.h"
#include "shell/AppFolder.h"
#include "storage/KeyFile.h"

#include <string_view>

namespace veyrant {

bool LibraryIsLocked(const AppFolder& folder);

// A file of the Library or a work buffer that is sealed while the key file is missing; the
// start then names the key file rather than begin anew.
bool SealedWithoutKey(const AppFolder& folder);

// Seals every file under a new key wrapped by the passphrase, and keeps the key open in the
// folder. Raises ProgramError, and then the Library is as it was.
void TurnLockOn(AppFolder& folder, std::string_view passphrase,
                StretchLimits limits = ModerateStretch());

// Writes every file of the open locked Library plain again and drops the key file. Raises
// ProgramError, and then the Library is as it was.
void TurnLockOff(AppFolder& folder);

// The same as a user asks for it: when the disk refuses, the program's box says so and nothing
// is lost. False then.
bool SwitchLock(AppFolder& folder, WindowLayer& windows, bool locking,
                std::string_view passphrase = {}, StretchLimits limits = ModerateStretch());

// Wraps the open key under another passphrase; the Dialogues are not rewritten.
void ChangePassphrase(const AppFolder& folder, std::string_view passphrase,
                      StretchLimits limits = ModerateStretch());

// Opens the key into the folder: false when the passphrase is not the Library's. Raises
// LockedFileError naming the key file when it is damaged or missing.
bool OpenLibrary(AppFolder& folder, std::string_view passphrase);

} // namespace veyrant

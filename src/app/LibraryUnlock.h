#pragma once

// At start, behind the banner and before the Write window: a locked Library is opened with the
// passphrase from the keyring, or else with the one the user types. A wrong passphrase is asked
// again; Cancel ends the program and changes nothing.

#include "app/PassphraseKeeper.h"
#include "core/WindowLayer.h"
#include "shell/AppFolder.h"

#include <functional>
#include <optional>
#include <string>

namespace veyrant {

// Asks for the passphrase with the given words; nothing when the user cancels.
using PassphraseQuestion = std::function<std::optional<std::string>(const std::string& prompt)>;

inline constexpr const char* UnlockPrompt =
    "The Dialogue Library is locked. Type its passphrase to open it.";
inline constexpr const char* WrongPassphrasePrompt =
    "That passphrase does not open the Library. Type it again.";

// True when the Library is open: plain, or locked and now unlocked. False when the user
// cancelled, or when the key file is damaged or missing (the box then names it).
bool OpenLockedLibrary(AppFolder& folder, WindowLayer& windows, PassphraseKeeper* keyring,
                       const PassphraseQuestion& ask);

} // namespace veyrant

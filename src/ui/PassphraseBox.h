#pragma once

// The box that asks for the passphrase of a locked Library at start.

#include <optional>
#include <string>

namespace veyrant {

// The typed passphrase, or nothing when the user cancels.
std::optional<std::string> AskPassphraseBox(const std::string& prompt);

} // namespace veyrant

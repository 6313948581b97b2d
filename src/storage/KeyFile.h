#pragma once

// The key file of the locked Library, exe/library.key: the random key that seals every file,
// itself sealed by a key stretched from the passphrase with Argon2id. Changing the passphrase
// rewrites this file alone. The file holds its own stretch limits, so that a stronger setting
// later still opens an older file.

#include "core/SecretKey.h"
#include "shell/AppFolder.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace veyrant {

struct StretchLimits {
    unsigned long long Passes = 0;
    std::size_t Memory = 0;
};

// Moderate: about half a second on a small machine of today, and 256 MiB that a guesser must
// spend on every guess.
StretchLimits ModerateStretch();

std::filesystem::path KeyFilePath(const AppFolder& folder);

// The key file's bytes holding the data key under the passphrase.
std::string WrapKey(const SecretKey& dataKey, std::string_view passphrase,
                    StretchLimits limits = ModerateStretch());

// The data key, or nothing when the passphrase is not the one the key was wrapped under; raises
// LockedFileError naming the file when it is missing, damaged or not a key file.
std::unique_ptr<SecretKey> UnwrapKey(const std::filesystem::path& keyFile,
                                     std::string_view passphrase);

} // namespace veyrant

#pragma once

// The sealed form of a file of the locked Library: a short header (a magic and a version), a
// random nonce, and the text encrypted and authenticated with XChaCha20-Poly1305. The file's own
// name is bound in with the header, so that a file moved to another name, or altered by one
// byte, does not open.

#include "core/SecretKey.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veyrant {

inline constexpr std::string_view EnvelopeMagic = "VSLE";
inline constexpr char EnvelopeVersion = 1;
// What an envelope adds to its text: the header, a nonce of 24 bytes and a tag of 16.
inline constexpr std::size_t EnvelopeOverhead = EnvelopeMagic.size() + 1 + 24 + 16;

// Whether the bytes begin as an envelope does, sound or not.
bool IsEnvelope(std::string_view bytes);

std::string Seal(const SecretKey& key, std::string_view name, std::string_view text);

// The text, or nothing when the envelope is damaged, of another name or of another key.
std::optional<std::string> Open(const SecretKey& key, std::string_view name,
                                std::string_view bytes);

} // namespace veyrant

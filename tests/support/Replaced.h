#pragma once

#include <string>

namespace veyrant::testing {

// The text with the first occurrence of from replaced: how a refusal case spoils good content.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    return text.replace(text.find(from), from.size(), to);
}

} // namespace veyrant::testing

#pragma once

// The Suggestions, compiled from data/suggestions.txt into the program's image. Entry 0 is
// empty and unused; each other is a heading, a line end, a tab and one or two sentences.

#include <span>
#include <string_view>

namespace veyrant {

std::span<const std::string_view> SuggestionTexts();

} // namespace veyrant

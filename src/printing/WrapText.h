#pragma once

// The program's own word wrap in the printer's body font: the page count must be known before
// the first page is drawn, so the printer cannot wrap for us.

#include "printing/PageDevice.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

inline constexpr std::size_t MaxPrintLines = 1000;

// Lines as they are printed: a tab becomes ten blanks, a line ends at a line feed or after the
// last blank or hyphen that fits, a word wider than the line is cut, trailing blanks go. At
// most MaxPrintLines lines. Leaves the device in the body font.
std::vector<std::string> WrapText(PageDevice& device, std::string_view text);

} // namespace veyrant

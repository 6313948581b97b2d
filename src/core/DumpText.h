#pragma once

// A window's text as one line of its Dump(): line ends and tabs made visible, in UTF-8.

#include <string>

namespace veyrant {

std::string DumpLine(const std::string& text);

} // namespace veyrant

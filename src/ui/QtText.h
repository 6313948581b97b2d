#pragma once

// The core's Windows-1252 texts as Qt shows them.

#include "core/Cp1252.h"

#include <QString>
#include <string>

namespace veyrant {

inline QString ToQt(const std::string& text) {
    return QString::fromStdU16String(Cp1252ToUtf16(text));
}

} // namespace veyrant

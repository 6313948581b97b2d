#pragma once

// The core's Windows-1252 texts as Qt shows them.

#include "core/Cp1252.h"

#include <QString>
#include <algorithm>
#include <string>

namespace veyrant {

// A CR LF pair is one line break on the screen.
inline QString ToQt(const std::string& text) {
    QString shown = QString::fromStdU16String(Cp1252ToUtf16(text));
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

// The logic counts CR LF as two characters where a text box holds one line break.
inline int BoxPosition(const std::string& text, long caret) {
    int position = 0;
    const long end = std::min<long>(caret, static_cast<long>(text.size()));
    for (long index = 0; index < end; ++index) {
        if (!(text[static_cast<std::size_t>(index)] == '\r' && index + 1 < end &&
              text[static_cast<std::size_t>(index + 1)] == '\n')) {
            ++position;
        }
    }
    return position;
}

} // namespace veyrant

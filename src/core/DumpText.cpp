#include "core/DumpText.h"

#include "core/Cp1252.h"

namespace veyrant {

std::string DumpLine(const std::string& text) {
    std::string shown;
    for (char c : text) {
        if (c == '\r') {
            continue;
        }
        if (c == '\n') {
            shown += " | ";
        } else if (c == '\t') {
            shown += "\\t";
        } else {
            shown += c;
        }
    }
    return Cp1252ToUtf8(shown);
}

} // namespace veyrant

#include "ContentSources.h"
#include "core/Cp1252.h"
#include "core/Text.h"

namespace veyrant::content {

std::vector<std::string> SourceLines(const std::string& fileName, std::string_view utf8) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start <= utf8.size()) {
        auto end = utf8.find('\n', start);
        if (end == std::string_view::npos) {
            end = utf8.size();
        }
        std::string_view line = utf8.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        const SourcePlace place{fileName, static_cast<int>(lines.size()) + 1};
        const Utf8Conversion converted = Utf8ToCp1252(line);
        if (!converted.Ok) {
            throw ContentError(place, "a character at byte " +
                                          std::to_string(converted.BadOffset + 1) +
                                          " has no Windows-1252 code");
        }
        std::string text = converted.Text;
        for (char& c : text) {
            if (c == '\t') {
                c = ' ';
            }
        }
        text = Trim(text);
        lines.push_back(!text.empty() && text.front() == '#' ? std::string() : text);
        if (end == utf8.size()) {
            break;
        }
        start = end + 1;
    }
    return lines;
}

} // namespace veyrant::content

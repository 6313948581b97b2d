#include "ContentSources.h"
#include "core/Cp1252.h"
#include "core/Text.h"

namespace veyrant::content {

std::vector<std::string> ExactSourceLines(const std::string& fileName, std::string_view utf8) {
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
        lines.push_back(converted.Text);
        if (end == utf8.size()) {
            break;
        }
        start = end + 1;
    }
    return lines;
}

std::vector<std::string> SourceLines(const std::string& fileName, std::string_view utf8) {
    std::vector<std::string> lines = ExactSourceLines(fileName, utf8);
    for (std::string& line : lines) {
        for (char& c : line) {
            if (c == '\t') {
                c = ' ';
            }
        }
        line = Trim(line);
        if (!line.empty() && line.front() == '#') {
            line.clear();
        }
    }
    return lines;
}

} // namespace veyrant::content

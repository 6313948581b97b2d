#include "printing/WrapText.h"

#include "core/Text.h"
#include "printing/PageGeometry.h"

#include <algorithm>
#include <array>
#include <optional>

namespace veyrant {

namespace {

constexpr int TabBlanks = 10;

// Measuring the line so far at every character is what the wrap costs. A line whose characters,
// measured one by one, come this far short of the width cannot reach it (kerning and ligatures
// narrow a line by far less), so only a line near the edge is measured whole.
constexpr double NearTheEdge = 0.9;

std::string ExpandTabs(std::string_view text) {
    std::string expanded;
    expanded.reserve(text.size());
    for (const char c : text) {
        if (c == Tab) {
            expanded.append(TabBlanks, ' ');
        } else {
            expanded.push_back(c);
        }
    }
    return expanded;
}

// Line ends inside a piece print as blanks, and blanks at its end are not printed.
std::string PrintedLine(std::string_view piece) {
    std::string line(piece);
    std::replace(line.begin(), line.end(), '\r', ' ');
    std::replace(line.begin(), line.end(), '\n', ' ');
    return RTrim(line);
}

} // namespace

std::vector<std::string> WrapText(PageDevice& device, std::string_view text) {
    using namespace PageGeometry;
    device.SetFont({BodyPoints, false, false});
    const double usable = PageWidth - device.TextWidth(std::string(WrapMarginBlanks, ' '));
    const std::string expanded = RTrim(ExpandTabs(text));
    const std::string_view all(expanded);

    std::vector<std::string> lines;
    std::size_t start = 0;
    // The last blank or hyphen of the present line, after which it may end.
    std::optional<std::size_t> candidate;
    // The line's characters measured one by one, each character once.
    double summed = 0;
    std::array<double, 256> charWidths{};
    charWidths.fill(-1);
    const auto charWidth = [&](char c) {
        double& width = charWidths[static_cast<unsigned char>(c == '\r' ? ' ' : c)];
        if (width < 0) {
            width = device.TextWidth(std::string(1, c == '\r' ? ' ' : c));
        }
        return width;
    };
    // Breaking inside a line's leading blanks would only print an empty line.
    bool wordSeen = false;
    const auto endLineBefore = [&](std::size_t end) {
        lines.push_back(PrintedLine(all.substr(start, end - start)));
        start = end;
        candidate.reset();
        wordSeen = false;
        summed = 0;
    };
    std::size_t i = 0;
    while (i < all.size() && lines.size() < MaxPrintLines) {
        const char c = all[i];
        if (c == '\n') {
            endLineBefore(i + 1);
            i = start;
            continue;
        }
        summed += charWidth(c);
        if (summed >= usable * NearTheEdge &&
            device.TextWidth(PrintedLine(all.substr(start, i + 1 - start))) >= usable) {
            // A word wider than the line is cut, keeping at least one character per line.
            endLineBefore(candidate ? *candidate + 1 : std::max(i, start + 1));
            i = start;
            continue;
        }
        if (i + 1 == all.size()) {
            endLineBefore(i + 1);
            break;
        }
        if ((c == ' ' || c == '-') && wordSeen) {
            candidate = i;
        }
        wordSeen = wordSeen || c != ' ';
        ++i;
    }
    return lines;
}

} // namespace veyrant

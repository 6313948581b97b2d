#include "LibrarySource.h"

#include "core/Text.h"

#include <algorithm>
#include <cctype>

namespace veyrant::content {

namespace {

constexpr int DeepestLevel = 2;

// "[1] Title" gives one tab and the title exactly as written, trailing blanks included.
bool IsTitleLine(const std::string& line) {
    return line.size() >= 4 && line[0] == '[' &&
           std::isdigit(static_cast<unsigned char>(line[1])) && line[2] == ']' && line[3] == ' ';
}

std::string ProgramTitle(const SourcePlace& place, const std::string& line) {
    const int level = line[1] - '0';
    if (level > DeepestLevel) {
        throw ContentError(place, "a title is marked [0], [1] or [2]");
    }
    return std::string(static_cast<std::size_t>(level), Tab) + line.substr(4);
}

bool IsBlank(const std::string& line) {
    return line.find_first_not_of(" \t") == std::string::npos;
}

bool IsComment(const std::string& line) {
    const auto first = line.find_first_not_of(" \t");
    return first != std::string::npos && line[first] == '#';
}

// One source line as a paragraph of the record: a tab, or two for an item, the text, CR LF.
std::string Paragraph(const SourcePlace& place, const std::string& line) {
    if (line.front() == ' ' || line.front() == Tab) {
        throw ContentError(place, "a paragraph begins with a blank or a tab; the program gives it "
                                  "its own tab");
    }
    std::string text = line;
    std::string lead(1, Tab);
    if (text.front() == '*') {
        if (text.size() < 3 || text[1] != ' ' || text[2] == ' ') {
            throw ContentError(place, "an item is written \"* \" and its text");
        }
        text.erase(0, 2);
        lead += Tab;
    }
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 32) {
            throw ContentError(place, "a paragraph holds a tab or a control character");
        }
    }
    return lead + text + std::string(CrLf);
}

struct CatalogueRow {
    std::string Title;
    SourcePlace Place;
};

std::vector<CatalogueRow> ReadCatalogue(const SourceFile& catalogue) {
    std::vector<CatalogueRow> rows;
    const auto lines = ExactSourceLines(catalogue.Name, catalogue.Utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SourcePlace place{catalogue.Name, static_cast<int>(i) + 1};
        if (IsBlank(lines[i])) {
            continue;
        }
        if (!IsTitleLine(lines[i])) {
            throw ContentError(place, "a catalogue line is a title marked [0], [1] or [2]");
        }
        rows.push_back({ProgramTitle(place, lines[i]), place});
    }
    return rows;
}

// A title as a message quotes it, without its tabs.
std::string Shown(const std::string& title) {
    const auto first = title.find_first_not_of(Tab);
    return "\"" + (first == std::string::npos ? "" : Trim(title.substr(first))) + "\"";
}

// A row is closed when the next title or the end comes: it must have a text within the width.
void CloseRow(const LibraryRowSource& row, int recordWidth) {
    if (row.Text.empty()) {
        throw ContentError(row.Place, "the row " + Shown(row.Title) + " has no text");
    }
    if (static_cast<int>(row.Text.size()) > recordWidth) {
        throw ContentError(row.Place, "the body of " + Shown(row.Title) + " holds " +
                                          std::to_string(row.Text.size()) +
                                          " characters, more than the library's width of " +
                                          std::to_string(recordWidth) +
                                          " (data/libraries/widths.txt)");
    }
}

} // namespace

std::map<std::string, int> ReadLibraryWidths(const SourceFile& widths) {
    std::map<std::string, int> found;
    const auto lines = SourceLines(widths.Name, widths.Utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SourcePlace place{widths.Name, static_cast<int>(i) + 1};
        if (lines[i].empty()) {
            continue;
        }
        const auto blank = lines[i].find(' ');
        const std::string folder = lines[i].substr(0, blank);
        const std::string digits = blank == std::string::npos ? "" : Trim(lines[i].substr(blank));
        if (std::find(LibraryFolders.begin(), LibraryFolders.end(), folder) ==
                LibraryFolders.end() ||
            digits.empty() || digits.size() > 5 ||
            digits.find_first_not_of("0123456789") != std::string::npos) {
            throw ContentError(place, "a width is written \"information 870\", naming "
                                      "information, knowledge or advanced");
        }
        found[folder] = std::stoi(digits);
    }
    for (const std::string_view folder : LibraryFolders) {
        if (!found.contains(std::string(folder))) {
            throw ContentError({widths.Name, 0}, "no width for " + std::string(folder));
        }
    }
    return found;
}

LibrarySource ReadLibrarySource(const std::string& folder, const SourceFile& catalogue,
                                const std::vector<SourceFile>& bodies, int recordWidth) {
    const std::vector<CatalogueRow> expected = ReadCatalogue(catalogue);
    LibrarySource library{folder, {}, recordWidth};
    for (const SourceFile& file : bodies) {
        const auto lines = ExactSourceLines(file.Name, file.Utf8);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const SourcePlace place{file.Name, static_cast<int>(i) + 1};
            const std::string& line = lines[i];
            if (IsBlank(line) || IsComment(line)) {
                continue;
            }
            if (!IsTitleLine(line)) {
                if (library.Rows.empty()) {
                    throw ContentError(place, "text before the first title");
                }
                library.Rows.back().Text += Paragraph(place, line);
                continue;
            }
            if (!library.Rows.empty()) {
                CloseRow(library.Rows.back(), recordWidth);
            }
            const std::string title = ProgramTitle(place, line);
            const std::size_t row = library.Rows.size();
            if (row >= expected.size()) {
                throw ContentError(place, "the title " + Shown(title) + " is past the " +
                                              std::to_string(expected.size()) +
                                              " rows of the catalogue");
            }
            if (title != expected[row].Title) {
                throw ContentError(place, "the title " + Shown(title) +
                                              " stands where the "
                                              "catalogue has " +
                                              Shown(expected[row].Title) + " (row " +
                                              std::to_string(row) + ", with its level and blanks)");
            }
            library.Rows.push_back({title, {}, place});
        }
    }
    if (!library.Rows.empty()) {
        CloseRow(library.Rows.back(), recordWidth);
    }
    if (library.Rows.size() < expected.size()) {
        const CatalogueRow& missing = expected[library.Rows.size()];
        throw ContentError(missing.Place, "the row " + Shown(missing.Title) +
                                              " has no body in data/libraries/" + folder + "/");
    }
    return library;
}

} // namespace veyrant::content

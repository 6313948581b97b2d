#include "printing/LibraryMarkdown.h"

#include "core/Cp1252.h"
#include "core/DateFormat.h"
#include "core/Text.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace veyrant {

namespace {

constexpr std::string_view LongDate = "dddd, h:nn AM/PM, mmmm d, yyyy";

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// The lines of a text, whatever their ends, with blanks and tabs at either end gone (a leading
// tab is the program's paragraph indent; four blanks would make a code block) and empty lines
// left out.
std::vector<std::string> TextLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        std::string_view line = text.substr(start, end - start);
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        line.remove_suffix(line.size() - (line.find_last_not_of(" \t") + 1));
        if (!line.empty()) {
            lines.emplace_back(line);
        }
        start = end + 1;
    }
    return lines;
}

// A line of the user's text as plain text in UTF-8: every character that could open markup is
// escaped, and so is what would start a heading, a quotation, a list or a rule.
std::string PlainLine(const std::string& line) {
    std::string escaped;
    std::size_t digits = 0;
    while (digits < line.size() && IsDigit(line[digits])) {
        ++digits;
    }
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        const bool opensBlock =
            at == 0 && std::string_view("#>-+=~").find(c) != std::string_view::npos;
        const bool endsListNumber = at == digits && digits > 0 && (c == '.' || c == ')');
        if (opensBlock || endsListNumber ||
            std::string_view("\\`*_[]<>&!|").find(c) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += c;
    }
    return Cp1252ToUtf8(escaped);
}

// Lines of one paragraph, joined by line ends inside it.
std::string Paragraph(const std::vector<std::string>& lines, std::string_view prefix) {
    std::string text;
    for (const auto& line : lines) {
        text += std::string(prefix) + PlainLine(line) + "\n";
    }
    return text;
}

// The Inspiration as saved is a tab and the text; without the tab it is the whole file.
std::string_view InspirationBody(std::string_view inspiration) {
    const auto tab = inspiration.find(Tab);
    return tab == std::string_view::npos ? inspiration : inspiration.substr(tab + 1);
}

} // namespace

std::vector<std::string> MarkdownFileNames(const std::vector<DateTime>& dates) {
    std::map<std::string, int> taken;
    std::vector<std::string> names;
    names.reserve(dates.size());
    for (const auto& date : dates) {
        const std::string stem = FormatDate(date, "yyyy-mm-dd hh.nn");
        const int count = ++taken[stem];
        names.push_back(stem + (count > 1 ? " (" + std::to_string(count) + ")" : "") + ".md");
    }
    return names;
}

std::string DialogueMarkdown(const DateTime& date, std::string_view inspiration,
                             std::string_view dialogue) {
    std::string text = "# " + FormatDate(date, LongDate) + "\n\n## Inspiration\n\n" +
                       Paragraph(TextLines(InspirationBody(inspiration)), "") + "\n## Dialogue\n";
    // Every block begins with a blank line; its first line is the entry, the rest the response.
    const std::string blankLine = std::string(CrLf) + std::string(CrLf);
    std::size_t start = dialogue.substr(0, blankLine.size()) == blankLine ? blankLine.size() : 0;
    while (start < dialogue.size()) {
        const std::size_t end = std::min(dialogue.find(blankLine, start), dialogue.size());
        const auto lines = TextLines(dialogue.substr(start, end - start));
        if (!lines.empty()) {
            text += "\n" + Paragraph({lines.front()}, "> ");
            if (lines.size() > 1) {
                text += "\n" + Paragraph({lines.begin() + 1, lines.end()}, "");
            }
        }
        start = end + blankLine.size();
    }
    return text;
}

std::string IndexMarkdown(const std::vector<IndexEntry>& entries) {
    std::string text = "# Veyrant Sagrel Dialogue Library\n\n";
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        // Blanks and brackets in a link's address are written as their codes.
        std::string address;
        for (const char c : entry->FileName) {
            address += c == ' ' ? "%20" : c == '(' ? "%28" : c == ')' ? "%29" : std::string(1, c);
        }
        const auto lines = TextLines(InspirationBody(entry->Inspiration));
        text += "- [" + FormatDate(entry->Date, LongDate) + "](" + address + ")" +
                (lines.empty() ? "" : ": " + PlainLine(lines.front())) + "\n";
    }
    return text;
}

} // namespace veyrant

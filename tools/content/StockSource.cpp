#include "ContentSources.h"
#include "core/Text.h"

#include <cctype>
#include <sstream>

namespace veyrant::content {

namespace {

constexpr char EmDash = '\x97';

// Punctuation is a component of its own, and its rows carry no lead blank.
bool IsPunctuationRow(std::string_view text) {
    return text == "." || text == "?" || text == "," || text == std::string_view(&EmDash, 1);
}

bool IsCapital(char c) {
    return LowerChar(c) != c;
}

// The row as the stock holds it: one lead blank, except for punctuation. Raises ContentError
// when the text breaks the rules the composer relies on.
std::string StockRow(const SourcePlace& place, const std::string& text) {
    if (IsPunctuationRow(text)) {
        return text;
    }
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 32) {
            throw ContentError(place, "a row may not hold control characters");
        }
    }
    const bool innerDash = text.size() > 1 && text.front() == EmDash;
    if (!IsCapital(text.front()) && !innerDash) {
        throw ContentError(place,
                           "a row must begin with a capital letter or a dash: \"" + text + "\"");
    }
    if (std::string_view(".?,!;:").find(text.back()) != std::string_view::npos) {
        throw ContentError(place, "a row may not end in punctuation, which is a component of "
                                  "its own: \"" +
                                      text + "\"");
    }
    if (text.find("  ") != std::string::npos) {
        throw ContentError(place, "a row may not hold two blanks together: \"" + text + "\"");
    }
    return " " + text;
}

// "(4) To a degree" stands four times.
int TakeRepeat(const SourcePlace& place, std::string& text) {
    if (text.empty() || text.front() != '(') {
        return 1;
    }
    const auto close = text.find(')');
    const std::string digits = text.substr(1, close == std::string::npos ? 0 : close - 1);
    if (close == std::string::npos || digits.empty() || digits.size() > 3 ||
        digits.find_first_not_of("0123456789") != std::string::npos || std::stoi(digits) < 1) {
        throw ContentError(place, "a repeat is written \"(n) Row\" with n from 1 to 999");
    }
    text = Trim(text.substr(close + 1));
    if (text.empty()) {
        throw ContentError(place, "a repeat needs a row behind it");
    }
    return std::stoi(digits);
}

void CheckLabel(const SourcePlace& place, const std::string& label) {
    if (label.empty()) {
        throw ContentError(place, "a group label may not be empty");
    }
    if (IsPunctuationRow(label)) {
        return;
    }
    if (!IsCapital(label.front())) {
        throw ContentError(place, "a group label must begin with a capital letter: " + label);
    }
    if (label.find_first_of(" |\"") != std::string::npos) {
        throw ContentError(place, "a group label joins its words with hyphens and holds no "
                                  "blank, \"|\" or quotation mark: " +
                                      label);
    }
}

} // namespace

StockSource ReadStockSource(const std::string& fileName, std::string_view utf8) {
    StockSource stock;
    stock.Place = {fileName, 1};
    const auto lines = SourceLines(fileName, utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string text = lines[i];
        const SourcePlace place{fileName, static_cast<int>(i) + 1};
        if (text.empty()) {
            continue;
        }
        if (text.front() == '[') {
            if (text.back() != ']') {
                throw ContentError(place, "a group label is written [Label]");
            }
            if (!stock.Groups.empty() && stock.Groups.back().Rows.empty()) {
                throw ContentError(stock.Groups.back().Place,
                                   "the group " + stock.Groups.back().Label + " has no rows");
            }
            PhraseGroup group;
            group.Label = Trim(text.substr(1, text.size() - 2));
            group.Place = place;
            CheckLabel(place, group.Label);
            stock.Groups.push_back(std::move(group));
            continue;
        }
        if (stock.Groups.empty()) {
            throw ContentError(place, "a row stands before the first group label");
        }
        const int repeat = TakeRepeat(place, text);
        const std::string row = StockRow(place, text);
        stock.Groups.back().Rows.insert(stock.Groups.back().Rows.end(),
                                        static_cast<std::size_t>(repeat), row);
    }
    if (!stock.Groups.empty() && stock.Groups.back().Rows.empty()) {
        throw ContentError(stock.Groups.back().Place,
                           "the group " + stock.Groups.back().Label + " has no rows");
    }
    return stock;
}

void ReadGroupOrder(const std::string& fileName, std::string_view utf8, ContentSources& sources) {
    const auto lines = SourceLines(fileName, utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SourcePlace place{fileName, static_cast<int>(i) + 1};
        if (lines[i].empty()) {
            continue;
        }
        const auto colon = lines[i].find(':');
        const std::string number = Trim(lines[i].substr(0, colon));
        if (colon == std::string::npos || number.empty() || number.size() > 2 ||
            number.find_first_not_of("0123456789") != std::string::npos || std::stoi(number) < 1 ||
            std::stoi(number) > StockCount) {
            throw ContentError(place, "a line of the group order is \"stock: Label Label ...\"");
        }
        std::istringstream labels(lines[i].substr(colon + 1));
        int order = 0;
        for (std::string label; labels >> label;) {
            if (!sources.GroupOrder.emplace(label, GroupPlace{std::stoi(number), ++order}).second) {
                throw ContentError(place, "the group " + label + " is placed twice");
            }
        }
    }
}

std::vector<std::string> ReadSuggestionSource(const std::string& fileName, std::string_view utf8) {
    constexpr std::size_t LongestSuggestion = 209;
    std::vector<std::string> suggestions;
    std::string heading;
    std::string body;
    SourcePlace headingPlace;
    const auto finish = [&] {
        if (heading.empty()) {
            return;
        }
        if (body.empty()) {
            throw ContentError(headingPlace, "the Suggestion \"" + heading + "\" has no text");
        }
        std::string entry = heading + "\r\n\t" + body;
        if (entry.size() > LongestSuggestion) {
            throw ContentError(headingPlace, "the Suggestion \"" + heading + "\" is longer than " +
                                                 std::to_string(LongestSuggestion) + " characters");
        }
        suggestions.push_back(std::move(entry));
        heading.clear();
        body.clear();
    };
    const auto lines = SourceLines(fileName, utf8);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& text = lines[i];
        const SourcePlace place{fileName, static_cast<int>(i) + 1};
        if (text.empty()) {
            continue;
        }
        if (text.front() == '=') {
            finish();
            heading = Trim(text.substr(1));
            headingPlace = place;
            if (heading.empty()) {
                throw ContentError(place, "a Suggestion heading is written \"= Heading\"");
            }
            continue;
        }
        if (heading.empty()) {
            throw ContentError(place, "text stands before the first Suggestion heading");
        }
        body += (body.empty() ? "" : " ") + text;
    }
    finish();
    return suggestions;
}

} // namespace veyrant::content

#include "shell/SpellingWords.h"

#include <algorithm>

namespace veyrant {

namespace {

bool IsApostrophe(char c) {
    return c == '\'' || c == '\x92';
}

bool IsDigitOrUncoded(char c) {
    return (c >= '0' && c <= '9') || c == UncodedLetter;
}

bool IsWordChar(char c) {
    return IsWordLetter(c) || IsDigitOrUncoded(c);
}

// An apostrophe belongs to a word only between two of its characters: "don't", not 'quoted'.
bool InWord(std::string_view text, std::size_t at) {
    if (IsWordChar(text[at])) {
        return true;
    }
    return IsApostrophe(text[at]) && at > 0 && at + 1 < text.size() && IsWordChar(text[at - 1]) &&
           IsWordChar(text[at + 1]);
}

} // namespace

bool IsWordLetter(char c) {
    const auto code = static_cast<unsigned char>(c);
    if ((code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z')) {
        return true;
    }
    // Š Œ Ž š œ ž Ÿ, the feminine and masculine ordinals, micro, and the accented block but for
    // the multiplication and division signs.
    switch (code) {
    case 0x8A:
    case 0x8C:
    case 0x8E:
    case 0x9A:
    case 0x9C:
    case 0x9E:
    case 0x9F:
    case 0xAA:
    case 0xB5:
    case 0xBA:
        return true;
    default:
        return code >= 0xC0 && code != 0xD7 && code != 0xF7;
    }
}

std::vector<WordSpan> CheckableWords(std::string_view text, std::size_t caret) {
    std::vector<WordSpan> words;
    std::size_t at = 0;
    while (at < text.size()) {
        if (!InWord(text, at)) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < text.size() && InWord(text, at)) {
            ++at;
        }
        const std::string_view word = text.substr(start, at - start);
        const bool typing = caret != NoCaret && caret >= start && caret <= at;
        if (!typing && std::none_of(word.begin(), word.end(), IsDigitOrUncoded)) {
            words.push_back({start, at - start});
        }
    }
    return words;
}

std::optional<WordSpan> WordAt(std::string_view text, std::size_t offset) {
    if (offset > text.size()) {
        return std::nullopt;
    }
    std::size_t start = offset;
    while (start > 0 && InWord(text, start - 1)) {
        --start;
    }
    std::size_t end = offset;
    while (end < text.size() && InWord(text, end)) {
        ++end;
    }
    if (start == end) {
        return std::nullopt;
    }
    return WordSpan{start, end - start};
}

} // namespace veyrant

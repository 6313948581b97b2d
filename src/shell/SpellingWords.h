#pragma once

// Where the words of a text are, for the spelling marks. A word is a run of letters, digits and
// inner apostrophes in the program's code page; it is finished at the next blank or mark, so the
// word the caret touches is still being typed. A word holding a digit is a number or a code, and
// no dictionary judges it.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace veyrant {

struct WordSpan {
    std::size_t Start = 0; // offset of the first character, from 0
    std::size_t Length = 0;
    bool operator==(const WordSpan&) const = default;
};

// Stands for a character the code page has no code for: it belongs to a word and keeps that word
// out of the dictionary's hands, as a digit does.
inline constexpr char UncodedLetter = '\x81';

inline constexpr std::size_t NoCaret = static_cast<std::size_t>(-1);

bool IsWordLetter(char c);

// The words a dictionary should judge: finished, and free of digits.
std::vector<WordSpan> CheckableWords(std::string_view text, std::size_t caret = NoCaret);

// The word under an offset, or touching it from the left.
std::optional<WordSpan> WordAt(std::string_view text, std::size_t offset);

} // namespace veyrant

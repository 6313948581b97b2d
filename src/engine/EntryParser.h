#pragma once

// Judges a finished entry before the Sagrel answers it: whether it may go on at all, and what
// kind of sentence it is. The judgement rests on the last character, the word count and mean
// word length, and the places where a small table of question words and auxiliaries occurs.

#include "engine/EntryCodes.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace veyrant {

// Every word carries its trailing blank, which is part of it in all searches. Index 0 is idle.
struct EntryWords {
    std::array<std::string_view, 54> AuxWords;
    std::array<std::string_view, 16> QueryWords;
    std::string_view ElseWord;
    std::array<std::string_view, 5> LinkWords;
};

EntryWords LoadEntryWords();

// Reads the entry as the Write box holds it (tab and opening mark first). Sets EntryStatus
// always, and EntryType only where the sentence type is decided here or by the classifier.
void CheckEntry(const std::string& EntryText, WriteMethod ActiveMethod, std::int16_t PairCount,
                EntryVerdict& EntryStatus, SentenceType& EntryType);

// Overwrites text with its prepared form and sets EntryType: a yes-or-no question, a question by
// its word, None when nothing is found, or one of the kinds whose form can't be told.
void ClassifyEntry(std::string& text, SentenceType& EntryType);

} // namespace veyrant

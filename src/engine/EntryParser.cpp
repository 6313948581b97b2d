#include "engine/EntryParser.h"

#include "core/Text.h"

#include <algorithm>

namespace veyrant {

EntryWords LoadEntryWords() {
    return EntryWords{
        {"",          "will ",     "won't ",    "wont ",    "would ",  "wouldn't ", "wouldnt ",
         "might ",    "mightn't ", "mightnt ",  "may ",     "can ",    "can't ",    "cant ",
         "cannot ",   "could ",    "couldn't ", "couldnt ", "shall ",  "should ",   "shouldn't ",
         "shouldnt ", "must ",     "do ",       "don't ",   "dont ",   "does ",     "doesn't ",
         "doesnt ",   "are ",      "aren't ",   "arent ",   "am ",     "is ",       "isn't ",
         "isnt ",     "did ",      "didn't ",   "didnt ",   "have ",   "haven't ",  "havent ",
         "has ",      "hasn't ",   "hasnt ",    "had ",     "hadn't ", "hadnt ",    "was ",
         "wasn't ",   "wasnt ",    "were ",     "weren't ", "werent "},
        {"", "who ", "whoever ", "whose ", "whom ", "whomever ", "what ", "whatever ", "which ",
         "where ", "wherever ", "when ", "whenever ", "how ", "however ", "why "},
        "else ",
        {"", "If ", "Then ", "And ", "But "}};
}

namespace {

// One hit of a question word (row 1) or an auxiliary (row 2).
struct HitCell {
    int Present = 0;
    long Position = 0;
    std::int16_t AfterComma = 0;
    int QueryWord = 0;
    int AuxWord = 0;
    std::int16_t SubjectI = 0;
};

using HitGrid = std::array<std::array<HitCell, 5>, 3>; // rows 1-2, columns 1-4

// Every search of the classifier ignores case: it runs on a lower-cased copy of the text with
// lower-case needles, which is the same and spares folding the text at each search.
bool StandsAt(std::string_view folded, std::string_view phrase, long position) {
    const auto at = static_cast<std::size_t>(position - 1);
    return position >= 1 && at + phrase.size() <= folded.size() &&
           folded.compare(at, phrase.size(), phrase) == 0;
}

void BlankOut(std::string& text, std::string& folded, long position, std::size_t length) {
    if (position > 1) {
        std::fill_n(text.begin() + (position - 1), length, ' ');
        std::fill_n(folded.begin() + (position - 1), length, ' ');
    }
}

// "I will" and its kin are the user speaking of himself, not asking: they must not count as
// the auxiliary of a question.
void BlankFirstPerson(std::string& text, const EntryWords& words) {
    std::string folded = Lower(text);
    for (std::size_t j = 1; j < words.AuxWords.size(); ++j) {
        const std::string aux(words.AuxWords[j]);
        const std::string spaced = " i " + aux;
        const std::string comma = ",i " + aux;
        const std::string closing = " i " + aux.substr(0, aux.size() - 1) + ",";
        long third = 0;
        do {
            BlankOut(text, folded, Find(folded, spaced), spaced.size());
            BlankOut(text, folded, Find(folded, comma), comma.size());
            third = Find(folded, closing);
            BlankOut(text, folded, third, closing.size());
        } while (third != 0);
    }
}

std::int16_t CommaBefore(std::string_view folded, std::string_view word, long found) {
    if (found <= 4) {
        return 0;
    }
    const bool spaced = Find(folded, ", " + std::string(word), found - 2) > 0;
    const bool tight = Find(folded, "," + std::string(word), found - 1) > 0;
    return spaced || tight ? 1 : 0;
}

struct ClassifyPass {
    HitGrid Grid{};
    bool Overflow = false;
    int LoneStart = 0;
};

// Returns false when the pass overflowed.
bool QueryPass(std::string_view folded, const EntryWords& words, ClassifyPass& pass) {
    int count = 0;
    long atStart = 0;
    for (int q = 1; q < static_cast<int>(words.QueryWords.size()); ++q) {
        const std::string word(words.QueryWords[static_cast<std::size_t>(q)]);
        long start = 1;
        for (;;) {
            HitCell cell;
            const long found = Find(folded, " " + word, start);
            if (found > 0) {
                start = found;
                if (atStart != 1) {
                    atStart = found;
                }
                cell.QueryWord = q;
                ++count;
                cell.AfterComma = CommaBefore(folded, word, found);
                for (std::size_t j = 1; j < words.AuxWords.size(); ++j) {
                    const std::string aux(words.AuxWords[j]);
                    std::string phrase = " " + word + std::string(words.ElseWord) + aux;
                    if (!StandsAt(folded, phrase, found)) {
                        phrase = " " + word + aux;
                    }
                    if (StandsAt(folded, phrase, found)) {
                        cell.AuxWord = static_cast<int>(j);
                        if (StandsAt(folded, phrase + "i ", found)) {
                            cell.SubjectI = 1;
                        }
                        break;
                    }
                }
            }
            if (count > 3) {
                return false;
            }
            if (cell.QueryWord > 0) {
                // "where", "when" and "how" count only with an auxiliary right behind them.
                const bool lone = cell.QueryWord >= 9 && cell.QueryWord <= 14 && cell.AuxWord == 0;
                if (!lone) {
                    cell.Present = 1;
                    cell.Position = start;
                    pass.Grid[1][static_cast<std::size_t>(count)] = cell;
                } else if (atStart == 1) {
                    pass.LoneStart = cell.QueryWord;
                }
            }
            if (found == 0) {
                break;
            }
            ++start;
        }
    }
    return true;
}

bool AuxPass(std::string_view folded, const EntryWords& words, ClassifyPass& pass) {
    int count = 0;
    for (int j = 1; j < static_cast<int>(words.AuxWords.size()); ++j) {
        const std::string aux(words.AuxWords[static_cast<std::size_t>(j)]);
        long start = 1;
        for (;;) {
            HitCell cell;
            const long found = Find(folded, " " + aux, start);
            if (found > 0) {
                start = found;
                cell.AuxWord = j;
                ++count;
                cell.AfterComma = CommaBefore(folded, aux, found);
                if (Find(folded, " " + aux + "i ", found) > 0) {
                    cell.SubjectI = 1;
                }
            }
            if (count > 4) {
                return false;
            }
            if (cell.AuxWord > 0) {
                cell.Present = 1;
                cell.Position = start;
                pass.Grid[2][static_cast<std::size_t>(count)] = cell;
            }
            if (found == 0) {
                break;
            }
            ++start;
        }
    }
    return true;
}

int CountPresent(const std::array<HitCell, 5>& row) {
    return static_cast<int>(
        std::count_if(row.begin() + 1, row.end(), [](const HitCell& c) { return c.Present == 1; }));
}

// The first column of row 1 that holds a hit, or 0.
std::size_t FirstFilledColumn(const HitGrid& grid) {
    for (std::size_t k = 1; k <= 4; ++k) {
        if (grid[1][k].Position > 0) {
            return k;
        }
    }
    return 0;
}

// The question words stand in the table in groups: who, what, where, when, how, and why last.
SentenceType TypeOfQuestion(int queryWord, int auxWord) {
    if (queryWord == 0) {
        return SentenceType::YesNoQuestion;
    }
    if (queryWord >= 9 && queryWord <= 14 && auxWord == 0) {
        return SentenceType::Indecipherable;
    }
    if (queryWord <= 5) {
        return SentenceType::WhoQuestion;
    }
    if (queryWord <= 8) {
        return SentenceType::WhatQuestion;
    }
    if (queryWord <= 10) {
        return SentenceType::WhereQuestion;
    }
    if (queryWord <= 12) {
        return SentenceType::WhenQuestion;
    }
    if (queryWord <= 14) {
        return SentenceType::HowQuestion;
    }
    return SentenceType::WhyQuestion;
}

SentenceType Decide(const ClassifyPass& pass) {
    const HitGrid& grid = pass.Grid;
    if (grid[1][1].Present == 0 && grid[2][1].Present == 0) {
        return SentenceType::None;
    }
    if (pass.Overflow) {
        return SentenceType::SubjectUnclear;
    }
    int starts = 0;
    for (std::size_t row = 1; row <= 2; ++row) {
        for (std::size_t k = 1; k <= 4; ++k) {
            starts += (grid[row][k].Position == 1 ? 1 : 0) + (grid[row][k].AfterComma == 1 ? 1 : 0);
        }
    }
    if (starts > 1) {
        return SentenceType::PointUnclear;
    }
    int candidates = starts;
    const HitCell* chosen = nullptr;
    if (starts == 0) {
        candidates = CountPresent(grid[1]);
        if (candidates > 1) {
            return SentenceType::MeaningUnclear;
        }
        if (candidates == 1) {
            candidates = 0;
        }
        candidates += CountPresent(grid[2]);
        if (pass.LoneStart > 0) {
            ++candidates;
            if (candidates == 1) {
                candidates = 0;
            }
        }
        if (candidates != 1) {
            return SentenceType::MeaningUnclear;
        }
        // The test looks at row 1 and the value for the auxiliary comes from row 2; either way
        // the first filled cell of row 1 is the one taken.
        const std::size_t column = FirstFilledColumn(grid);
        const long p1 = column > 0 ? grid[1][column].Position : 0;
        const long p2 = column > 0 ? grid[2][column].Position : 0;
        if (p1 != p2) {
            chosen = &grid[1][column];
        }
    }
    if (candidates != 1) {
        return SentenceType::MeaningUnclear;
    }
    long lowest = 1000;
    for (std::size_t row = 1; row <= 2; ++row) {
        for (std::size_t k = 1; k <= 4; ++k) {
            const HitCell& cell = grid[row][k];
            const bool opensClause = cell.AfterComma == 1 || cell.Position == 1;
            if (opensClause && cell.Position > 0 && cell.Position < lowest) {
                lowest = cell.Position;
                chosen = &cell;
            }
        }
    }
    return chosen == nullptr ? SentenceType::YesNoQuestion
                             : TypeOfQuestion(chosen->QueryWord, chosen->AuxWord);
}

} // namespace

void ClassifyEntry(std::string& text, SentenceType& EntryType) {
    text = Trim(text);
    EntryType = SentenceType::Unclassified;
    const EntryWords words = LoadEntryWords();
    ClassifyPass pass;
    BlankFirstPerson(text, words);
    text = " " + Trim(text);
    const std::string folded = Lower(text);
    pass.Overflow = !QueryPass(folded, words, pass) || !AuxPass(folded, words, pass);
    EntryType = Decide(pass);
}

namespace {

// Inner marks become commas, which the classifier reads as clause breaks; a final "." or "?"
// stays where it is.
void CommaForInnerMarks(std::string& text) {
    for (const char mark : {'.', '?'}) {
        for (long at = Find(text, std::string(1, mark));
             at > 0 && at != static_cast<long>(text.size());
             at = Find(text, std::string(1, mark))) {
            text[static_cast<std::size_t>(at - 1)] = ',';
        }
    }
    std::replace(text.begin(), text.end(), ';', ',');
    std::replace(text.begin(), text.end(), '!', ',');
}

} // namespace

void CheckEntry(const std::string& EntryText, WriteMethod ActiveMethod, std::int16_t PairCount,
                EntryVerdict& EntryStatus, SentenceType& EntryType) {
    EntryStatus = EntryVerdict::Accepted;
    const std::string trimmed = Trim(EntryText);
    const auto length = static_cast<double>(trimmed.size());
    const auto words = static_cast<double>(std::count(trimmed.begin(), trimmed.end(), ' ') + 1);
    const char last = trimmed.empty() ? '\0' : trimmed.back();
    if (last == '"') {
        EntryStatus = EntryVerdict::EndsWithQuote;
        return;
    }
    if (last != '?' && last != '.' && last != '!') {
        EntryStatus = EntryVerdict::Unpunctuated;
    }
    if (ActiveMethod == WriteMethod::Comment) {
        return;
    }
    const double meanLength = (length - words - 3) / words;
    // The first entry of a Dialogue has to say a little more than the later ones.
    const double fewestWords = PairCount == 0 ? 4 : 3;
    const double shortWords = PairCount == 0 ? 7 : 6;
    const double leanest = PairCount == 0 ? 3.5 : 2.9;
    if (words < fewestWords) {
        EntryStatus = EntryVerdict::TooFewWords;
        return;
    }
    if (words < shortWords && meanLength < leanest) {
        EntryStatus = EntryVerdict::TooFewMeaningfulWords;
        return;
    }
    if (ActiveMethod == WriteMethod::Suppose && last != '?') {
        EntryStatus = EntryVerdict::NotAQuestion;
        return;
    }
    if (last == '.' || last == '!') {
        EntryType = SentenceType::Statement;
        return;
    }
    std::string sentence = Trim(Mid(EntryText, 3));
    CommaForInnerMarks(sentence);
    ClassifyEntry(sentence, EntryType);
    if (const auto unclear = UnclearVerdict(EntryType)) {
        EntryStatus = *unclear;
    }
}

} // namespace veyrant

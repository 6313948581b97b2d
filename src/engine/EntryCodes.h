#pragma once

// The codes that pass between the Write window's cycle, the entry checks and the message engine.
// Each keeps the number it has always had, so that a dump or a message plan reads the same.

#include <cstdint>
#include <optional>

namespace veyrant {

// Which way of writing the Write window runs.
enum class WriteMethod : std::int16_t {
    NotStarted = -1, // before the first reset
    None = 0,        // a Dialogue is on show, or none is begun
    Converse = 1,
    Suppose = 2,
    Comment = 4,
};

// A method the user is typing in, as against none or the start.
constexpr bool IsRunning(WriteMethod method) {
    return method == WriteMethod::Converse || method == WriteMethod::Suppose ||
           method == WriteMethod::Comment;
}

// What kind of sentence an entry is: it chooses the family of the reply. The negative kinds are
// the classifier's ways of not telling; None is also the type of a reply left out of the Dialogue.
enum class SentenceType : std::int16_t {
    Unclassified = 1000, // while the classifier is at work
    Indecipherable = -4, // a question word of place, time or manner with no auxiliary
    MeaningUnclear = -3, // no single clause the question hangs on
    PointUnclear = -2,   // more than one clause opens with a question word
    SubjectUnclear = -1, // more question words than the classifier can hold
    None = 0,
    YesNoQuestion = 1,
    Statement = 2,
    SupposeQuestion = 9,
    WhoQuestion = 10,
    WhatQuestion = 20,
    WhenQuestion = 30,
    WhereQuestion = 40,
    WhyQuestion = 50,
    HowQuestion = 60,
};

// The outcome of the checks on an entry, and the refusal the user is shown.
enum class EntryVerdict : std::int16_t {
    Accepted = 1000,
    NotAQuestion = 2, // a Suppose entry without a question mark, refused as a statement
    Unpunctuated = 0,
    EndsWithQuote = -1,
    TooFewWords = -2,
    TooFewMeaningfulWords = -3,
    SyntaxUnclear = -10,
    SubjectUnclear = -11,
    PointUnclear = -12,
    MeaningUnclear = -13,
    Indecipherable = -14,
    DialogueFull = -99,
    SupposeYesNoQuestion = -100,
    SupposeStatement = -101,
};

// Whether an entry may go on to a reply. A Suppose entry's NotAQuestion is turned into a refusal
// before this is asked.
constexpr bool IsAccepted(EntryVerdict verdict) {
    return static_cast<std::int16_t>(verdict) >= 1;
}

// The refusal for a sentence the classifier could not tell; none for a type it could.
constexpr std::optional<EntryVerdict> UnclearVerdict(SentenceType type) {
    switch (type) {
    case SentenceType::None:
        return EntryVerdict::SyntaxUnclear;
    case SentenceType::SubjectUnclear:
        return EntryVerdict::SubjectUnclear;
    case SentenceType::PointUnclear:
        return EntryVerdict::PointUnclear;
    case SentenceType::MeaningUnclear:
        return EntryVerdict::MeaningUnclear;
    case SentenceType::Indecipherable:
        return EntryVerdict::Indecipherable;
    default:
        return std::nullopt;
    }
}

// Whether the Sagrel answers the entry, chooses an idea, or makes a remark that the user may keep.
enum class ReplyKind : std::int16_t {
    Remark = 0,
    Answer = 1,
};

// The messages of the plan file that the engine composes, by their number there.
enum class MessageNumber : std::int16_t {
    YesNoAnswer = 1,
    WhoAnswer = 2,
    WhatAnswer = 3,
    WhenAnswer = 4,
    WhereAnswer = 5,
    WhyAnswer = 6,
    HowAnswer = 7,
    StatementAnswer = 8,
    IdeaChosen = 9,
    IdeaDeclined = 10,
    YesNoRemark = 11,
    QuestionRemark = 12,
    StatementRemark = 13,
    SupposeRemark = 14,
    Inspiration = 15,
    Interjection = 16,
};

} // namespace veyrant

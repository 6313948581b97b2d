#pragma once

// The state variables of the Write window, named as the program names them. One value each for
// the whole program: there is one Write window.

#include "core/Colour.h"
#include "engine/EntryCodes.h"
#include "shell/LibraryId.h"

#include <string>
#include <vector>

namespace veyrant {

// Whether the entry and reply on show are in the Dialogue; the Remove button offers the other.
enum class PairShown {
    Nothing = 0,
    Kept = 1,
    LeftOut = 2,
};

// How the entry or idea being typed stands against its length limits.
enum class EntryLength {
    TooShort,
    Fits,
    TooLong,
};

// Where the list of ideas of the Suppose method stands: closed, waiting for the Enter that
// prompts the next idea, or with an idea being typed.
enum class SupposeStep {
    Off,
    PromptDue,
    TypingIdea,
};

struct MirrorState {
    WriteMethod ActiveMethod = WriteMethod::NotStarted;
    bool AwaitingEnter = false;
    EntryLength EntryFit = EntryLength::TooShort;
    int EntryCount = 0;
    int EntryMin = 17;
    int EntryNear = 90;
    int EntryMax = 140;
    EntryVerdict EntryStatus = EntryVerdict::Unpunctuated;
    bool EntryFailed = false;
    PairShown PairState = PairShown::Nothing;
    SentenceType EntryType = SentenceType::None;
    ReplyKind AnswerFlag = ReplyKind::Answer;
    bool NoticeNotDue = true;
    int CycleCount = 0;
    int CycleGoal = 3;
    float EntryStartTime = 0;
    float SeriesSeed = 0;
    std::string EntryText;
    std::string EntryBackup;
    std::string ReplyText;
    std::string ResponseText;
    std::string PairText;
    std::string DialogueText;
    std::string DialogueBackup;
    int PairCount = 0;
    std::string InspirationText;
    std::string InspirationView;
    std::string SuggestionText;
    std::string DirectionText;
    std::string InstructionText;
    Colour InstructionColour = Colour::Black;
    std::string TitleMethod;
    bool DisplayFull = false;
    bool DialogueSaved = false;
    SupposeStep SupposeStage = SupposeStep::Off;
    bool EnterHintDue = false;
    int IdeaIndex = 0; // the idea being typed, from 1; 0 with no list open
    int IdeaCount = 0;
    std::string SupposeQuestion;
    std::string SupposeHeading;
    std::string ListText;                    // the list box without its open prompt
    std::vector<std::string> Ideas;          // slot 0 the box with the open prompt, then the ideas
    std::vector<int> IdeaWeight;             // 1 to 1000, drawn as each idea is accepted
    std::vector<int> IdeaOrder;              // idea numbers by falling weight
    EntryLength IdeaFit = EntryLength::Fits; // the last idea offered to the list
    long ListHead = 2;                       // the protected head of the list box ends here
    std::string IdeaVerdict;
    std::string ConclusionView;
    int IdeaLimit = 98;
    int LimitWarnCount = 0;
    std::string DialogueView;
    LibraryId ReadLibrary = LibraryId::None; // which library the Reader shows
    bool TitleShownOnce = false;
};

} // namespace veyrant

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

struct MirrorState {
    WriteMethod ActiveMethod = WriteMethod::NotStarted;
    int AwaitingEnter = 0;
    int EntryFit = -1; // -1 too short, 0 acceptable, 1 too long
    int EntryCount = 0;
    int EntryMin = 17;
    int EntryNear = 90;
    int EntryMax = 140;
    EntryVerdict EntryStatus = EntryVerdict::Unpunctuated;
    int EntryFailed = 0;
    PairShown PairState = PairShown::Nothing;
    SentenceType EntryType = SentenceType::None;
    ReplyKind AnswerFlag = ReplyKind::Answer;
    int NoticeNotDue = 1;
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
    int DisplayFull = 0;
    int DialogueSaved = 0;
    int SupposeStage = 0;
    int EnterHintDue = 0;
    int IdeaIndex = 0; // the idea being typed, from 1; 0 with no list open
    int IdeaCount = 0;
    std::string SupposeQuestion;
    std::string SupposeHeading;
    std::string ListText;           // the list box without its open prompt
    std::vector<std::string> Ideas; // slot 0 the box with the open prompt, then the ideas
    std::vector<int> IdeaWeight;    // 1 to 1000, drawn as each idea is accepted
    std::vector<int> IdeaOrder;     // idea numbers by falling weight
    int IdeaFit = 0;                // 0 accepted, 1 too short, 2 too long
    long ListHead = 2;              // the protected head of the list box ends here
    std::string IdeaVerdict;
    std::string ConclusionView;
    int IdeaLimit = 98;
    int LimitWarnCount = 0;
    std::string DialogueView;
    LibraryId ReadLibrary = LibraryId::None; // which library the Reader shows
    bool TitleShownOnce = false;
};

} // namespace veyrant

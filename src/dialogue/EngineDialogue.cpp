#include "dialogue/EngineDialogue.h"

#include "engine/Engine.h"
#include "engine/EntryParser.h"

#include <algorithm>

namespace veyrant {

namespace {

std::int16_t Short(int value) {
    return static_cast<std::int16_t>(value);
}

} // namespace

EntryJudgement EngineDialogue::CheckEntry(const std::string& entryText, WriteMethod activeMethod,
                                          int pairCount, SentenceType entryType) {
    EntryVerdict status = EntryVerdict::Unpunctuated;
    SentenceType type = entryType;
    veyrant::CheckEntry(entryText, activeMethod, Short(pairCount), status, type);
    return {status, type};
}

// Each slot moves up by one and the oldest falls out; the newest key takes slot 0.
void EngineDialogue::RecordKey(float time, int characterCode) {
    std::shift_right(engine_.SeriesBase.begin(), engine_.SeriesBase.end(), 1);
    std::shift_right(engine_.SeriesScale.begin(), engine_.SeriesScale.end(), 1);
    engine_.SeriesBase[0] = time;
    engine_.SeriesScale[0] = Short(characterCode);
}

void EngineDialogue::StretchSeeds(float seriesSeed) {
    engine_.SeriesSeed = seriesSeed;
    engine_.StretchSeeds();
}

ReplyKind EngineDialogue::RollAnswer(int percent) {
    engine_.RollAnswer(Short(percent));
    return engine_.AnswerFlag;
}

std::string EngineDialogue::RequestAnswer(SentenceType entryType) {
    engine_.RequestAnswer(entryType);
    return engine_.ReplyText;
}

std::string EngineDialogue::RequestRemark(SentenceType entryType) {
    engine_.RequestRemark(entryType);
    return engine_.ReplyText;
}

std::string EngineDialogue::RequestIdeaVerdict(ReplyKind answerFlag) {
    engine_.RequestIdeaVerdict(answerFlag);
    return engine_.IdeaVerdict;
}

std::string EngineDialogue::RequestInterjection() {
    engine_.RequestInterjection();
    return engine_.ReplyText;
}

std::string EngineDialogue::RequestInspiration() {
    engine_.RequestInspiration();
    return engine_.InspirationText;
}

std::string EngineDialogue::PickGuidance() {
    engine_.PickGuidance();
    return engine_.SuggestionText;
}

} // namespace veyrant

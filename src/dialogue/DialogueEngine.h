#pragma once

// What the Write window asks of the message engine: the judgement of an entry, the random series
// that the typing feeds, the two draws and the composed texts. The program adapts its engine to
// this; tests script it.

#include "engine/EntryCodes.h"

#include <string>

namespace veyrant {

struct EntryJudgement {
    EntryVerdict Status = EntryVerdict::Unpunctuated;
    SentenceType Type = SentenceType::None; // selects the response family
};

class DialogueEngine {
public:
    virtual ~DialogueEngine() = default;

    // entryText carries its two-character lead and no closing mark. A check that stops before
    // the sentence type is decided hands entryType back as it came.
    virtual EntryJudgement CheckEntry(const std::string& entryText, WriteMethod activeMethod,
                                      int pairCount, SentenceType entryType) = 0;

    // A typed key shifts the series: its time and character code go into the newest slot.
    virtual void RecordKey(float time, int characterCode) = 0;
    // Remakes the seed pool from the clock reading of the accepted entry and the key record.
    virtual void StretchSeeds(float seriesSeed) = 0;
    // A remark in percent of 100 draws, else an answer.
    virtual ReplyKind RollAnswer(int percent) = 0;

    // Composed texts as the composer leaves them: a tab, a lead blank, then the rows.
    virtual std::string RequestAnswer(SentenceType entryType) = 0;
    virtual std::string RequestRemark(SentenceType entryType) = 0;
    // The verdict on the chosen idea (an answer), cut to continue a sentence, or the refusal to
    // choose (a remark) as composed.
    virtual std::string RequestIdeaVerdict(ReplyKind answerFlag) = 0;
    virtual std::string RequestInterjection() = 0;
    // The Inspiration as the Dialogue keeps it: a tab and the body.
    virtual std::string RequestInspiration() = 0;
    // One Suggestion drawn at random.
    virtual std::string PickGuidance() = 0;
};

} // namespace veyrant

#pragma once

// What the Write window asks of the message engine: the judgement of an entry, the random series
// that the typing feeds, the two draws and the composed texts. The program adapts its engine to
// this; tests script it.

#include <string>

namespace veyrant {

struct EntryJudgement {
    int Status = 0; // 1 or more accepted; the refusals by number
    int Type = 0;   // the sentence type that selects the response family
};

class DialogueEngine {
public:
    virtual ~DialogueEngine() = default;

    // entryText carries its two-character lead and no closing mark. A check that stops before
    // the sentence type is decided hands entryType back as it came.
    virtual EntryJudgement CheckEntry(const std::string& entryText, int activeMethod, int pairCount,
                                      int entryType) = 0;

    // A typed key shifts the series: its time and character code go into the newest slot.
    virtual void RecordKey(float time, int characterCode) = 0;
    // Remakes the seed pool from the clock reading of the accepted entry and the key record.
    virtual void StretchSeeds(float seriesSeed) = 0;
    // 0 in percent of 100 draws, else 1.
    virtual int RollAnswer(int percent) = 0;

    // Composed texts as the composer leaves them: a tab, a lead blank, then the rows.
    virtual std::string RequestAnswer(int entryType) = 0;
    virtual std::string RequestRemark(int entryType) = 0;
    // The verdict on the chosen idea (flag 1), cut to continue a sentence, or the refusal to
    // choose (flag 0) as composed.
    virtual std::string RequestIdeaVerdict(int answerFlag) = 0;
    virtual std::string RequestInterjection() = 0;
    // The Inspiration as the Dialogue keeps it: a tab and the body.
    virtual std::string RequestInspiration() = 0;
    // One Suggestion drawn at random.
    virtual std::string PickGuidance() = 0;
};

} // namespace veyrant

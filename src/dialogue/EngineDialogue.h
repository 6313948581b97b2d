#pragma once

// The message engine as the Write window asks for it: the entry parser, the random series that
// the typing feeds, and the requests, each handing back the text it composed.

#include "dialogue/DialogueEngine.h"

namespace veyrant {

class Engine;
class Clock;

class EngineDialogue final : public DialogueEngine {
public:
    explicit EngineDialogue(Engine& engine) : engine_(engine) {}

    EntryJudgement CheckEntry(const std::string& entryText, WriteMethod activeMethod, int pairCount,
                              SentenceType entryType) override;
    void RecordKey(float time, int characterCode) override;
    void StretchSeeds(float seriesSeed) override;
    ReplyKind RollAnswer(int percent) override;
    std::string RequestAnswer(SentenceType entryType) override;
    std::string RequestRemark(SentenceType entryType) override;
    std::string RequestIdeaVerdict(ReplyKind answerFlag) override;
    std::string RequestInterjection() override;
    std::string RequestInspiration() override;
    std::string PickGuidance() override;

private:
    Engine& engine_;
};

} // namespace veyrant

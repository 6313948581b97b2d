#pragma once

// Drives the Write window's logic the way the screen does: each key as key down then key press,
// and a key neither stage dropped applied to the box, as the text widget would apply it.

#include "core/Random.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/DialogueStore.h"
#include "dialogue/Mirror.h"
#include "shell/Settings.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace veyrant::testing {

// Judges entries and composes replies from a script, so a test chooses the outcome.
class ScriptedEngine : public DialogueEngine {
public:
    EntryJudgement CheckEntry(const std::string& entryText, int activeMethod,
                              int pairCount) override;
    void RecordKey(float time, int characterCode) override;
    void StretchSeeds(float seriesSeed) override { Stretched.push_back(seriesSeed); }
    int RollAnswer(int percent) override;
    std::string RequestAnswer(int entryType) override;
    std::string RequestRemark(int entryType) override;
    std::string RequestInterjection() override { return "\t The talk has turned inward."; }
    std::string RequestInspiration() override;
    std::string PickGuidance() override;

    std::deque<EntryJudgement> Judgements; // Enter by Enter; a statement when empty
    std::deque<int> Rolls;                 // answer flags; 1 when empty
    std::vector<int> RollPercents;
    std::vector<std::string> CheckedEntries;
    std::vector<int> KeyCodes;
    std::vector<float> KeyTimes;
    std::vector<float> Stretched;
    int Compositions = 0;
    int Inspirations = 0;
    int Guidances = 0;
};

class FakeStore : public DialogueStore {
public:
    std::optional<PriorDialogue> ReadWorkBuffers() override { return Prior; }
    void WriteWorkBuffers(const DialogueRecord& record) override { Written.push_back(record); }
    void DeleteWorkBuffers() override {
        ++Deletes;
        Prior.reset();
    }
    void AddToLibrary(const DialogueRecord& record) override { Added.push_back(record); }
    std::string LibraryStatus(const std::string& suggestionText) override {
        return suggestionText + "\r\n\r\nDialogue Library Status";
    }
    int SavedCount() const override { return Saved; }
    bool GuestMode() const override { return Guest; }

    std::optional<PriorDialogue> Prior;
    std::vector<DialogueRecord> Written;
    std::vector<DialogueRecord> Added;
    int Deletes = 0;
    int Saved = 0;
    bool Guest = false;
};

// Every draw is the next scripted value, or the last one when the script runs out.
class ScriptedRandom : public Random {
public:
    void Seed(float) override {}
    float Draw() override;
    std::deque<float> Draws{0.0f};
};

class MirrorDriver {
public:
    explicit MirrorDriver(const MirrorScale& scale = {});

    // Types each character of text (Windows-1252) into the focused box.
    void Type(const std::string& text);
    void Key(int keyCode, int keyAscii = 0);
    void Enter();
    void Backspace();
    // A key with no character, such as an arrow or a function key.
    void Press(int keyCode);
    // Starts the window and begins a Converse entry.
    void StartConverse();
    // Types and enters one accepted entry.
    void Converse(const std::string& entry);

    const Control& Box(MirrorControl control) const { return mirror->Controls()[control]; }
    std::string Text(MirrorControl control) const { return Box(control).Text; }
    const MirrorState& State() const { return mirror->State(); }

    FakeWindowLayer Layer;
    FakeClock Clock;
    ScriptedRandom Draws;
    ScriptedEngine Engine;
    FakeStore Store;
    Settings Options;
    std::unique_ptr<Mirror> mirror;
};

} // namespace veyrant::testing

#pragma once

// Drives the Write window's logic the way the screen does: each key as key down then key press,
// and a key neither stage dropped applied to the box, as the text widget would apply it.

#include "app/Application.h"
#include "core/KeyCodes.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/EngineDialogue.h"
#include "dialogue/Mirror.h"
#include "engine/Engine.h"
#include "engine/EngineFixture.h"
#include "storage/DialogueLibrary.h"
#include "storage/WorkBuffers.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <deque>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace veyrant::testing {

using enum MirrorControl;

// Judges entries and composes numbered replies from a script, so a test chooses the outcome.
class ScriptedEngine : public DialogueEngine {
public:
    EntryJudgement CheckEntry(const std::string& entryText, WriteMethod, int,
                              SentenceType) override;
    void RecordKey(float time, int characterCode) override {
        KeyTimes.push_back(time);
        KeyCodes.push_back(characterCode);
    }
    void StretchSeeds(float) override {}
    ReplyKind RollAnswer(int percent) override;
    std::string RequestAnswer(SentenceType entryType) override;
    std::string RequestRemark(SentenceType entryType) override;
    std::string RequestIdeaVerdict(ReplyKind answerFlag) override;
    std::string RequestInterjection() override { return "\t The talk has turned inward."; }
    std::string RequestInspiration() override {
        return "\tInspiration number " + std::to_string(++Inspirations) + ".";
    }
    std::string PickGuidance() override { return "Suggestion " + std::to_string(++Guidances); }

    struct Judgement {
        int Status, Type; // the verdict and sentence type by their numbers
    };
    std::deque<Judgement> Judgements; // Enter by Enter; a statement when empty
    std::deque<int> Rolls;            // answer flags; 1 when empty
    std::vector<int> RollPercents, KeyCodes;
    std::vector<std::string> CheckedEntries;
    std::vector<float> KeyTimes;
    int Compositions = 0, Inspirations = 0, Guidances = 0;
    std::string Last;
};

// An entry as the Dialogue keeps it: tab, opening mark, first letter capitalised, closing mark.
std::string Quoted(const std::string& entry);

class MirrorDriver {
public:
    // With the program's engine and its starter content in place of the scripted one.
    enum class Replies { Scripted, Composed };

    explicit MirrorDriver(Replies replies = Replies::Scripted);

    // Types each character of text (Windows-1252) into the focused box.
    void Type(const std::string& text);
    void Key(int keyCode, int keyAscii = 0);
    void Enter() { Key(KeyCode::Enter, KeyCode::Enter); }
    void Backspace() { Key(KeyCode::Backspace, KeyCode::Backspace); }
    // A key with no character, such as an arrow or a function key.
    void Press(int keyCode) { Key(keyCode, 0); }
    void StartConverse() {
        mirror->StartWindow();
        mirror->Click(MirrorControl::cmdConverse);
    }
    void Converse(const std::string& entry) {
        Type(entry);
        Enter();
    }
    void Click(MirrorControl control) { mirror->Click(control); }
    // Rests the mouse on a control, lets the hover timer tick once and reads the instruction.
    std::string Help(MirrorControl control) {
        mirror->MouseMove(control);
        mirror->TimerFired(TimerId::MirrorHover);
        return Text(MirrorControl::txtNote);
    }
    const Control& Box(MirrorControl control) const { return mirror->Controls()[control]; }
    std::string Text(MirrorControl control) const { return Box(control).Text; }
    const MirrorState& State() const { return mirror->State(); }
    // The line of the dump that shows one control, empty when it is hidden.
    std::string Shown(const std::string& control) const;
    // The titles of the boxes shown so far, each followed by ";".
    std::string Titles() const;
    // The work buffers as the next start reopens them: pair count, ":", Dialogue; "none" if none.
    std::string Kept() const;

    // Leaves work buffers that reopen as a Prior Dialogue of that many items.
    void LeavePriorDialogue(int pairCount);

    TempFolder Temp;
    FakeWindowLayer Layer;
    FakeClock Clock;
    ScriptedRandom Draws;
    ScriptedEngine Engine;
    Application App;
    DialogueLibrary Library;
    WorkBuffers Buffers;
    std::unique_ptr<veyrant::Engine> RealEngine;
    std::unique_ptr<EngineDialogue> Composer;
    std::unique_ptr<Mirror> mirror;
};

// A test of the Write window with one driver of its own.
class MirrorTest : public ::testing::Test, public MirrorDriver {};

} // namespace veyrant::testing

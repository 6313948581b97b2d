#include "dialogue/MirrorDriver.h"

#include "core/Text.h"

#include <stdexcept>

namespace veyrant::testing {

namespace {

// The next item of a script, or the default once the script has run out.
template <typename Item>
Item Next(std::deque<Item>& script, Item otherwise) {
    if (!script.empty()) {
        otherwise = script.front();
        script.pop_front();
    }
    return otherwise;
}

} // namespace

EntryJudgement ScriptedEngine::CheckEntry(const std::string& entryText, WriteMethod, int,
                                          SentenceType) {
    CheckedEntries.push_back(entryText);
    const auto judgement = Next(Judgements, {1, 2}); // a statement when the script is empty
    return {static_cast<EntryVerdict>(judgement.Status), static_cast<SentenceType>(judgement.Type)};
}

ReplyKind ScriptedEngine::RollAnswer(int percent) {
    RollPercents.push_back(percent);
    return static_cast<ReplyKind>(Next(Rolls, 1));
}

// As the program's engine does, a type with no message composes nothing and the last text comes
// back again.
std::string ScriptedEngine::RequestAnswer(SentenceType sentenceType) {
    const int type = static_cast<int>(sentenceType);
    if (type > 0 && type != 9) {
        Last = "\t Answer " + std::to_string(++Compositions) + " to type " + std::to_string(type) +
               ".  ";
    }
    return Last;
}

std::string ScriptedEngine::RequestRemark(SentenceType sentenceType) {
    const int type = static_cast<int>(sentenceType);
    if (type > 0) {
        Last = "\t Remark " + std::to_string(++Compositions) + " on type " + std::to_string(type) +
               ".";
    }
    return Last;
}

std::string ScriptedEngine::RequestIdeaVerdict(ReplyKind answerFlag) {
    const std::string number = std::to_string(++Compositions);
    Last = answerFlag == ReplyKind::Answer ? "is verdict " + number + "."
                                           : "\t Refusal " + number + ".";
    return Last;
}

std::string Quoted(const std::string& entry) {
    std::string text = std::string{Tab, OpenQuote} + entry + CloseQuote;
    UpperAt(text, 3);
    return text;
}

MirrorDriver::MirrorDriver(Replies replies)
    : App(AppFolder{Temp.Path()}, Temp / "program", Clock, Draws, Layer),
      Library(App.Folder, App.UserSettings, Clock, Layer),
      Buffers(App.Folder, App.UserSettings, Clock, Layer) {
    std::filesystem::create_directories(App.Folder.Exe());
    SetDisplayScale(App.UserSettings.DisplayOption, App.Scale);
    DialogueEngine* engine = &Engine;
    if (replies == Replies::Composed) {
        InstallEngineFiles(App.Folder);
        RealEngine = std::make_unique<veyrant::Engine>(Draws, Clock, Layer);
        if (!RealEngine->LoadSystem(App.Folder)) {
            throw std::runtime_error("the engine data did not load");
        }
        RealEngine->SeedSeries();
        Composer = std::make_unique<EngineDialogue>(*RealEngine);
        engine = Composer.get();
    }
    mirror = std::make_unique<Mirror>(App.WriteWorld(), *engine, Buffers, Library);
}

void MirrorDriver::LeavePriorDialogue(int pairCount) {
    std::string dialogue;
    for (int item = 1; item <= pairCount; ++item) {
        dialogue += "\r\n\r\n\t\x93" + ("Entry " + std::to_string(item)) + ".\x94\r\n\tResponse.";
    }
    Buffers.WriteWorkBuffers({"\tAn old inspiration.", dialogue, "An old suggestion.", pairCount});
}

void MirrorDriver::Key(int keyCode, int keyAscii) {
    const bool passedDown = mirror->KeyDown(keyCode) != 0;
    const int passed = keyAscii != 0 ? mirror->KeyPress(keyAscii) : 0;
    if (!passedDown || passed == 0) {
        return;
    }
    // Applied as the text widget would: at the caret, or a Backspace before it.
    const auto focus = mirror->Controls().Focus;
    std::string text = Box(focus).Text;
    long caret = Box(focus).Caret;
    if (passed == KeyCode::Backspace && caret > 0) {
        text.erase(static_cast<std::size_t>(--caret), 1);
    } else if (passed != KeyCode::Backspace && passed != KeyCode::Enter) {
        text.insert(static_cast<std::size_t>(caret++), 1, static_cast<char>(passed));
    }
    mirror->TextEdited(focus, text, caret);
}

void MirrorDriver::Type(const std::string& text) {
    for (char c : text) {
        const auto code = static_cast<unsigned char>(c);
        // Punctuation has its own key codes, which must not read as the arrows and Delete that
        // share their character numbers.
        const bool ownCode =
            (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9') || code == ' ';
        Key(code >= 'a' && code <= 'z' ? code - 32 : ownCode ? code : 0xBE, code);
    }
}

std::string MirrorDriver::Shown(const std::string& control) const {
    const std::string dump = mirror->Dump();
    const auto start = dump.find("\n" + control + ": ");
    return start == std::string::npos
               ? std::string{}
               : dump.substr(start + 1, dump.find('\n', start + 1) - start - 1);
}

std::string MirrorDriver::Titles() const {
    std::string titles;
    for (const auto& box : Layer.Boxes) {
        titles += box.Title + ";";
    }
    return titles;
}

std::string MirrorDriver::Kept() const {
    const auto buffers = Buffers.ReadWorkBuffers();
    return buffers
               ? std::to_string(buffers->Buffers.PairCount) + ":" + buffers->Buffers.DialogueText
               : "none";
}

} // namespace veyrant::testing

#include "engine/Engine.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "engine/EngineFiles.h"

#include <new>

namespace veyrant {

Engine::Engine(Random& random, Clock& clock, WindowLayer& windows)
    : random_(random), clock_(clock), windows_(windows),
      composer_(tables_, stocks_, random, windows) {}

namespace {

// The message numbers by sentence type; 0 where the type has none.
std::int16_t AnswerMessage(std::int16_t type) {
    switch (type) {
    case 1:
        return 1;
    case 10:
        return 2;
    case 20:
        return 3;
    case 30:
        return 4;
    case 40:
        return 5;
    case 50:
        return 6;
    case 60:
        return 7;
    case 2:
        return 8;
    default:
        return 0;
    }
}

std::int16_t RemarkMessage(std::int16_t type) {
    if (type >= 10) {
        return 12;
    }
    switch (type) {
    case 1:
        return 11;
    case 2:
        return 13;
    case 9:
        return 14;
    default:
        return 0;
    }
}

constexpr std::int16_t VerdictYes = 9;
constexpr std::int16_t VerdictNo = 10;
constexpr std::int16_t InspirationMessage = 15;
constexpr std::int16_t InterjectionMessage = 16;

} // namespace

// The plan file is read at the first request and kept; a damaged one gives its box at each
// request until it reads well, and the rest of the program goes on meanwhile.
bool Engine::KeepPlans() {
    if (plans_) {
        return true;
    }
    int number = 0;
    try {
        plans_ = std::make_unique<KeptPlans>(ReadWholeFile(planFile_), tables_);
        return true;
    } catch (const ProgramError& error) {
        number = error.Number();
    } catch (const std::bad_alloc&) {
        number = ErrorNumber::OutOfMemory;
    }
    windows_.ShowMessage({"Error LoadPlan",
                          "Error " + std::to_string(number) +
                              " reading the message plans in qdr41.mtx. The Sagrel cannot "
                              "compose a response until the file is restored.",
                          MessageIcon::Warning, MessageButtons::Ok, 1});
    return false;
}

void Engine::ShowComposeError(int number, std::int16_t message) {
    windows_.ShowMessage({"Error BuildMessage",
                          "Error " + std::to_string(number) + " encountered composing message " +
                              std::to_string(message) + ".",
                          MessageIcon::Warning, MessageButtons::Ok, 1});
}

void Engine::Compose(std::int16_t number) {
    if (!KeepPlans()) {
        composer_.ClearComposition();
        composer_.AssembleMessage();
        return;
    }
    try {
        composer_.BuildMessage(number, SeedPool, *plans_);
        composer_.AssembleMessage();
    } catch (const ProgramError& error) {
        ShowComposeError(error.Number(), number);
        composer_.ClearComposition();
        composer_.AssembleMessage();
    }
}

void Engine::Assemble() {
    try {
        composer_.AssembleMessage();
    } catch (const ProgramError& error) {
        ShowComposeError(error.Number(), 0);
        composer_.ClearComposition();
        composer_.AssembleMessage();
    }
}

void Engine::RequestAnswer(std::int16_t type) {
    windows_.SetBusyPointer(true);
    if (const auto message = AnswerMessage(type); message != 0) {
        Compose(message);
    } else {
        Assemble();
    }
    ReplyText = composer_.ComposedText;
    windows_.SetBusyPointer(false);
}

void Engine::RequestRemark(std::int16_t type) {
    if (const auto message = RemarkMessage(type); message != 0) {
        Compose(message);
    } else {
        Assemble();
    }
    ReplyText = composer_.ComposedText;
}

void Engine::RequestIdeaVerdict(std::int16_t flag) {
    if (flag == 1 || flag == 0) {
        Compose(flag == 1 ? VerdictYes : VerdictNo);
    } else {
        Assemble();
    }
    IdeaVerdict = composer_.ComposedText;
    if (flag == 1) {
        // The verdict goes on the sentence "Your idea ... ." in lower case.
        IdeaVerdict = Mid(IdeaVerdict, 3);
        LowerAt(IdeaVerdict, 1);
    }
}

void Engine::RequestInspiration() {
    Compose(InspirationMessage);
    InspirationText = std::string(1, Tab) + Mid(composer_.ComposedText, 3);
}

void Engine::RequestInterjection() {
    Compose(InterjectionMessage);
    ReplyText = composer_.ComposedText;
}

} // namespace veyrant

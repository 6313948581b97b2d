#include "engine/Engine.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "engine/EngineFiles.h"

#include <new>
#include <optional>

namespace veyrant {

Engine::Engine(Random& random, Clock& clock, WindowLayer& windows)
    : random_(random), clock_(clock), windows_(windows),
      composer_(tables_, stocks_, random, windows) {}

namespace {

// The message that answers each sentence type, or makes a remark on it; none where the type has
// none.
std::optional<MessageNumber> AnswerMessage(SentenceType type) {
    switch (type) {
    case SentenceType::YesNoQuestion:
        return MessageNumber::YesNoAnswer;
    case SentenceType::WhoQuestion:
        return MessageNumber::WhoAnswer;
    case SentenceType::WhatQuestion:
        return MessageNumber::WhatAnswer;
    case SentenceType::WhenQuestion:
        return MessageNumber::WhenAnswer;
    case SentenceType::WhereQuestion:
        return MessageNumber::WhereAnswer;
    case SentenceType::WhyQuestion:
        return MessageNumber::WhyAnswer;
    case SentenceType::HowQuestion:
        return MessageNumber::HowAnswer;
    case SentenceType::Statement:
        return MessageNumber::StatementAnswer;
    default:
        return std::nullopt;
    }
}

// Every question by its word, the Suppose question among them, gets the same remark.
std::optional<MessageNumber> RemarkMessage(SentenceType type) {
    if (static_cast<std::int16_t>(type) >= static_cast<std::int16_t>(SentenceType::WhoQuestion)) {
        return MessageNumber::QuestionRemark;
    }
    switch (type) {
    case SentenceType::YesNoQuestion:
        return MessageNumber::YesNoRemark;
    case SentenceType::Statement:
        return MessageNumber::StatementRemark;
    case SentenceType::SupposeQuestion:
        return MessageNumber::SupposeRemark;
    default:
        return std::nullopt;
    }
}

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

void Engine::Compose(MessageNumber message) {
    const auto number = static_cast<std::int16_t>(message);
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

void Engine::RequestAnswer(SentenceType type) {
    windows_.SetBusyPointer(true);
    if (const auto message = AnswerMessage(type)) {
        Compose(*message);
    } else {
        Assemble();
    }
    ReplyText = composer_.ComposedText;
    windows_.SetBusyPointer(false);
}

void Engine::RequestRemark(SentenceType type) {
    if (const auto message = RemarkMessage(type)) {
        Compose(*message);
    } else {
        Assemble();
    }
    ReplyText = composer_.ComposedText;
}

void Engine::RequestIdeaVerdict(ReplyKind flag) {
    Compose(flag == ReplyKind::Answer ? MessageNumber::IdeaChosen : MessageNumber::IdeaDeclined);
    IdeaVerdict = composer_.ComposedText;
    if (flag == ReplyKind::Answer) {
        // The verdict goes on the sentence "Your idea ... ." in lower case.
        IdeaVerdict = Mid(IdeaVerdict, 3);
        LowerAt(IdeaVerdict, 1);
    }
}

void Engine::RequestInspiration() {
    Compose(MessageNumber::Inspiration);
    InspirationText = std::string(1, Tab) + Mid(composer_.ComposedText, 3);
}

void Engine::RequestInterjection() {
    Compose(MessageNumber::Interjection);
    ReplyText = composer_.ComposedText;
}

} // namespace veyrant

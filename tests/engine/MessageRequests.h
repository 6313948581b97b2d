#pragma once

// Every message the stocks and plans serve, asked for through the request the Write window
// uses, for the tests that read what the content composes.

#include "engine/Engine.h"

#include <cstdint>
#include <ostream>
#include <string>

namespace veyrant::testing {

enum class Request { Answer, Remark, IdeaVerdict, Inspiration, Interjection };

struct MessageRequest {
    std::int16_t Message;
    Request Kind;
    std::int16_t Argument; // the entry type, or the verdict's flag
    const char* Name;
};

inline const MessageRequest Messages[] = {
    {1, Request::Answer, 1, "YesNoAnswer"},       {2, Request::Answer, 10, "WhoAnswer"},
    {3, Request::Answer, 20, "WhatAnswer"},       {4, Request::Answer, 30, "WhenAnswer"},
    {5, Request::Answer, 40, "WhereAnswer"},      {6, Request::Answer, 50, "WhyAnswer"},
    {7, Request::Answer, 60, "HowAnswer"},        {8, Request::Answer, 2, "StatementAnswer"},
    {9, Request::IdeaVerdict, 1, "IdeaChosen"},   {10, Request::IdeaVerdict, 0, "IdeaDeclined"},
    {11, Request::Remark, 1, "YesNoRemark"},      {12, Request::Remark, 10, "QuestionRemark"},
    {13, Request::Remark, 2, "StatementRemark"},  {14, Request::Remark, 9, "SupposeRemark"},
    {15, Request::Inspiration, 0, "Inspiration"}, {16, Request::Interjection, 0, "Interjection"},
};

inline void PrintTo(const MessageRequest& request, std::ostream* out) {
    *out << "message " << request.Message;
}

inline std::string Compose(Engine& engine, const MessageRequest& request) {
    switch (request.Kind) {
    case Request::Answer:
        engine.RequestAnswer(static_cast<SentenceType>(request.Argument));
        return engine.ReplyText;
    case Request::Remark:
        engine.RequestRemark(static_cast<SentenceType>(request.Argument));
        return engine.ReplyText;
    case Request::IdeaVerdict:
        engine.RequestIdeaVerdict(static_cast<ReplyKind>(request.Argument));
        return engine.IdeaVerdict;
    case Request::Inspiration:
        engine.RequestInspiration();
        return engine.InspirationText;
    case Request::Interjection:
        engine.RequestInterjection();
        return engine.ReplyText;
    }
    return {};
}

} // namespace veyrant::testing

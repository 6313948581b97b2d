#include "engine/MessagePlan.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"

namespace veyrant {

void ReadPlan(FieldReader& reader, MessagePlan& plan) {
    plan = MessagePlan{};
    reader.ReadAny();
    plan.TermCount = reader.ReadInt16();
    plan.BlockCount = reader.ReadInt16();
    if (plan.TermCount < 0 || plan.BlockCount < 0) {
        throw ProgramError(SubscriptOutOfRange);
    }
    // A block is at least its label and six slots of a label and a count.
    reader.RequireRoomFor(std::int64_t{plan.BlockCount} * (1 + 2 * SlotsPerBlock));
    const auto blocks = static_cast<std::size_t>(plan.BlockCount) + 1;
    plan.SlotCount.assign(blocks, {});
    plan.SlotChoice.assign(blocks, {});
    for (std::size_t b = 1; b < blocks; ++b) {
        reader.ReadAny();
        for (std::size_t s = 1; s <= SlotsPerBlock; ++s) {
            reader.ReadAny();
            const std::int16_t count = reader.ReadInt16();
            if (count < 0 || count > MaxSlotChoices) {
                throw ProgramError(SubscriptOutOfRange);
            }
            plan.SlotCount[b][s] = count;
            auto& choices = plan.SlotChoice[b][s];
            choices.assign(static_cast<std::size_t>(count) + 1, 0);
            for (std::size_t k = 1; k < choices.size(); ++k) {
                choices[k] = reader.ReadInt16();
            }
        }
    }
    if (reader.ReadInt16() != 0) {
        throw ProgramError(PlanBlocksUnclosed);
    }
    // A term is its running number, its weight and its text.
    reader.RequireRoomFor(std::int64_t{plan.TermCount} * 3);
    const auto terms = static_cast<std::size_t>(plan.TermCount) + 1;
    plan.TermWeight.assign(terms, 0);
    plan.TermText.assign(terms, std::string());
    for (std::size_t t = 1; t < terms; ++t) {
        if (reader.ReadInt16() != static_cast<std::int16_t>(t)) {
            throw ProgramError(PlanTermOutOfStep);
        }
        plan.TermWeight[t] = reader.ReadInt16();
        plan.TermText[t] = reader.ReadString();
    }
}

void LoadPlan(const std::filesystem::path& planFile, std::string_view kind, std::int16_t number,
              const EngineTables& tables, MessagePlan& plan) {
    const std::string text = ReadWholeFile(planFile);
    FieldReader reader(text);
    for (int i = 1; i <= tables.MessageCount; ++i) {
        ReadPlan(reader, plan);
        if (kind == "Message" && i == number) {
            return;
        }
    }
    for (int i = 1; i <= tables.SectionCount; ++i) {
        ReadPlan(reader, plan);
        if (kind == "Section" && i == number) {
            return;
        }
    }
}

std::string JoinTerms(const std::array<std::string_view, SlotsPerBlock + 1>& terms) {
    std::string text;
    for (std::size_t s = 1; s < SlotsPerBlock; ++s) {
        if (!terms[s].empty()) {
            text.append(terms[s]).append(", ");
        }
    }
    text.append(terms[SlotsPerBlock]);
    text = RTrim(text);
    if (!text.empty() && text.back() == ',') {
        text.pop_back();
    }
    return text;
}

namespace {

const std::string& TermAt(const MessagePlan& plan, std::int16_t term) {
    if (term < 0 || term > plan.TermCount) {
        throw ProgramError(SubscriptOutOfRange);
    }
    return plan.TermText[static_cast<std::size_t>(term)];
}

} // namespace

std::string GenMatrixSeq(const MessagePlan& plan, std::int32_t target) {
    std::int32_t counter = 0;
    std::array<std::size_t, SlotsPerBlock + 1> pick{};
    for (std::size_t b = 1; b <= static_cast<std::size_t>(plan.BlockCount); ++b) {
        const auto& count = plan.SlotCount[b];
        for (pick[1] = 1; pick[1] <= static_cast<std::size_t>(count[1]); ++pick[1]) {
            for (pick[2] = 1; pick[2] <= static_cast<std::size_t>(count[2]); ++pick[2]) {
                for (pick[3] = 1; pick[3] <= static_cast<std::size_t>(count[3]); ++pick[3]) {
                    for (pick[4] = 1; pick[4] <= static_cast<std::size_t>(count[4]); ++pick[4]) {
                        for (pick[5] = 1; pick[5] <= static_cast<std::size_t>(count[5]);
                             ++pick[5]) {
                            for (pick[6] = 1; pick[6] <= static_cast<std::size_t>(count[6]);
                                 ++pick[6]) {
                                if (++counter != target) {
                                    continue;
                                }
                                std::array<std::string_view, SlotsPerBlock + 1> terms;
                                for (std::size_t s = 1; s <= SlotsPerBlock; ++s) {
                                    terms[s] = TermAt(plan, plan.SlotChoice[b][s][pick[s]]);
                                }
                                return JoinTerms(terms);
                            }
                        }
                    }
                }
            }
        }
    }
    return {};
}

std::vector<std::int16_t> ReadSequence(std::string_view sequenceText) {
    std::vector<std::int16_t> numbers;
    FieldReader reader(sequenceText);
    while (!reader.AtEnd()) {
        numbers.push_back(reader.ReadInt16());
    }
    return numbers;
}

} // namespace veyrant

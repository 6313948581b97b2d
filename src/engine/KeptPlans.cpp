#include "engine/KeptPlans.h"

#include "core/ProgramError.h"
#include "core/Text.h"

#include <algorithm>

namespace veyrant {

namespace {

// A term must read the same alone as inside a joined sequence: no empty field at either end or
// between two commas, which the joined text would read as a zero.
bool PartsCleanly(std::string_view text) {
    if (text.empty()) {
        return true;
    }
    const std::string trimmed = Trim(text);
    if (trimmed.empty() || trimmed.front() == ',' || trimmed.back() == ',' ||
        trimmed.find_first_of("\r\n\"") != std::string::npos) {
        return false;
    }
    bool lastWasComma = false;
    for (const char c : trimmed) {
        if (c == ',') {
            if (lastWasComma) {
                return false;
            }
            lastWasComma = true;
        } else if (c != ' ' && c != '\t') {
            lastWasComma = false;
        }
    }
    return true;
}

} // namespace

KeptPlans::Plan KeptPlans::Keep(const MessagePlan& plan) {
    Plan kept;
    kept.Terms.resize(static_cast<std::size_t>(plan.TermCount) + 1);
    for (std::size_t t = 1; t < kept.Terms.size(); ++t) {
        if (!PartsCleanly(plan.TermText[t])) {
            throw ProgramError(ErrorNumber::TypeMismatch);
        }
        kept.Terms[t] = ReadSequence(plan.TermText[t]);
    }
    for (std::size_t b = 1; b <= static_cast<std::size_t>(plan.BlockCount); ++b) {
        Block block;
        block.Combos = 1;
        for (std::size_t s = 1; s <= SlotsPerBlock; ++s) {
            const auto& choices = plan.SlotChoice[b][s];
            block.Choices[s].assign(choices.begin() + 1, choices.end());
            for (const std::int16_t term : block.Choices[s]) {
                if (term < 0 || term > plan.TermCount) {
                    throw ProgramError(SubscriptOutOfRange);
                }
            }
            block.Combos *= static_cast<std::int64_t>(block.Choices[s].size());
        }
        kept.Combos += block.Combos;
        kept.Blocks.push_back(std::move(block));
    }
    return kept;
}

KeptPlans::KeptPlans(std::string_view planFileText, const EngineTables& tables)
    : messageCount_(tables.MessageCount), sectionCount_(tables.SectionCount) {
    FieldReader reader(planFileText);
    MessagePlan plan;
    const int total = std::max(0, int{tables.MessageCount}) + std::max(0, int{tables.SectionCount});
    // Grown plan by plan, not reserved: the counts come from another file, and a plan file
    // too short for them ends at its own end.
    for (int i = 0; i < total; ++i) {
        ReadPlan(reader, plan);
        plans_.push_back(Keep(plan));
    }
}

const KeptPlans::Plan& KeptPlans::Find(std::string_view kind, std::int16_t number) const {
    if (plans_.empty()) {
        throw ProgramError(SubscriptOutOfRange);
    }
    if (kind == "Message" && number >= 1 && number <= messageCount_) {
        return plans_[static_cast<std::size_t>(number - 1)];
    }
    if (kind == "Section" && number >= 1 && number <= sectionCount_) {
        return plans_[static_cast<std::size_t>(messageCount_ + number - 1)];
    }
    // A scan that never meets the wanted plan ends on the last plan of the file.
    return plans_.back();
}

std::int64_t KeptPlans::TrueCombos(std::string_view kind, std::int16_t number) const {
    return Find(kind, number).Combos;
}

void KeptPlans::AppendSequence(std::string_view kind, std::int16_t number, std::int32_t target,
                               std::vector<std::int16_t>& sequence) {
    const Plan& plan = Find(kind, number);
    if (target < 1) {
        return;
    }
    std::int64_t offset = target - 1;
    for (const Block& block : plan.Blocks) {
        if (offset >= block.Combos) {
            offset -= block.Combos;
            continue;
        }
        std::array<std::int16_t, SlotsPerBlock + 1> chosen{};
        for (std::size_t s = SlotsPerBlock; s >= 1; --s) {
            const auto radix = static_cast<std::int64_t>(block.Choices[s].size());
            chosen[s] = block.Choices[s][static_cast<std::size_t>(offset % radix)];
            offset /= radix;
        }
        for (std::size_t s = 1; s <= SlotsPerBlock; ++s) {
            const auto& numbers = plan.Terms[static_cast<std::size_t>(chosen[s])];
            sequence.insert(sequence.end(), numbers.begin(), numbers.end());
        }
        return;
    }
}

} // namespace veyrant

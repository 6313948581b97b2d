#include "engine/Composer.h"

#include "core/ProgramError.h"
#include "core/Text.h"

namespace veyrant {

namespace {

template <typename Value>
Value At(const std::vector<Value>& list, long index) {
    if (index < 0 || static_cast<std::size_t>(index) >= list.size()) {
        throw ProgramError(SubscriptOutOfRange);
    }
    return list[static_cast<std::size_t>(index)];
}

bool Marked(const std::vector<char>& marks, std::size_t component) {
    return component < marks.size() && marks[component] != 0;
}

float SeedAt(const std::vector<float>& pool, std::size_t index) {
    return index < pool.size() ? pool[index] : 0.0f;
}

} // namespace

void Composer::MarkJoiners() {
    const auto components = static_cast<std::size_t>(tables_.ComponentCount) + 1;
    caseKeeper_.assign(components, 0);
    tightJoiner_.assign(components, 0);
    for (std::size_t i = 1; i < tables_.CaseKeepers.size(); ++i) {
        const auto c = tables_.CaseKeepers[i];
        if (c >= 0 && static_cast<std::size_t>(c) < components) {
            caseKeeper_[static_cast<std::size_t>(c)] = 1;
        }
    }
    for (std::size_t i = 1; i < tables_.TightJoiners.size(); ++i) {
        const auto c = tables_.TightJoiners[i];
        if (c >= 0 && static_cast<std::size_t>(c) < components) {
            tightJoiner_[static_cast<std::size_t>(c)] = 1;
        }
    }
}

void Composer::SplitSeeds(const std::vector<float>& seedPool) {
    const auto sections = static_cast<std::size_t>(tables_.MaxSections);
    const std::size_t poolSize = seedPool.empty() ? 0 : seedPool.size() - 1;
    SectionSeeds.assign(sections + 4, 0.0f);
    RowSeeds.assign(poolSize + 1, 0.0f);
    MessageSeed = SeedAt(seedPool, 1);
    for (std::size_t i = 1; i <= sections + 1; ++i) {
        SectionSeeds[i] = SeedAt(seedPool, i + 1);
    }
    for (std::size_t i = 1; sections + 2 + i <= poolSize; ++i) {
        RowSeeds[i] = seedPool[sections + 2 + i];
    }
}

int Composer::Draw(float seed, std::int32_t scale) {
    random_.Seed(seed);
    return random_.Scaled(scale);
}

void Composer::BuildMessage(std::int16_t number, const std::vector<float>& seedPool,
                            PlanSource& plans) {
    SplitSeeds(seedPool);
    std::vector<std::int16_t> sections;
    const std::int32_t messageTarget = Draw(MessageSeed, At(tables_.MessageCombos, number));
    plans.AppendSequence("Message", number, messageTarget, sections);
    sequence_.clear();
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const std::int16_t section = sections[i];
        const float seed = At(SectionSeeds, static_cast<long>(i) + 1);
        // The plan is looked up before its count, as the file scan would meet it first.
        const std::int32_t combos = At(tables_.SectionCombos, section);
        plans.AppendSequence("Section", section, Draw(seed, combos), sequence_);
        // Checked as it grows: each section adds no more than its plan file holds, while the
        // whole could grow with the product of two of its counts.
        if (sequence_.size() > static_cast<std::size_t>(INT16_MAX)) {
            throw ProgramError(ErrorNumber::Overflow);
        }
    }
    const auto length = sequence_.size();
    CompositionComponents.assign(length + 1, 0);
    CompositionRows.assign(length + 1, 0);
    for (std::size_t i = 1; i <= length; ++i) {
        const std::int16_t component = sequence_[i - 1];
        CompositionComponents[i] = component;
        CompositionRows[i] = static_cast<std::int16_t>(
            Draw(At(RowSeeds, static_cast<long>(i)), At(tables_.ComponentRows, component)));
    }
    CompositionLength = static_cast<std::int16_t>(length);
}

void Composer::ClearComposition() {
    CompositionComponents.assign(1, 0);
    CompositionRows.assign(1, 0);
    CompositionLength = 0;
}

void Composer::Rcmp(std::int16_t component, std::int16_t row) {
    const std::int16_t block = At(tables_.ComponentBlock, component);
    if (block < 1 || block > MaxDataBlocks) {
        windows_.ShowMessage({"Coding error in Rcmp, Engine21",
                              "Error in Sub Rcmp configuration. Must be put into comformity for "
                              "the correct number of SysBlocks.",
                              MessageIcon::None, MessageButtons::OkCancel, 1});
        return;
    }
    const auto& stock = stocks_.Rows[static_cast<std::size_t>(block)];
    PhraseOut = At(stock, tables_.Map.At(block, component, row));
}

void Composer::AssembleMessage() {
    ComposedText.assign(1, Tab);
    if (CompositionLength < 1) {
        return;
    }
    Rcmp(CompositionComponents[1], CompositionRows[1]);
    ComposedText += PhraseOut;
    bool tight = false;
    for (std::size_t i = 2; i <= static_cast<std::size_t>(CompositionLength); ++i) {
        const auto component = static_cast<std::size_t>(CompositionComponents[i]);
        const auto before = static_cast<std::size_t>(CompositionComponents[i - 1]);
        Rcmp(CompositionComponents[i], CompositionRows[i]);
        if (Marked(tightJoiner_, before)) {
            tight = true;
        }
        // The first CaseKeeper is the comma: behind it the sentence goes on in lower case.
        const bool keepsOwnCase = Marked(caseKeeper_, component);
        const bool afterComma = tables_.CaseKeepers.size() > 1 &&
                                CompositionComponents[i - 1] == tables_.CaseKeepers[1];
        const bool startsSentence = Marked(caseKeeper_, before) && !afterComma;
        if (!keepsOwnCase && !startsSentence) {
            LowerAt(PhraseOut, 2);
            // The joining blank goes only here, so a tight join held back by a case rule
            // waits for the next row that is lowered.
            if (tight) {
                PhraseOut = LTrim(PhraseOut);
                tight = false;
            }
        }
        ComposedText += PhraseOut;
    }
}

} // namespace veyrant

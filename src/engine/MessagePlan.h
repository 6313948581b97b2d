#pragma once

// A message or section plan: blocks of six slots, each slot a list of choices, each choice a
// term whose text lists section or component numbers. One pick per slot gives one sequence.
// These are the plain routines over the plan file: LoadPlan scans the file from its start for
// the wanted plan, GenMatrixSeq counts combinations up to the target. The program composes from
// KeptPlans instead; these stay as the reference it must agree with.

#include "core/FieldReader.h"
#include "engine/EngineTables.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

inline constexpr int SlotsPerBlock = 6;
inline constexpr int MaxSlotChoices = 250;
// Raised when the blocks of a plan are not closed by 0.
inline constexpr int PlanBlocksUnclosed = 1002;
// Raised when a term's running number is out of step.
inline constexpr int PlanTermOutOfStep = 1004;

struct MessagePlan {
    std::int16_t TermCount = 0;
    std::int16_t BlockCount = 0;
    // [block][slot], slots 1 to 6; entry 0 of each idle.
    std::vector<std::array<std::int16_t, SlotsPerBlock + 1>> SlotCount;
    // [block][slot][choice], choices from 1.
    std::vector<std::array<std::vector<std::int16_t>, SlotsPerBlock + 1>> SlotChoice;
    std::vector<std::int16_t> TermWeight;
    std::vector<std::string> TermText;
};

// Reads the next plan; raises ProgramError (1002, 1004, or the field reader's own).
void ReadPlan(FieldReader& reader, MessagePlan& plan);

// Reads the plan file from its start up to the plan of that kind ("Message" or "Section") and
// number. A number beyond the count, or another kind, leaves the last plan of the file.
void LoadPlan(const std::filesystem::path& planFile, std::string_view kind, std::int16_t number,
              const EngineTables& tables, MessagePlan& plan);

// The sequence text of combination target, counting blocks in order and within a block the
// slots as nested loops with slot 6 fastest. Empty when the plan has fewer combinations.
std::string GenMatrixSeq(const MessagePlan& plan, std::int32_t target);

// The text of one combination: the terms of slots 1 to 5 each with ", " behind a non-empty
// text, then slot 6, blanks and a final comma cut.
std::string JoinTerms(const std::array<std::string_view, SlotsPerBlock + 1>& terms);

// The numbers of a sequence text, parted by commas, blanks and line ends.
std::vector<std::int16_t> ReadSequence(std::string_view sequenceText);

} // namespace veyrant

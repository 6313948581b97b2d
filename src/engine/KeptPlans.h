#pragma once

// Every plan of the plan file, read once and kept, with each term's numbers parsed in advance.
// A combination number is turned into its sequence by arithmetic: find its block, then read
// the offset within the block as a mixed-radix number over the six slots, slot 6 fastest.

#include "engine/EngineTables.h"
#include "engine/MessagePlan.h"
#include "engine/PlanSource.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace veyrant {

class KeptPlans final : public PlanSource {
public:
    // Reads the plan file's text; raises ProgramError as ReadPlan does, and 13 for a term whose
    // text would not part cleanly from its neighbours in a joined sequence.
    KeptPlans(std::string_view planFileText, const EngineTables& tables);

    void AppendSequence(std::string_view kind, std::int16_t number, std::int32_t target,
                        std::vector<std::int16_t>& sequence) override;

    // Combinations the plan truly yields, for checks against the tables.
    std::int64_t TrueCombos(std::string_view kind, std::int16_t number) const;

private:
    struct Block {
        std::array<std::vector<std::int16_t>, SlotsPerBlock + 1> Choices; // from index 0
        std::int64_t Combos = 0;
    };
    struct Plan {
        std::vector<std::vector<std::int16_t>> Terms; // numbers of each term, index 0 idle
        std::vector<Block> Blocks;
        std::int64_t Combos = 0;
    };

    static Plan Keep(const MessagePlan& plan);
    const Plan& Find(std::string_view kind, std::int16_t number) const;

    std::vector<Plan> plans_; // messages first, then sections, as in the file
    std::int16_t messageCount_ = 0;
    std::int16_t sectionCount_ = 0;
};

} // namespace veyrant

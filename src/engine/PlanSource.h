#pragma once

// Where the composer gets the sequence of a plan's combination from.

#include <cstdint>
#include <string_view>
#include <vector>

namespace veyrant {

class PlanSource {
public:
    virtual ~PlanSource() = default;
    // Appends the section or component numbers of combination target of the plan of that kind
    // ("Message" or "Section") and number; appends nothing for a target beyond the plan.
    virtual void AppendSequence(std::string_view kind, std::int16_t number, std::int32_t target,
                                std::vector<std::int16_t>& sequence) = 0;
};

} // namespace veyrant

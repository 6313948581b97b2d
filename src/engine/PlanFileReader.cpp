#include "engine/PlanFileReader.h"

namespace veyrant {

void PlanFileReader::AppendSequence(std::string_view kind, std::int16_t number, std::int32_t target,
                                    std::vector<std::int16_t>& sequence) {
    LoadPlan(planFile_, kind, number, tables_, plan_);
    const auto numbers = ReadSequence(GenMatrixSeq(plan_, target));
    sequence.insert(sequence.end(), numbers.begin(), numbers.end());
}

} // namespace veyrant

#pragma once

// The plan file as the plain routines read it: the whole file re-read and scanned for every
// plan, the combination found by counting up to it. Slow on purpose; the reference that
// KeptPlans must agree with, and the baseline it is measured against.

#include "engine/EngineTables.h"
#include "engine/MessagePlan.h"
#include "engine/PlanSource.h"

#include <filesystem>

namespace veyrant {

class PlanFileReader final : public PlanSource {
public:
    PlanFileReader(std::filesystem::path planFile, const EngineTables& tables)
        : planFile_(std::move(planFile)), tables_(tables) {}

    void AppendSequence(std::string_view kind, std::int16_t number, std::int32_t target,
                        std::vector<std::int16_t>& sequence) override;

private:
    std::filesystem::path planFile_;
    const EngineTables& tables_;
    MessagePlan plan_;
};

} // namespace veyrant

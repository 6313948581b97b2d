// The bytes as the plan file behind the small tables of the tests: read as the engine keeps them at
// its first request, then every message composed from them, with the engine's own handlers.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "core/ProgramError.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "engine/KeptPlans.h"

#include <memory>
#include <new>

namespace {

struct SmallEngine {
    veyrant::testing::FakeWindowLayer Windows;
    veyrant::testing::FakeClock Clock;
    veyrant::Random Random;
    veyrant::Engine Engine{Random, Clock, Windows};

    SmallEngine() {
        const auto& folder = veyrant::fuzz::ScratchFolder();
        veyrant::WriteWholeFile(folder.Exe() / veyrant::SystemFileName,
                                veyrant::ReadWholeFile(VEYRANT_SMALL_ENGINE "/small.sys"));
        // Without the tables every input would stop at the first request.
        if (!Engine.LoadSystem(folder)) {
            __builtin_trap();
        }
        Engine.SeedSeries();
        Engine.StretchSeeds();
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    static SmallEngine small;
    const EngineTables& tables = small.Engine.Tables();
    std::unique_ptr<KeptPlans> plans;
    try {
        plans = std::make_unique<KeptPlans>(fuzz::AsText(data, size), tables);
    } catch (const ProgramError&) {
        return 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
    Composer composer(tables, small.Engine.Stocks(), small.Random, small.Windows);
    composer.MarkJoiners();
    for (std::int16_t message = 0; message <= tables.MessageCount + 1; ++message) {
        try {
            composer.BuildMessage(message, small.Engine.SeedPool, *plans);
            composer.AssembleMessage();
        } catch (const ProgramError&) {
        }
    }
    small.Windows.Boxes.clear();
    return 0;
}

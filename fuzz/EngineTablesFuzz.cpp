// The bytes as exe/qdr41.sys beside the small plan file of the tests: the engine loads them as
// at start-up and, when they load, composes every kind of reply from them.

#include "FakeClock.h"
#include "FakeWindowLayer.h"
#include "FuzzInput.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const AppFolder& folder = fuzz::ScratchFolder();
    static const bool planLaid = [&folder] {
        WriteWholeFile(folder.Exe() / PlanFileName,
                       ReadWholeFile(VEYRANT_SMALL_ENGINE "/small.mtx"));
        return true;
    }();
    (void)planLaid;
    WriteWholeFile(folder.Exe() / SystemFileName, fuzz::AsText(data, size));

    testing::FakeWindowLayer windows;
    testing::FakeClock clock;
    Random random;
    Engine engine(random, clock, windows);
    if (!engine.LoadSystem(folder)) {
        return 0;
    }
    engine.SeedSeries();
    engine.StretchSeeds();
    using enum SentenceType;
    for (const SentenceType type :
         {YesNoQuestion, Statement, SupposeQuestion, WhoQuestion, WhatQuestion, WhenQuestion,
          WhereQuestion, WhyQuestion, HowQuestion, None, SubjectUnclear}) {
        engine.RequestAnswer(type);
        engine.RequestRemark(type);
    }
    engine.RequestIdeaVerdict(ReplyKind::Remark);
    engine.RequestIdeaVerdict(ReplyKind::Answer);
    engine.RequestInspiration();
    engine.RequestInterjection();
    return 0;
}

// The engine's costs: one reply per message composed from the kept plans, against the plain
// routines that re-read and re-parse qdr41.mtx for the message and each section and count up
// to the target; classifying an entry; loading the system.
//
// Targets with the full content: a reply under 20 microseconds (median) and at least 100 times
// faster than the plain routines; LoadSystem under 20 milliseconds.

#include "common/ConsoleSeams.h"
#include "core/Random.h"
#include "core/Text.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "engine/EntryParser.h"
#include "engine/PlanFileReader.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>

namespace veyrant {
namespace {

// One program folder with the engine files laid down, for the whole run, removed at its end.
struct BenchFolderOwner {
    AppFolder Folder;
    BenchFolderOwner() {
        char name[] = "/tmp/engine-bench-XXXXXX";
        if (mkdtemp(name) == nullptr) {
            std::abort();
        }
        Folder.Root = name;
        InstallEngineFiles(Folder);
    }
    ~BenchFolderOwner() { std::filesystem::remove_all(Folder.Root); }
};

const AppFolder& BenchFolder() {
    static const BenchFolderOwner owner;
    return owner.Folder;
}

struct LoadedEngine {
    tools::ConsoleWindowLayer Windows;
    tools::SettableClock Clock;
    Random TheRandom;
    Engine TheEngine{TheRandom, Clock, Windows};

    LoadedEngine() {
        if (!TheEngine.LoadSystem(BenchFolder())) {
            std::abort();
        }
        Clock.Seconds = 40000.5f;
        TheEngine.SeedSeries();
    }

    // A new pool for each reply, as after each accepted entry.
    void NextPool() {
        TheEngine.SeriesSeed += 1.37f;
        TheEngine.StretchSeeds();
    }
};

void ReplyFromKeptPlans(benchmark::State& state) {
    LoadedEngine loaded;
    const auto message = static_cast<MessageNumber>(state.range(0));
    for (auto _ : state) {
        loaded.NextPool();
        loaded.TheEngine.Compose(message);
        benchmark::DoNotOptimize(loaded.TheEngine.MessageComposer().ComposedText.data());
    }
}
BENCHMARK(ReplyFromKeptPlans)->DenseRange(1, 16);

void ReplyFromPlanFile(benchmark::State& state) {
    LoadedEngine loaded;
    PlanFileReader plain(BenchFolder().Exe() / PlanFileName, loaded.TheEngine.Tables());
    Composer composer(loaded.TheEngine.Tables(), loaded.TheEngine.Stocks(), loaded.TheRandom,
                      loaded.Windows);
    composer.MarkJoiners();
    const auto message = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        loaded.NextPool();
        composer.BuildMessage(message, loaded.TheEngine.SeedPool, plain);
        composer.AssembleMessage();
        benchmark::DoNotOptimize(composer.ComposedText.data());
    }
}
BENCHMARK(ReplyFromPlanFile)->DenseRange(1, 16);

void ClassifyAnEntry(benchmark::State& state) {
    const std::string entry = std::string(1, Tab) + OpenQuote +
                              "If I change my work this year, will my family be happier?";
    EntryVerdict status = EntryVerdict::Unpunctuated;
    SentenceType type = SentenceType::None;
    for (auto _ : state) {
        CheckEntry(entry, WriteMethod::Converse, 3, status, type);
        benchmark::DoNotOptimize(type);
    }
}
BENCHMARK(ClassifyAnEntry);

void LoadTheSystem(benchmark::State& state) {
    for (auto _ : state) {
        tools::ConsoleWindowLayer windows;
        tools::SettableClock clock;
        Random random;
        Engine engine(random, clock, windows);
        benchmark::DoNotOptimize(engine.LoadSystem(BenchFolder()));
    }
}
BENCHMARK(LoadTheSystem)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace veyrant

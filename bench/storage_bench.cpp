// The Library's retention at start: a Library far over its limits is listed and ranked once and
// its oldest pairs go in one change, so a scan grows with the number of pairs times its
// logarithm, not with its cube.
//
// Target: a scan that cuts 1,000 pairs down to the 30 kept under one second; 10,000 pairs
// under ten seconds.

#include "shell/AppFolder.h"
#include "shell/Settings.h"
#include "storage/DialogueLibrary.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <fstream>
#include <memory>

namespace veyrant {
namespace {

// Pairs a minute apart, the latest a day before the clock's date; plain writes, so that laying
// them down costs little beside the scan.
void LayDownPairs(const AppFolder& folder, const DateTime& now, int pairs) {
    std::filesystem::create_directories(folder.Isp());
    std::filesystem::create_directories(folder.Dlg());
    const double latest = DayNumber(now) - 1;
    for (int k = 0; k < pairs; ++k) {
        const std::string name = MakeFileName(FromDayNumber(latest - k / 1440.0));
        std::ofstream(folder.Isp() / name) << "\tInspiration";
        std::ofstream(folder.Dlg() / name) << "\r\n\r\n\tDialogue";
    }
}

void BM_ScanLibraryOverItsLimit(benchmark::State& state) {
    const int pairs = static_cast<int>(state.range(0));
    // Each run's folder is removed at the start of the next, outside the timing.
    std::unique_ptr<testing::TempFolder> temp;
    for (auto _ : state) {
        state.PauseTiming();
        temp = std::make_unique<testing::TempFolder>();
        const AppFolder folder{temp->Path()};
        Settings settings;
        testing::FakeClock clock;
        testing::FakeWindowLayer windows;
        LayDownPairs(folder, clock.Date, pairs);
        DialogueLibrary library(folder, settings, clock, windows);
        state.ResumeTiming();

        if (!library.ScanLibrary() || library.Listing().LibraryCount != settings.MaxLibraryFiles) {
            state.SkipWithError("the scan did not cut the Library down to its limit");
        }
    }
}
BENCHMARK(BM_ScanLibraryOverItsLimit)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(2)
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace veyrant

#include "core/WholeFile.h"
#include "engine/EngineFiles.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

// The first run lays down the shipped files; a file damaged in place is left for the program's
// box, and a newer build replaces them all.
TEST(InstallEngineFiles, LaysDownTheShippedFilesOnceAndAgainForANewerBuild) {
    testing::TempFolder temp;
    const AppFolder folder{temp.Path()};
    const auto onDisk = [&](std::string_view name) { return ReadWholeFile(folder.Exe() / name); };
    const auto expectShipped = [&] {
        EXPECT_EQ(onDisk("qdr41.sys"), ShippedSystemFile());
        EXPECT_EQ(onDisk("qdr41.mtx"), ShippedPlanFile());
        EXPECT_EQ(onDisk("qdr41.ver"), ShippedEngineStamp());
    };
    InstallEngineFiles(folder);
    expectShipped();
    WriteWholeFile(folder.Exe() / "qdr41.sys", "damaged");
    InstallEngineFiles(folder);
    EXPECT_EQ(onDisk("qdr41.sys"), "damaged");
    WriteWholeFile(folder.Exe() / "qdr41.mtx", "old plans");
    WriteWholeFile(folder.Exe() / "qdr41.ver", "0123456789abcdef");
    InstallEngineFiles(folder);
    expectShipped();
}

} // namespace
} // namespace veyrant

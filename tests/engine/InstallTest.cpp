#include "core/WholeFile.h"
#include "engine/EngineFiles.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

class InstallEngineFilesTest : public ::testing::Test {
protected:
    std::string OnDisk(std::string_view name) { return ReadWholeFile(folder.Exe() / name); }

    testing::TempFolder temp;
    AppFolder folder{temp.Path()};
};

TEST_F(InstallEngineFilesTest, TheFirstRunLaysDownTheShippedFiles) {
    InstallEngineFiles(folder);
    EXPECT_EQ(OnDisk("qdr41.sys"), ShippedSystemFile());
    EXPECT_EQ(OnDisk("qdr41.mtx"), ShippedPlanFile());
    EXPECT_EQ(OnDisk("qdr41.ver"), ShippedEngineStamp());
}

TEST_F(InstallEngineFilesTest, AFileDamagedInPlaceIsLeftForTheProgramsBox) {
    InstallEngineFiles(folder);
    WriteWholeFile(folder.Exe() / "qdr41.sys", "damaged");
    InstallEngineFiles(folder);
    EXPECT_EQ(OnDisk("qdr41.sys"), "damaged");
}

TEST_F(InstallEngineFilesTest, ANewerBuildReplacesBothFiles) {
    InstallEngineFiles(folder);
    WriteWholeFile(folder.Exe() / "qdr41.sys", "old tables");
    WriteWholeFile(folder.Exe() / "qdr41.mtx", "old plans");
    WriteWholeFile(folder.Exe() / "qdr41.ver", "0123456789abcdef");
    InstallEngineFiles(folder);
    EXPECT_EQ(OnDisk("qdr41.sys"), ShippedSystemFile());
    EXPECT_EQ(OnDisk("qdr41.mtx"), ShippedPlanFile());
    EXPECT_EQ(OnDisk("qdr41.ver"), ShippedEngineStamp());
}

} // namespace
} // namespace veyrant

#include "core/WholeFile.h"

#include "core/ProgramError.h"
#include "support/TempFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace veyrant {
namespace {

using testing::TempFolder;

TEST(WholeFile, BytesComeBackExactlyWithNoLineEndAdded) {
    TempFolder folder;
    const std::string bytes("\r\n\r\n\t\x93Why?\x94\r\n\tBecause\0tail", 26);
    WriteWholeFile(folder / "savem.tmp", bytes);
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), bytes);
    WriteWholeFile(folder / "savem.tmp", "");
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), "");
}

TEST(WholeFile, MissingFileAndMissingFolderHaveTheirNumbers) {
    TempFolder folder;
    try {
        ReadWholeFile(folder / "absent");
        ADD_FAILURE();
    } catch (const ProgramError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
    }
    try {
        WriteWholeFile(folder / "absent" / "file", "x");
        ADD_FAILURE();
    } catch (const ProgramError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
    }
}

// A file-size limit makes the kernel refuse the write part way, as a full disk would.
TEST(WholeFile, AWriteThatFailsMidwayLeavesTheOldFileIntact) {
    TempFolder folder;
    const auto path = folder / "Tolmira.ini";
    WriteWholeFile(path, "old settings");

    rlimit saved{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 4096;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    int number = 0;
    try {
        WriteWholeFile(path, std::string(100000, 'x'));
    } catch (const ProgramError& error) {
        number = error.Number();
    }
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_EQ(number, ErrorNumber::DiskFull);
    EXPECT_EQ(ReadWholeFile(path), "old settings");
    // No temporary file is left behind.
    int files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        ++files;
    }
    EXPECT_EQ(files, 1);
}

} // namespace
} // namespace veyrant

#include "core/WholeFile.h"

#include "core/ProgramError.h"
#include "support/TempFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace veyrant {
namespace {

using testing::TempFolder;

// The number of the error the call throws, 0 if none.
template <typename Call>
int ErrorOf(Call call) {
    try {
        call();
    } catch (const ProgramError& error) {
        return error.Number();
    }
    return 0;
}

// Bytes come back exactly with no line end added; a missing file or folder has its number.
TEST(WholeFile, BytesComeBackExactlyAndMissingPlacesHaveTheirNumbers) {
    TempFolder folder;
    const std::string bytes("\r\n\r\n\t\x93Why?\x94\r\n\tBecause\0tail", 26);
    WriteWholeFile(folder / "savem.tmp", bytes);
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), bytes);
    WriteWholeFile(folder / "savem.tmp", "");
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), "");
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder / "absent"); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(folder / "absent" / "file", "x"); }),
              ErrorNumber::FileNotFound);
}

// What stands under a file's name is no file the program wrote: a pipe would wait for a writer
// for ever, a device need never end. Each is refused at once, and so is a file past the limit.
TEST(WholeFile, ReadsOnlyARegularFileWithinItsLimit) {
    TempFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/null", folder / "device");
    std::filesystem::create_directory(folder / "folder");
    WriteWholeFile(folder / "eleven", "eleven char");
    std::filesystem::create_symlink(folder / "eleven", folder / "link");
    struct Case {
        const char* Name;
        std::size_t Limit;
        int Number; // 0: read
    };
    const Case cases[] = {
        {"pipe", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"device", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"folder", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"eleven", 10, ErrorNumber::OutOfMemory},
        {"eleven", 11, 0},
        {"link", 11, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        EXPECT_EQ(
            ErrorOf([&] { EXPECT_EQ(ReadWholeFile(folder / c.Name, c.Limit), "eleven char"); }),
            c.Number);
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
    const int number = ErrorOf([&] { WriteWholeFile(path, std::string(100000, 'x')); });
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_EQ(number, ErrorNumber::DiskFull);
    EXPECT_EQ(ReadWholeFile(path), "old settings");
    // No temporary file is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

// The program's own files are the user's alone whatever the file-creation mask says; an export
// the user saves elsewhere takes the rights the mask gives, as any file the user makes.
TEST(WholeFile, ProgramFilesArePrivateAndExportsFollowTheUsersMask) {
    struct Case {
        const char* Name;
        void (*Write)(const std::filesystem::path&, std::string_view);
        mode_t Mask;
        unsigned Rights;
    };
    const Case cases[] = {
        {"program file, open mask", WriteWholeFile, 0000, 0600},
        {"program file, usual mask", WriteWholeFile, 0022, 0600},
        {"export, usual mask", WriteUserFile, 0022, 0644},
        {"export, private mask", WriteUserFile, 0077, 0600},
        {"export, group mask", WriteUserFile, 0002, 0664},
    };
    TempFolder temp;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        const mode_t saved = ::umask(c.Mask);
        c.Write(temp / "Dialogue.txt", "\tText");
        ::umask(saved);
        struct stat status {};
        ASSERT_EQ(::stat((temp / "Dialogue.txt").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, c.Rights);
    }
}

} // namespace
} // namespace veyrant

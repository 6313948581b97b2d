#include "core/WholeFile.h"

#include "core/ProgramError.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
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

// Bytes come back exactly with no line end added. What stands under a file's name is no file the
// program wrote: a pipe would wait for a writer for ever, a device need never end. Each is
// refused at once, and so is a file past the limit; a missing file or folder has its number.
TEST(WholeFile, ReadsBackExactlyOnlyARegularFileWithinItsLimit) {
    TempFolder folder;
    const std::string bytes("\r\n\r\n\t\x93Why?\x94\r\n\tBecause\0tail", 26);
    WriteWholeFile(folder / "savem.tmp", bytes);
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), bytes);
    WriteWholeFile(folder / "savem.tmp", "");
    EXPECT_EQ(ReadWholeFile(folder / "savem.tmp"), "");
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(folder / "absent" / "file", "x"); }),
              ErrorNumber::FileNotFound);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/null", folder / "device");
    std::filesystem::create_directory(folder / "folder");
    WriteWholeFile(folder / "eleven", "eleven char");
    std::filesystem::create_symlink(folder / "eleven", folder / "link");
    const struct {
        const char* Name;
        std::size_t Limit;
        int Number; // 0: read
    } cases[] = {
        {"pipe", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"device", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"folder", WholeFileLimit, ErrorNumber::PathFileAccess},
        {"absent", WholeFileLimit, ErrorNumber::FileNotFound},
        {"eleven", 10, ErrorNumber::OutOfMemory},
        {"eleven", 11, 0},
        {"link", 11, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(
            ErrorOf([&] { EXPECT_EQ(ReadWholeFile(folder / c.Name, c.Limit), "eleven char"); }),
            c.Number)
            << c.Name;
    }
}

// The program's own files are the user's alone whatever the file-creation mask says; an export
// the user saves elsewhere takes the rights the mask gives, as any file the user makes.
TEST(WholeFile, ProgramFilesArePrivateAndExportsFollowTheUsersMask) {
    const struct {
        void (*Write)(const std::filesystem::path&, std::string_view);
        mode_t Mask;
        unsigned Rights;
    } cases[] = {
        {WriteWholeFile, 0000, 0600}, {WriteWholeFile, 0022, 0600}, {WriteUserFile, 0022, 0644},
        {WriteUserFile, 0077, 0600},  {WriteUserFile, 0002, 0664},
    };
    TempFolder temp;
    for (const auto& c : cases) {
        const mode_t saved = ::umask(c.Mask);
        c.Write(temp / "Dialogue.txt", "\tText");
        ::umask(saved);
        struct stat status {};
        ASSERT_EQ(::stat((temp / "Dialogue.txt").c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, c.Rights) << c.Mask;
    }
}

} // namespace
} // namespace veyrant

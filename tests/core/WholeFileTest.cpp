#include "core/WholeFile.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace veyrant {
namespace {

using testing::TempFolder;

// The program's own files are the user's alone whatever the file-creation mask says; an export
// the user saves elsewhere takes the rights the mask gives, as any file the user makes.
TEST(WholeFile, ProgramFilesArePrivateAndExportsFollowTheUsersMask) {
    const struct {
        void (*Write)(const std::filesystem::path&, std::string_view);
        mode_t Mask;
        unsigned Rights;
    } cases[] = {
        {WriteWholeFile, 0000, 0600}, {WriteUserFile, 0022, 0644}, {WriteUserFile, 0002, 0664}};
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

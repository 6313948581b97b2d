#include "printing/SaveFolder.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// Save As never proposes a folder that is not there: a missing documents folder gives home, and
// the folder of the last save is kept only while it exists.
TEST(SaveFolder, ProposesOnlyAFolderThatExists) {
    TempFolder home;
    const auto documents = home / "Documents";
    const auto chosen = home / "Letters";
    SaveFolder folder;
    EXPECT_EQ(folder.Proposed(documents, home.Path()), home.Path());
    std::filesystem::create_directory(documents);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    folder.Saved(chosen / "Dialogue.txt");
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    std::filesystem::create_directory(chosen);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), chosen);
}

} // namespace
} // namespace veyrant::testing

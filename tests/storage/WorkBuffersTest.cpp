#include "LibraryFixture.h"
#include "storage/SavedDialogues.h"
#include "support/FaultSweep.h"
#include "support/FileFaults.h"

namespace veyrant::testing {
namespace {

using WorkBuffersTest = LibraryFixture;

// Guest Mode, missing, deleted and damaged buffers. The longest Dialogue the program can write
// reads back; buffers beyond what it can write are damaged, and the start begins a new Dialogue
// instead of laying out megabytes of text.
TEST_F(WorkBuffersTest, GuestModeMissingDeletedDamagedAndOverlongBuffers) {
    ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
    EXPECT_EQ(ImageOf(Folder.Exe()), (FolderImage{{"savei.tmp", Kept.InspirationText},
                                                  {"savem.tmp", Kept.DialogueText},
                                                  {"savep.tmp", " 1 \r\n"},
                                                  {"saves.tmp", Kept.SuggestionText}}));
    SetFileDate(Folder.Exe() / "savei.tmp", DaysAgo(4));
    UserSettings.GuestMode = 1;
    EXPECT_FALSE(Buffers.ReadWorkBuffers().has_value());
    ASSERT_TRUE(Buffers.WriteWorkBuffers({"\tguest", "\r\n\r\n\tguest", "guest", 1}));
    Buffers.DeleteWorkBuffers();
    EXPECT_EQ(ReadWholeFile(Folder.Exe() / "savem.tmp"), Kept.DialogueText);
    UserSettings.GuestMode = 0;
    EXPECT_EQ(Buffers.ReadWorkBuffers().value().PriorAge, 4);
    // Any missing buffer means no Prior Dialogue; the others stay until they are written over.
    for (const char* missing : {"savei.tmp", "savem.tmp", "saves.tmp", "savep.tmp"}) {
        SCOPED_TRACE(missing);
        ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
        std::filesystem::remove(Folder.Exe() / missing);
        EXPECT_FALSE(Buffers.ReadWorkBuffers().has_value());
        EXPECT_EQ(Names(Folder.Exe()).size(), 3u);
    }
    // Deleting leaves the suggestion, which alone is no Prior Dialogue; one already missing does
    // not stop the others.
    ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
    std::filesystem::remove(Folder.Exe() / "savem.tmp");
    Buffers.DeleteWorkBuffers();
    EXPECT_EQ(Names(Folder.Exe()), std::vector<std::string>{"saves.tmp"});
    // A delete the disk refuses leaves the set whole, without a word.
    ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
    {
        FileFaults faults;
        faults.FailEvery(FileCall::Sync, EIO);
        Buffers.DeleteWorkBuffers();
    }
    EXPECT_TRUE(Buffers.ReadWorkBuffers().has_value() && Windows.Boxes.empty());
    // One bad byte in savep.tmp does not lose the Prior Dialogue: the count is taken again from
    // the runs of savem.tmp. A count in the program's own form is trusted as it stands.
    const std::string threeRuns = "\r\n\r\n\t\x93What is next?\x94\r\n\tWhat you choose."
                                  "\r\n\r\n\t\x93"
                                  "A comment.\x94"
                                  "\r\n\r\n\t\x93"
                                  "And then?\x94\r\n\tThen you rest.";
    // " #" is the digit 3 with one bit flipped.
    const std::pair<std::string, int> cases[] = {
        {"", 3},
        {" #\r\n", 3},
        {" 3 \r\n 3 \r\n", 3},
        {" 3 \r\n" + std::string(100, ' '), 3},
        {" 2 \r\n", 2},
        {"5", 5},
    };
    for (const auto& [countFile, pairCount] : cases) {
        SCOPED_TRACE(countFile);
        ASSERT_TRUE(Buffers.WriteWorkBuffers({"\tA quiet river.", threeRuns, "Begin.", 3}));
        WriteWholeFile(Folder.Exe() / "savep.tmp", countFile);
        const auto prior = Buffers.ReadWorkBuffers();
        ASSERT_TRUE(prior.has_value());
        EXPECT_EQ(prior->Buffers.DialogueText + std::to_string(prior->Buffers.PairCount),
                  threeRuns + std::to_string(pairCount));
    }
    // The longest entry, and a reply of forty of the longest rows.
    std::string longest;
    for (int run = 0; run < 121; ++run) {
        longest +=
            "\r\n\r\n\t\x93" + std::string(280, 'e') + "\x94\r\n\t" + std::string(40 * 90, 'r');
    }
    std::string manyShortLines;
    while (manyShortLines.size() <= 121 * 8192) {
        manyShortLines += "\r\n\r\n\t\x93Why?\x94\r\n\tBecause.";
    }
    // The name, the buffers and whether they read back.
    const std::tuple<const char*, DialogueBuffers, bool> sizes[] = {
        {"longest", {"\t" + std::string(8000, 'i'), longest, std::string(8000, 's'), 121}, true},
        {"one long line", {"\ti", "\r\n\r\n\t" + std::string(20000, 'x'), "s", 1}, false},
        {"too many lines", {"\ti", manyShortLines, "s", 121}, false},
        {"long inspiration", {"\t" + std::string(9000, 'i'), "\r\n\r\n\tx", "s", 1}, false},
        {"long suggestion", {"\ti", "\r\n\r\n\tx", std::string(9000, 's'), 1}, false},
    };
    for (const auto& [name, buffers, read] : sizes) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(Buffers.WriteWorkBuffers(buffers));
        const auto prior = Buffers.ReadWorkBuffers();
        ASSERT_EQ(prior.has_value(), read);
        if (prior) {
            EXPECT_EQ(prior->Buffers.DialogueText, buffers.DialogueText);
            // Saved, the longest Dialogue reads back whole from the Library.
            const auto saved = Library.AddToLibrary(buffers.InspirationText, buffers.DialogueText);
            EXPECT_EQ(ReadSavedDialogue(Folder, saved.value()).Dialogue, buffers.DialogueText);
        }
        // An unusable buffer is set aside under a dated name, never written over, and the box
        // says where.
        EXPECT_EQ(Windows.Boxes.size(), read ? 0u : 1u);
        Windows.Boxes.clear();
    }
    std::filesystem::remove(Folder.Exe() / "savem.tmp");
    std::filesystem::create_directory(Folder.Exe() / "savem.tmp");
    EXPECT_FALSE(Buffers.ReadWorkBuffers());
    EXPECT_TRUE(
        std::filesystem::is_directory(Folder.Exe() / "savem.tmp.2026-11-22-120000-3.unusable"));
    EXPECT_EQ(ReadWholeFile(Folder.Exe() / "saves.tmp.2026-11-22-120000.unusable"),
              std::string(9000, 's'));
}

} // namespace
} // namespace veyrant::testing

#include "storage/LibraryLock.h"

#include "LibraryFixture.h"
#include "core/Cp1252.h"
#include "storage/DialogueFile.h"
#include "storage/LockedFileError.h"
#include "storage/SavedDialogues.h"
#include "support/FaultSweep.h"

#include <sodium.h>

namespace veyrant::testing {
namespace {

// The stretch at its lightest: what is tested is the lock, not the cost of a guess.
const StretchLimits Light{crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN};
const std::string Letter = "\r\n\r\n\t\x93"
                           "A letter never sent\x94";

using LibraryLockTest = LibraryFixture;

// A flipped byte or a missing key gives the box naming the file and loses nothing; a locked
// Library works as before and unlocks to the very bytes it held.
TEST_F(LibraryLockTest, DamageLosesNothingAndTheLockedLibraryWorksAndUnlocksByteForByte) {
    SaveAt(DaysAgo(2), "\r\n\r\n\t\x93"
                       "The harbour at dawn\x94");
    SaveAt(DaysAgo(1), Letter);
    ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
    const FolderImage plain = ImageOf(Folder.Root);
    TurnLockOn(Folder, "lantern", Light);
    Library.ScanLibrary();
    const auto name = Library.Listing().LibraryFiles[1];
    const auto other = Library.Listing().LibraryFiles[2];
    for (const auto& file : {Folder.Isp() / name, Folder.Dlg() / name, Folder.Exe() / "savem.tmp",
                             KeyFilePath(Folder)}) {
        const auto sealed = ReadWholeFile(file);
        for (const std::size_t at : {std::size_t{0}, std::size_t{10}, sealed.size() - 1}) {
            auto flipped = sealed;
            flipped[at] = static_cast<char>(flipped[at] ^ 0x20);
            WriteWholeFile(file, flipped);
            AppFolder reopened{Folder.Root};
            try {
                if (OpenLibrary(reopened, "lantern")) {
                    (void)ReadSavedDialogue(reopened, name);
                    (void)DialogueFile::Buffer(reopened, WorkBuffer::Dialogue).Read();
                }
                ADD_FAILURE() << "opened " << file << " with byte " << at << " flipped";
            } catch (const LockedFileError& error) {
                EXPECT_EQ(error.File(), file);
                EXPECT_NE(LockedFileBox(error.File()).Text.find(PathText(file)), std::string::npos);
            }
            EXPECT_EQ(ReadWholeFile(file), flipped) << "the damaged file is kept";
            EXPECT_EQ(ReadSavedDialogue(Folder, other).Dialogue, Letter);
        }
        WriteWholeFile(file, sealed);
    }
    EXPECT_FALSE(SealedWithoutKey(Folder));
    const auto key = ReadWholeFile(KeyFilePath(Folder));
    std::filesystem::remove(KeyFilePath(Folder));
    EXPECT_TRUE(SealedWithoutKey(Folder));
    AppFolder keyless{Folder.Root};
    EXPECT_THROW(OpenLibrary(keyless, "lantern"), LockedFileError);
    EXPECT_THROW(ReadSavedDialogue(keyless, other), LockedFileError);
    WriteWholeFile(KeyFilePath(Folder), key);
    const auto anyFileHolds = [&](const std::string& sentence) {
        return std::ranges::any_of(ImageOf(Folder.Root), [&](const auto& file) {
            return file.second.find(sentence) != std::string::npos;
        });
    };
    for (const char* sentence : {"harbour at dawn", "letter never sent", "quiet river",
                                 "What you choose", "nearest to you"}) {
        EXPECT_FALSE(anyFileHolds(sentence)) << sentence;
    }
    EXPECT_EQ(Buffers.ReadWorkBuffers().value().Buffers.DialogueText, Kept.DialogueText);
    // A new Dialogue goes in sealed, and a delete takes it to the trash as it is.
    const auto saved = Library.AddToLibrary("\tThe last word", "\r\n\r\n\tThe last word");
    ASSERT_TRUE(saved.has_value());
    EXPECT_FALSE(anyFileHolds("The last word"));
    Windows.Answers = {MessageAnswer::Yes};
    ASSERT_TRUE(Library.DeleteDialogue(*saved));
    EXPECT_FALSE(anyFileHolds("The last word"));
    // Another passphrase opens the same files; the wrong one opens nothing.
    ChangePassphrase(Folder, "beacon", Light);
    AppFolder again{Folder.Root};
    EXPECT_FALSE(OpenLibrary(again, "lantern"));
    EXPECT_THROW(DialogueFile::SavedDialogue(again, Library.Listing().LibraryFiles[1]).Read(),
                 LockedFileError);
    ASSERT_TRUE(OpenLibrary(again, "beacon"));
    TurnLockOff(again);
    auto after = ImageOf(Folder.Root);
    std::erase_if(after, [](const auto& file) { return file.first.starts_with("Trash/"); });
    EXPECT_EQ(after, plain);
}

} // namespace
} // namespace veyrant::testing

#include "storage/LibraryLock.h"

#include "LibraryFixture.h"
#include "core/Cp1252.h"
#include "storage/DialogueFile.h"
#include "storage/LockedFileError.h"
#include "storage/SavedDialogues.h"

#include <sodium.h>

namespace veyrant::testing {
namespace {

// The stretch at its lightest: what is tested is the lock, not the cost of a guess.
const StretchLimits Light{crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN};
const std::string Letter = "\r\n\r\n\t\x93"
                           "A letter never sent\x94";

using LibraryLockTest = LibraryFixture;

TEST_F(LibraryLockTest, AFlippedByteOrAMissingKeyGivesTheBoxNamingTheFileAndLosesNothing) {
    SaveAt(DaysAgo(2), "\r\n\r\n\t\x93"
                       "The harbour at dawn\x94");
    SaveAt(DaysAgo(1), Letter);
    ASSERT_TRUE(Buffers.WriteWorkBuffers(Kept));
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
    std::filesystem::remove(KeyFilePath(Folder));
    EXPECT_TRUE(SealedWithoutKey(Folder));
    AppFolder keyless{Folder.Root};
    EXPECT_THROW(OpenLibrary(keyless, "lantern"), LockedFileError);
    EXPECT_THROW(ReadSavedDialogue(keyless, other), LockedFileError);
}

} // namespace
} // namespace veyrant::testing

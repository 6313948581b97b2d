// Every writing path of the storage, swept with a failing or killed file call at every step.

#include "support/FaultSweep.h"

#include "LibraryFixture.h"
#include "storage/DialogueFile.h"
#include "storage/Envelope.h"
#include "storage/FileTransaction.h"
#include "storage/LibraryLock.h"
#include "storage/Options.h"

#include <sodium.h>

namespace veyrant::testing {
namespace {

const DialogueBuffers Running{"\tThe lamp waits for the evening.",
                              "\r\n\r\n\t\x93Why now?\x94\r\n\tBecause.\r\n\r\n\t\x93"
                              "And then?"
                              "\x94\r\n\tThen you will know.",
                              "Write it down before you sleep.", 2};

// The storage of one run, in memory where the system allows.
struct StorageRun : LibraryStorage {
    StorageRun() : LibraryStorage(MemoryFolder()) {}
    std::optional<std::string> Disagreement() const {
        int onDisk = 0;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(Folder.Isp(), error)) {
            onDisk += entry.path().filename().string().front() != '.' ? 1 : 0;
        }
        // A scan that failed has said so and leaves its tables as they stood.
        const bool scanFailed = std::ranges::any_of(BoxTitles(), [](const std::string& title) {
            return title.ends_with("Dialogue Library File Names");
        });
        if (!scanFailed && Library.Listing().LibraryCount != onDisk) {
            return "the Library lists " + std::to_string(Library.Listing().LibraryCount) +
                   " Dialogues, isp/ holds " + std::to_string(onDisk);
        }
        if (BuffersKept && Buffers.ReadWorkBuffers().has_value() != true) {
            return "the buffers were said to be kept, and are not";
        }
        return std::nullopt;
    }
    std::optional<std::string> Restart(const FolderImage& before, const FolderImage& after) {
        FinishInterruptedChanges(Folder);
        DialogueLibrary library(Folder, UserSettings, Clock, Windows);
        library.ScanLibrary();
        const auto& listing = library.Listing();
        for (int k = 1; k <= listing.LibraryCount; ++k) {
            const auto& name = listing.LibraryFiles[static_cast<std::size_t>(k)];
            if (!std::filesystem::exists(Folder.Dlg() / name)) {
                return "the Library lists " + name + " without its Dialogue";
            }
        }
        const auto prior = Buffers.ReadWorkBuffers();
        const auto held = [&](const FolderImage& image) {
            return image.contains("exe/savem.tmp") && image.contains("exe/savep.tmp") &&
                   image.contains("exe/savei.tmp") && image.contains("exe/saves.tmp");
        };
        if (prior) {
            const std::string dialogue = prior->Buffers.DialogueText;
            const bool old = held(before) && before.at("exe/savem.tmp") == dialogue;
            const bool now = held(after) && after.at("exe/savem.tmp") == dialogue;
            if (!old && !now) {
                return "the Prior Dialogue that reopens is neither the old nor the new one";
            }
        } else if (held(before) && held(after)) {
            return "the running Dialogue does not reopen";
        }
        return std::nullopt;
    }
    bool BuffersKept = false;
};

void KeepBuffers(StorageRun& run) {
    std::filesystem::create_directories(run.Folder.Exe());
    ASSERT_TRUE(run.Buffers.WriteWorkBuffers(Kept));
}

void WriteRunning(StorageRun& run) {
    run.BuffersKept = run.Buffers.WriteWorkBuffers(Running);
}

void SaveRunning(StorageRun& run) {
    run.Library.AddToLibrary(Running.InspirationText, Running.DialogueText);
}

// The user's answers to each question, and the Library listed anew as the Reader does after.
void DeleteFirst(StorageRun& run, std::deque<MessageAnswer> answers) {
    run.Windows.Answers = std::move(answers);
    if (run.Library.DeleteDialogue(run.Library.Listing().LibraryFiles[1])) {
        run.Library.ScanLibrary();
    }
}

void WithLibrary(StorageRun& run) {
    run.SaveAt(run.DaysAgo(3), "\r\n\r\n\tthree days ago");
    run.SaveAt(run.DaysAgo(2), "\r\n\r\n\ttwo days ago");
    run.Library.ScanLibrary();
}

TEST(FaultSweep, EveryStoragePathLeavesOldOrNewAndSaysWhatFailed) {
    const std::vector<SweepPath> paths = {
        PathIn<StorageRun>(
            "work buffers, first written (Finish, close, right-click)",
            [](StorageRun& run) { std::filesystem::create_directories(run.Folder.Root); },
            WriteRunning),
        PathIn<StorageRun>("work buffers, written over a kept Dialogue", KeepBuffers, WriteRunning),
        PathIn<StorageRun>(
            "work buffers, deleted by New", KeepBuffers,
            [](StorageRun& run) { run.Buffers.DeleteWorkBuffers(); }, true),
        PathIn<StorageRun>(
            "save to the Library, retention deleting the oldest",
            [](StorageRun& run) {
                WithLibrary(run);
                KeepBuffers(run);
                run.UserSettings.MaxLibraryFiles = 2;
            },
            SaveRunning),
        PathIn<StorageRun>(
            "save to the Library twice in one minute",
            [](StorageRun& run) {
                KeepBuffers(run);
                run.Library.AddToLibrary(Kept.InspirationText, Kept.DialogueText);
            },
            SaveRunning),
        PathIn<StorageRun>("delete from the Reader", WithLibrary,
                           [](StorageRun& run) { DeleteFirst(run, {MessageAnswer::Yes}); }),
        PathIn<StorageRun>(
            "delete from the Reader, the trash refusing: deleted for good after Yes",
            [](StorageRun& run) {
                WithLibrary(run);
                WriteWholeFile(run.Folder.Trash(), "a file where the trash should be");
            },
            [](StorageRun& run) {
                DeleteFirst(run, {MessageAnswer::Yes, MessageAnswer::Yes});
            }),
        PathIn<StorageRun>(
            "retention at start",
            [](StorageRun& run) {
                WithLibrary(run);
                run.SaveAt(run.DaysAgo(1), "\r\n\r\n\tyesterday");
                run.UserSettings.MaxLibraryFiles = 1;
            },
            [](StorageRun& run) { run.Library.ScanLibrary(); }),
        PathIn<StorageRun>("Library Options, then Clean", WithLibrary,
                           [](StorageRun& run) {
                               Options window(
                                   run.Library, run.UserSettings, run.Windows, [] {}, [] {});
                               window.Form_Load();
                               run.Windows.Answers = {MessageAnswer::Yes};
                               window.cmdClean_Click();
                           }),
    };
    SweepAll(paths);
}

// Turning the lock on or off, where a sealed file counts by what it holds: its nonce is new at
// every run.
struct LockRun : StorageRun {
    static constexpr std::string_view Passphrase = "lantern";
    // Every file the lock rewrites, by its place, with the text it must hold whatever happens.
    FolderImage Texts;
    void Keep() {
        WithLibrary(*this);
        KeepBuffers(*this);
        Texts = ImageOf(Folder.Root);
    }
    void Switch(bool locking) {
        SwitchLock(Folder, Windows, locking, Passphrase,
                   {crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN});
    }
    FolderImage Image() const {
        AppFolder open{Folder.Root};
        const bool locked = LibraryIsLocked(open) && OpenLibrary(open, Passphrase);
        auto image = ImageOf(Folder.Root);
        for (auto& [file, bytes] : image) {
            if (file == "exe/library.key") {
                bytes = "a key";
            } else if (IsEnvelope(bytes) && file.find("/.") == std::string::npos) {
                const auto text = locked ? Open(*open.Key, file, bytes) : std::nullopt;
                bytes = text ? "sealed " + *text : "sealed, unopened";
            }
        }
        return image;
    }
    std::optional<std::string> Disagreement() const {
        if ((Folder.Key != nullptr) != LibraryIsLocked(Folder)) {
            return std::string("the key in memory and the key file disagree");
        }
        return std::nullopt;
    }
    std::optional<std::string> Restart(const FolderImage&, const FolderImage&) {
        FinishInterruptedChanges(Folder);
        AppFolder open{Folder.Root};
        if (LibraryIsLocked(open) && !OpenLibrary(open, Passphrase)) {
            return std::string("the passphrase no longer opens the Library");
        }
        for (const auto& [file, text] : Texts) {
            const auto place = Folder.Root / file;
            try {
                if (DialogueFile(place, {}, open.Key).Read() != text) {
                    return file + " holds another text";
                }
            } catch (const ProgramError& error) {
                return file + " does not read: error " + std::to_string(error.Number());
            }
        }
        return std::nullopt;
    }
};

TEST(FaultSweep, TurningTheLockOnOrOffLeavesEveryDialogueAllPlainOrAllLocked) {
    SweepAll({
        PathIn<LockRun>(
            "lock the Library", [](LockRun& run) { run.Keep(); },
            [](LockRun& run) { run.Switch(true); }),
        PathIn<LockRun>(
            "unlock the Library",
            [](LockRun& run) {
                run.Keep();
                run.Switch(true);
            },
            [](LockRun& run) { run.Switch(false); }),
    });
}

} // namespace
} // namespace veyrant::testing

#include "storage/LibraryLock.h"

#include "core/FileOperations.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/DialogueFile.h"
#include "storage/Envelope.h"
#include "storage/FileTransaction.h"
#include "storage/StorageFailure.h"

#include <array>
#include <fstream>
#include <system_error>
#include <vector>

namespace veyrant {

namespace {

constexpr std::array<WorkBuffer, 4> Buffers = {WorkBuffer::Inspiration, WorkBuffer::Dialogue,
                                               WorkBuffer::Suggestion, WorkBuffer::PairCount};

void Restage(const DialogueFile& from, const DialogueFile& to, FileTransaction& change) {
    std::string text = from.Read();
    to.Stage(change, text);
    Wipe(text);
}

// Stages every Library file and work buffer of the one folder again as the other keeps it.
void RestageAll(const AppFolder& from, const AppFolder& to, FileTransaction& change) {
    MakeFolder(from.Isp());
    for (const auto& name : ListFiles(from.Isp())) {
        Restage(DialogueFile::SavedInspiration(from, name),
                DialogueFile::SavedInspiration(to, name), change);
    }
    MakeFolder(from.Dlg());
    for (const auto& name : ListFiles(from.Dlg())) {
        Restage(DialogueFile::SavedDialogue(from, name), DialogueFile::SavedDialogue(to, name),
                change);
    }
    for (const auto buffer : Buffers) {
        std::error_code error;
        if (std::filesystem::exists(DialogueFile::Buffer(from, buffer).Path(), error)) {
            Restage(DialogueFile::Buffer(from, buffer), DialogueFile::Buffer(to, buffer), change);
        }
    }
}

// Once the note is down the switch has happened, even where the disk stops it halfway: what is
// written from then on goes as the Library will stand.
void CommitSwitch(FileTransaction& change, AppFolder& folder,
                  std::shared_ptr<const SecretKey> key) {
    try {
        change.Commit();
    } catch (const UnfinishedChange&) {
        folder.Key = key;
        throw;
    }
    folder.Key = std::move(key);
}

} // namespace

bool SealedWithoutKey(const AppFolder& folder) {
    if (LibraryIsLocked(folder)) {
        return false;
    }
    std::vector<std::filesystem::path> files;
    for (const auto buffer : Buffers) {
        files.push_back(DialogueFile::Buffer(folder, buffer).Path());
    }
    std::error_code error;
    for (const auto& place : {folder.Isp(), folder.Dlg()}) {
        for (auto entry = std::filesystem::directory_iterator(place, error);
             entry != std::filesystem::directory_iterator(); entry.increment(error)) {
            files.push_back(entry->path());
        }
    }
    char head[EnvelopeMagic.size()] = {};
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        if (in.read(head, sizeof head) && IsEnvelope({head, sizeof head})) {
            return true;
        }
    }
    return false;
}

bool LibraryIsLocked(const AppFolder& folder) {
    std::error_code error;
    return std::filesystem::exists(KeyFilePath(folder), error);
}

void TurnLockOn(AppFolder& folder, std::string_view passphrase, StretchLimits limits) {
    std::shared_ptr<const SecretKey> key = SecretKey::Random();
    AppFolder locked = folder;
    locked.Key = key;
    MakeFolder(folder.Exe());
    FileTransaction change(folder.Root);
    RestageAll(folder, locked, change);
    change.Write(KeyFilePath(folder), WrapKey(*key, passphrase, limits));
    CommitSwitch(change, folder, key);
}

void TurnLockOff(AppFolder& folder) {
    AppFolder plain = folder;
    plain.Key = nullptr;
    FileTransaction change(folder.Root);
    RestageAll(folder, plain, change);
    change.Remove(KeyFilePath(folder));
    CommitSwitch(change, folder, nullptr);
}

bool SwitchLock(AppFolder& folder, WindowLayer& windows, bool locking, std::string_view passphrase,
                StretchLimits limits) {
    try {
        if (locking) {
            TurnLockOn(folder, passphrase, limits);
        } else {
            TurnLockOff(folder);
        }
        return true;
    } catch (const ProgramError& error) {
        const std::string number = std::to_string(error.Number());
        const std::string act = locking ? "lock" : "unlock";
        windows.ShowMessage(WarningBox(
            "Error " + number + " " + (locking ? "Locking" : "Unlocking") + " the Library",
            "Error " + number + " attempting to " + act + " the Dialogue Library." +
                std::string(CrLf) + std::string(CrLf) +
                "No Dialogue is lost. The Library is as it was, or, where the change was under "
                "way when the disk refused, the program finishes it at its next start. Check "
                "the disk, then try again."));
        return false;
    }
}

void ChangePassphrase(const AppFolder& folder, std::string_view passphrase, StretchLimits limits) {
    WriteWholeFile(KeyFilePath(folder), WrapKey(*folder.Key, passphrase, limits));
}

bool OpenLibrary(AppFolder& folder, std::string_view passphrase) {
    auto key = UnwrapKey(KeyFilePath(folder), passphrase);
    if (!key) {
        return false;
    }
    folder.Key = std::move(key);
    return true;
}

} // namespace veyrant

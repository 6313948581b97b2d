#include "app/LockOptions.h"

#include "core/ProgramError.h"
#include "core/SecretKey.h"
#include "core/Text.h"
#include "storage/LibraryLock.h"
#include "storage/StorageFailure.h"

#include <utility>

namespace veyrant {

namespace {

const std::string Statement =
    "With the lock on, every saved Dialogue and the running one are kept encrypted: without the "
    "passphrase no one can read them, not from the disk of a lost computer, not from a backup. "
    "Nobody can recover a forgotten passphrase, not even the makers of the program: the "
    "Dialogues are then lost. The file names still carry the date and time of each Dialogue. "
    "What you print or save as a text file is plain, wherever you put it. You can change the "
    "passphrase or remove the lock here at any time.";

std::string Flag(bool on) {
    return on ? "on" : "off";
}

} // namespace

LockOptions::LockOptions(AppFolder& folder, WindowLayer& windows, PassphraseKeeper* keyring,
                         std::function<void()> close, StretchLimits limits)
    : folder_(folder), windows_(windows), keyring_(keyring), close_(std::move(close)),
      limits_(limits) {}

void LockOptions::Form_Load() {
    wasLocked_ = folder_.Key != nullptr;
    controls_.chkLock = wasLocked_ ? 1 : 0;
    controls_.KeepEnabled = keyring_ != nullptr && keyring_->Available();
    controls_.chkKeep = controls_.KeepEnabled && wasLocked_ && keyring_->Recall() ? 1 : 0;
    controls_.lblStatement = Statement;
    ShowChoice();
}

void LockOptions::ShowChoice() {
    const bool locking = controls_.chkLock == 1;
    controls_.PassphraseEnabled = locking;
    controls_.lblPassphrase = !locking     ? "The Library is plain."
                              : wasLocked_ ? "A new passphrase, twice (leave empty to keep it):"
                                           : "The passphrase, twice:";
}

void LockOptions::chkLock_Click(int value) {
    controls_.chkLock = value;
    ShowChoice();
}

void LockOptions::chkKeep_Click(int value) {
    controls_.chkKeep = value;
}

void LockOptions::txtPassphrase_Change(const std::string& text) {
    Wipe(controls_.txtPassphrase);
    controls_.txtPassphrase = text;
}

void LockOptions::txtConfirm_Change(const std::string& text) {
    Wipe(controls_.txtConfirm);
    controls_.txtConfirm = text;
}

bool LockOptions::PassphraseAgreed() {
    if (controls_.txtPassphrase == controls_.txtConfirm && !controls_.txtPassphrase.empty()) {
        return true;
    }
    windows_.ShowMessage(WarningBox(
        "Lock the Library",
        controls_.txtPassphrase.empty()
            ? "Type the passphrase that will lock the Library in both boxes."
            : "The two passphrases are not the same. Type the passphrase again in both boxes."));
    Wipe(controls_.txtPassphrase);
    Wipe(controls_.txtConfirm);
    return false;
}

bool LockOptions::Apply() {
    const bool locking = controls_.chkLock == 1;
    if (locking && !wasLocked_) {
        return PassphraseAgreed() &&
               SwitchLock(folder_, windows_, true, controls_.txtPassphrase, limits_);
    }
    const bool typed = !controls_.txtPassphrase.empty() || !controls_.txtConfirm.empty();
    // The keyring can only be given a passphrase the user types; the key file never holds it.
    if (locking && !typed && controls_.chkKeep == 1 && controls_.KeepEnabled &&
        !keyring_->Recall()) {
        windows_.ShowMessage(WarningBox("Lock the Library",
                                        "To keep the passphrase in the keyring, type it in "
                                        "both boxes. The Library then opens with the "
                                        "passphrase you typed."));
        return false;
    }
    if (locking && typed) {
        if (!PassphraseAgreed()) {
            return false;
        }
        try {
            ChangePassphrase(folder_, controls_.txtPassphrase, limits_);
            return true;
        } catch (const ProgramError& error) {
            windows_.ShowMessage(WarningBox(
                "Error " + std::to_string(error.Number()) + " Changing the Passphrase",
                "The passphrase could not be changed. The Library still opens with the one it "
                "had."));
            return false;
        }
    }
    if (!locking && wasLocked_) {
        MessageBoxRequest question;
        question.Title = "Unlock the Library";
        question.Text = "Every Dialogue will be kept plain again, readable by anyone who can "
                        "reach the disk." +
                        std::string(CrLf) + std::string(CrLf) + "Do you wish to remove the lock?";
        question.Icon = MessageIcon::Question;
        question.Buttons = MessageButtons::YesNo;
        question.DefaultButton = 2;
        return windows_.ShowMessage(question) == MessageAnswer::Yes &&
               SwitchLock(folder_, windows_, false);
    }
    return true;
}

void LockOptions::KeepInKeyring() {
    if (keyring_ == nullptr || !controls_.KeepEnabled) {
        return;
    }
    if (folder_.Key == nullptr || controls_.chkKeep == 0) {
        keyring_->Forget();
    } else if (!controls_.txtPassphrase.empty()) {
        keyring_->Keep(controls_.txtPassphrase);
    }
}

void LockOptions::cmdOK_Click() {
    windows_.SetBusyPointer(true);
    const bool applied = Apply();
    windows_.SetBusyPointer(false);
    if (applied) {
        KeepInKeyring();
        Close();
    }
}

void LockOptions::cmdCancel_Click() {
    Close();
}

void LockOptions::Close() {
    Wipe(controls_.txtPassphrase);
    Wipe(controls_.txtConfirm);
    close_();
}

std::string LockOptions::Dump() const {
    return "chkLock " + std::to_string(controls_.chkLock) + "\nchkKeep " +
           std::to_string(controls_.chkKeep) + ", " + Flag(controls_.KeepEnabled) +
           "\nlblPassphrase \"" + controls_.lblPassphrase + "\", boxes " +
           Flag(controls_.PassphraseEnabled) + "\n";
}

} // namespace veyrant

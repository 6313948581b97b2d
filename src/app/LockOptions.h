#pragma once

// The logic of the Library Lock window, reached from Library Options: the choice to lock the
// Library with a passphrase, typed twice; a new passphrase for a locked Library; and the
// choice to unlock it again. What the lock does and does not do stands in the window itself.

#include "app/PassphraseKeeper.h"
#include "core/WindowLayer.h"
#include "shell/AppFolder.h"
#include "storage/KeyFile.h"

#include <functional>
#include <string>

namespace veyrant {

struct LockControls {
    int chkLock = 0; // 0 plain, 1 locked
    int chkKeep = 0; // keep the passphrase in the desktop's keyring
    bool KeepEnabled = false;
    std::string lblPassphrase;
    std::string txtPassphrase;
    std::string txtConfirm;
    bool PassphraseEnabled = false;
    std::string lblStatement;
};

class LockOptions {
public:
    LockOptions(AppFolder& folder, WindowLayer& windows, PassphraseKeeper* keyring,
                std::function<void()> close, StretchLimits limits = ModerateStretch());

    const LockControls& Controls() const { return controls_; }

    void Form_Load();
    void chkLock_Click(int value);
    void chkKeep_Click(int value);
    void txtPassphrase_Change(const std::string& text);
    void txtConfirm_Change(const std::string& text);
    void cmdOK_Click();
    void cmdCancel_Click();

    std::string Dump() const;

private:
    void ShowChoice();
    bool PassphraseAgreed();
    bool Apply();
    void KeepInKeyring();
    void Close();

    AppFolder& folder_;
    WindowLayer& windows_;
    PassphraseKeeper* keyring_;
    std::function<void()> close_;
    StretchLimits limits_;
    LockControls controls_;
    bool wasLocked_ = false;
};

} // namespace veyrant

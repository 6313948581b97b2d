#include "app/LibraryUnlock.h"

#include "core/SecretKey.h"
#include "storage/LibraryLock.h"
#include "storage/LockedFileError.h"

namespace veyrant {

bool OpenLockedLibrary(AppFolder& folder, WindowLayer& windows, PassphraseKeeper* keyring,
                       const PassphraseQuestion& ask) {
    if (SealedWithoutKey(folder)) {
        windows.ShowMessage(LockedFileBox(KeyFilePath(folder)));
        return false;
    }
    if (!LibraryIsLocked(folder)) {
        return true;
    }
    try {
        if (keyring != nullptr && keyring->Available()) {
            if (auto kept = keyring->Recall()) {
                const bool opened = OpenLibrary(folder, *kept);
                Wipe(*kept);
                if (opened) {
                    return true;
                }
            }
        }
        for (const char* prompt = UnlockPrompt;; prompt = WrongPassphrasePrompt) {
            auto typed = ask ? ask(prompt) : std::nullopt;
            if (!typed) {
                return false;
            }
            const bool opened = OpenLibrary(folder, *typed);
            Wipe(*typed);
            if (opened) {
                return true;
            }
        }
    } catch (const LockedFileError& error) {
        windows.ShowMessage(LockedFileBox(error.File()));
        return false;
    }
}

} // namespace veyrant

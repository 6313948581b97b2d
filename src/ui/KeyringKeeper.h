#pragma once

// The Library's passphrase in the desktop's keyring, through the freedesktop Secret Service.
// Where no Secret Service runs on the session bus, the keyring is not offered.

#include "app/PassphraseKeeper.h"

namespace veyrant {

class KeyringKeeper final : public PassphraseKeeper {
public:
    bool Available() override;
    std::optional<std::string> Recall() override;
    bool Keep(const std::string& passphrase) override;
    void Forget() override;
};

} // namespace veyrant

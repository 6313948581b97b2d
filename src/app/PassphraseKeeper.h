#pragma once

// The desktop's keyring, where a user may keep the Library's passphrase so that an unlocked
// session opens the Library without asking. Where no keyring runs, nothing is kept and the
// program asks.

#include <optional>
#include <string>

namespace veyrant {

class PassphraseKeeper {
public:
    virtual ~PassphraseKeeper() = default;
    virtual bool Available() = 0;
    // The kept passphrase, or nothing when none is kept or the keyring does not answer.
    virtual std::optional<std::string> Recall() = 0;
    virtual bool Keep(const std::string& passphrase) = 0;
    virtual void Forget() = 0;
};

} // namespace veyrant

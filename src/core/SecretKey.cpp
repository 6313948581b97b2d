#include "core/SecretKey.h"

#include "core/ProgramError.h"

#include <sodium.h>

namespace veyrant {

void StartSodium() {
    if (sodium_init() < 0) {
        throw ProgramError(ErrorNumber::ProgramState);
    }
}

std::unique_ptr<SecretKey> SecretKey::Random() {
    auto key = std::make_unique<SecretKey>();
    randombytes_buf(key->Bytes(), Size);
    return key;
}

SecretKey::SecretKey() {
    StartSodium();
    // A system that refuses to lock the page still holds the key; it is only the swap that may
    // then see it.
    sodium_mlock(bytes_.data(), bytes_.size());
}

SecretKey::~SecretKey() {
    // Unlocking wipes the bytes too.
    sodium_munlock(bytes_.data(), bytes_.size());
}

void Wipe(std::string& text) {
    if (!text.empty()) {
        sodium_memzero(text.data(), text.size());
    }
    text.clear();
}

} // namespace veyrant

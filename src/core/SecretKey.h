#pragma once

// A key of the locked Library held in memory: kept out of swap where the system allows, and
// wiped when it is dropped, so that no copy outlives its use.

#include <array>
#include <cstddef>
#include <memory>
#include <string>

namespace veyrant {

// Readies libsodium once; every routine that touches a key calls it first.
void StartSodium();

class SecretKey {
public:
    static constexpr std::size_t Size = 32;

    // A fresh random key.
    static std::unique_ptr<SecretKey> Random();
    // A key of zeros, to be filled by Bytes().
    SecretKey();
    SecretKey(const SecretKey&) = delete;
    SecretKey& operator=(const SecretKey&) = delete;
    ~SecretKey();

    unsigned char* Bytes() { return bytes_.data(); }
    const unsigned char* Bytes() const { return bytes_.data(); }

private:
    std::array<unsigned char, Size> bytes_{};
};

// Wipes text that held a passphrase or a Dialogue once it is no longer needed.
void Wipe(std::string& text);

} // namespace veyrant

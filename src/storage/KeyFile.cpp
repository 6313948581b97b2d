#include "storage/KeyFile.h"

#include "core/WholeFile.h"
#include "storage/Envelope.h"
#include "storage/LockedFileError.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <sodium.h>

namespace veyrant {

namespace {

constexpr std::string_view KeyMagic = "VSLK";
constexpr char KeyVersion = 1;
constexpr std::size_t SaltSize = crypto_pwhash_SALTBYTES;
constexpr std::size_t FieldSize = 8;
constexpr std::size_t HeaderSize = KeyMagic.size() + 1 + 2 * FieldSize + SaltSize;
// The wrapped key is bound to this name, as a Library file is to its own.
constexpr std::string_view WrappedName = "exe/library.key";
// A sum of the rest ends the file, so that a damaged key file is told from a wrong passphrase.
constexpr std::size_t SumSize = crypto_generichash_BYTES_MIN;
constexpr std::size_t FileSize = HeaderSize + EnvelopeOverhead + SecretKey::Size + SumSize;

std::string SumOf(std::string_view bytes) {
    std::string sum(SumSize, '\0');
    crypto_generichash(reinterpret_cast<unsigned char*>(sum.data()), SumSize,
                       reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), nullptr,
                       0);
    return sum;
}

void PutField(std::string& bytes, std::uint64_t value) {
    for (std::size_t k = 0; k < FieldSize; ++k) {
        bytes.push_back(static_cast<char>((value >> (8 * k)) & 0xFF));
    }
}

std::uint64_t FieldAt(std::string_view bytes, std::size_t at) {
    std::uint64_t value = 0;
    for (std::size_t k = 0; k < FieldSize; ++k) {
        value |= std::uint64_t{static_cast<unsigned char>(bytes[at + k])} << (8 * k);
    }
    return value;
}

std::unique_ptr<SecretKey> Stretch(std::string_view passphrase, const unsigned char* salt,
                                   StretchLimits limits) {
    auto key = std::make_unique<SecretKey>();
    if (crypto_pwhash(key->Bytes(), SecretKey::Size, passphrase.data(), passphrase.size(), salt,
                      limits.Passes, limits.Memory, crypto_pwhash_ALG_ARGON2ID13) != 0) {
        throw ProgramError(ErrorNumber::OutOfMemory);
    }
    return key;
}

bool LimitsSound(StretchLimits limits) {
    return limits.Passes >= crypto_pwhash_OPSLIMIT_MIN &&
           limits.Passes <= crypto_pwhash_OPSLIMIT_SENSITIVE &&
           limits.Memory >= crypto_pwhash_MEMLIMIT_MIN &&
           limits.Memory <= crypto_pwhash_MEMLIMIT_SENSITIVE;
}

} // namespace

StretchLimits ModerateStretch() {
    return {crypto_pwhash_OPSLIMIT_MODERATE, crypto_pwhash_MEMLIMIT_MODERATE};
}

std::filesystem::path KeyFilePath(const AppFolder& folder) {
    return folder.Exe() / "library.key";
}

std::string WrapKey(const SecretKey& dataKey, std::string_view passphrase, StretchLimits limits) {
    StartSodium();
    std::string bytes(KeyMagic);
    bytes.push_back(KeyVersion);
    PutField(bytes, limits.Passes);
    PutField(bytes, limits.Memory);
    unsigned char salt[SaltSize];
    randombytes_buf(salt, SaltSize);
    bytes.append(reinterpret_cast<const char*>(salt), SaltSize);
    const auto wrapping = Stretch(passphrase, salt, limits);
    bytes += Seal(*wrapping, WrappedName,
                  {reinterpret_cast<const char*>(dataKey.Bytes()), SecretKey::Size});
    return bytes + SumOf(bytes);
}

std::unique_ptr<SecretKey> UnwrapKey(const std::filesystem::path& keyFile,
                                     std::string_view passphrase) {
    StartSodium();
    std::string bytes;
    try {
        bytes = ReadWholeFile(keyFile, FileSize);
    } catch (const ProgramError&) {
        throw LockedFileError(keyFile);
    }
    const std::string_view view(bytes);
    if (bytes.size() != FileSize || !view.starts_with(std::string(KeyMagic) + KeyVersion) ||
        SumOf(view.substr(0, FileSize - SumSize)) != view.substr(FileSize - SumSize)) {
        throw LockedFileError(keyFile);
    }
    const StretchLimits limits{FieldAt(view, KeyMagic.size() + 1),
                               FieldAt(view, KeyMagic.size() + 1 + FieldSize)};
    if (!LimitsSound(limits)) {
        throw LockedFileError(keyFile);
    }
    const auto* salt = reinterpret_cast<const unsigned char*>(bytes.data()) + HeaderSize - SaltSize;
    const auto wrapping = Stretch(passphrase, salt, limits);
    auto opened =
        Open(*wrapping, WrappedName, view.substr(HeaderSize, FileSize - SumSize - HeaderSize));
    if (!opened) {
        return nullptr;
    }
    auto key = std::make_unique<SecretKey>();
    std::memcpy(key->Bytes(), opened->data(), SecretKey::Size);
    Wipe(*opened);
    return key;
}

} // namespace veyrant

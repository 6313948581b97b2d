#include "storage/Envelope.h"

#include <sodium.h>

namespace veyrant {

namespace {

constexpr std::size_t HeaderSize = EnvelopeMagic.size() + 1;
constexpr std::size_t NonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr std::size_t TagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;

std::string Header() {
    return std::string(EnvelopeMagic) + EnvelopeVersion;
}

// The header and the name, bound to the text.
std::string Bound(std::string_view name) {
    return Header() + std::string(name);
}

const unsigned char* Bytes(std::string_view text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

static_assert(EnvelopeOverhead == HeaderSize + NonceSize + TagSize);

bool IsEnvelope(std::string_view bytes) {
    return bytes.starts_with(EnvelopeMagic);
}

std::string Seal(const SecretKey& key, std::string_view name, std::string_view text) {
    StartSodium();
    const std::string bound = Bound(name);
    std::string sealed = Header();
    sealed.resize(EnvelopeOverhead + text.size());
    auto* nonce = reinterpret_cast<unsigned char*>(sealed.data()) + HeaderSize;
    randombytes_buf(nonce, NonceSize);
    unsigned long long length = 0;
    crypto_aead_xchacha20poly1305_ietf_encrypt(nonce + NonceSize, &length, Bytes(text), text.size(),
                                               Bytes(bound), bound.size(), nullptr, nonce,
                                               key.Bytes());
    return sealed;
}

std::optional<std::string> Open(const SecretKey& key, std::string_view name,
                                std::string_view bytes) {
    StartSodium();
    if (bytes.size() < EnvelopeOverhead || !bytes.starts_with(Header())) {
        return std::nullopt;
    }
    const std::string bound = Bound(name);
    const auto* nonce = Bytes(bytes) + HeaderSize;
    std::string text(bytes.size() - EnvelopeOverhead, '\0');
    unsigned long long length = 0;
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            reinterpret_cast<unsigned char*>(text.data()), &length, nullptr, nonce + NonceSize,
            bytes.size() - HeaderSize - NonceSize, Bytes(bound), bound.size(), nonce,
            key.Bytes()) != 0) {
        return std::nullopt;
    }
    return text;
}

} // namespace veyrant

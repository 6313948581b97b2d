#include "core/Random.h"

#include <bit>

namespace veyrant {

void Random::Seed(float seed) {
    // Mix the float's bits so that near seeds start far-apart series.
    std::uint64_t z = std::bit_cast<std::uint32_t>(seed) + 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    state_ = z ^ (z >> 31);
}

float Random::Draw() {
    // splitmix64; the top 24 bits make an exact float below 1.
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    z ^= z >> 31;
    return static_cast<float>(z >> 40) * 0x1p-24f;
}

int Random::Scaled(std::int32_t n) {
    return static_cast<int>(static_cast<double>(n) * static_cast<double>(Draw())) + 1;
}

} // namespace veyrant

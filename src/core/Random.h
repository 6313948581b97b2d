#pragma once

// The program's random series. Re-seeding with one single-precision value restarts a series
// that depends on that value alone and is the same on every machine; each draw is uniform in
// [0, 1). Virtual so that a test can script its draws.

#include <cstdint>

namespace veyrant {

class Random {
public:
    virtual ~Random() = default;
    virtual void Seed(float seed);
    virtual float Draw();

    // The integer part of n times a draw, plus 1: a value from 1 to n.
    int Scaled(std::int32_t n);

private:
    std::uint64_t state_ = 0x9E3779B97F4A7C15ULL;
};

} // namespace veyrant

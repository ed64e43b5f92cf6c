// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

/// Eight units of a text that are compared at once.
namespace twk {

using EightUnits = std::uint16_t __attribute__((vector_size(16)));

inline EightUnits eight_of(char16_t unit) {
    return EightUnits{} + static_cast<std::uint16_t>(unit);
}

inline EightUnits eight_at(const char16_t* place) {
    EightUnits units;
    std::memcpy(&units, place, sizeof units);
    return units;
}

/// Which of eight units a comparison has found.
class FoundUnits {
  public:
    template <class Comparison> explicit FoundUnits(const Comparison& found) {
        static_assert(sizeof found == sizeof halves_);
        std::memcpy(halves_, &found, sizeof halves_);
    }
    bool any() const { return (halves_[0] | halves_[1]) != 0; }
    /// Number of the first one; one must be.
    int first() const {
        constexpr int bits = 16;
        const std::uint64_t half = halves_[halves_[0] != 0 ? 0 : 1];
        const int before =
            std::endian::native == std::endian::little ? std::countr_zero(half) : std::countl_zero(half);
        return before / bits + (halves_[0] != 0 ? 0 : 4);
    }

  private:
    std::uint64_t halves_[2]; ///< as they stand in memory
};

} // namespace twk

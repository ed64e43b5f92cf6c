#include "engine/text_windows.h"

#include <algorithm>
#include <bit>

namespace twk {

namespace {

constexpr std::size_t width = 4;
constexpr std::size_t bits_per_unit = 8; // few hashes of a text without the window meet a set bit
constexpr unsigned least_bits = 10;

std::size_t hashed(TextView text, std::size_t at, unsigned shift) {
    const std::uint64_t window =
        static_cast<std::uint64_t>(text[at]) | static_cast<std::uint64_t>(text[at + 1]) << 16 |
        static_cast<std::uint64_t>(text[at + 2]) << 32 | static_cast<std::uint64_t>(text[at + 3]) << 48;
    return static_cast<std::size_t>((window * 0x9E3779B97F4A7C15ULL) >> shift);
}

} // namespace

TextWindows::TextWindows(TextView text) {
    const auto wanted = static_cast<unsigned>(std::bit_width(text.size() * bits_per_unit));
    const unsigned bits = std::max(least_bits, wanted);
    shift_ = 64 - bits;
    bits_.assign((std::size_t{1} << bits) / 64, 0);
    for (std::size_t at = 0; at + width <= text.size(); ++at) {
        const std::size_t bit = hashed(text, at, shift_);
        bits_[bit / 64] |= std::uint64_t{1} << bit % 64;
    }
}

bool TextWindows::may_hold(TextView what) const {
    for (std::size_t at = 0; at + width <= what.size(); ++at) {
        const std::size_t bit = hashed(what, at, shift_);
        if ((bits_[bit / 64] >> bit % 64 & 1) == 0) return false;
    }
    return true;
}

} // namespace twk

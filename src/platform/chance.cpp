// SPDX-License-Identifier: MIT
#include "platform/chance.h"

#include "platform/clock.h"

#include <cmath>

namespace twk {

namespace {

constexpr std::uint32_t modulus = 1u << 24;

} // namespace

double Chance::Rnd() {
    state_ = (state_ * 1140671485u + 12820163u) % modulus;
    return static_cast<double>(state_) / modulus;
}

void Chance::Randomize() {
    if (fixed_) return;
    state_ = static_cast<std::uint32_t>(std::fmod(clock().Timer() * 1000.0, modulus));
}

void Chance::fix_seed(std::uint64_t seed) {
    state_ = static_cast<std::uint32_t>(seed % modulus);
    fixed_ = true;
}

Chance& chance() {
    static Chance one;
    return one;
}

int percent_draw() {
    return static_cast<int>(std::floor(chance().Rnd() * 100 + 1));
}

} // namespace twk

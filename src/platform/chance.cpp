// SPDX-License-Identifier: MIT
#include "platform/chance.h"

#include "platform/clock.h"

#include <cmath>

namespace twk {

double Chance::Rnd() {
    return static_cast<double>(generator_()) / modulus;
}

void Chance::Randomize() {
    if (fixed_) return;
    generator_.seed(static_cast<std::uint64_t>(clock().Timer() * 1000.0));
}

void Chance::fix_seed(std::uint64_t seed) {
    generator_.seed(seed);
    fixed_ = true;
}

int draw_below(int n) {
    return static_cast<int>(std::floor(chance().Rnd() * n));
}

int percent_draw() {
    return draw_below(100) + 1;
}

} // namespace twk

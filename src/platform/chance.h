// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

namespace twk {

/// The program's source of chance: x = (x * 1140671485 + 12820163) mod 2^24, one for the process. Every draw
/// advances it once, so that two runs with one seed draw the same.
class Chance {
  public:
    /// From 0 up to, not including, 1.
    double Rnd();

    /// Seeds from the clock; without effect while a fixed seed holds.
    void Randomize();

    /// Starts from `seed` mod 2^24 and lets no Randomize change it.
    void fix_seed(std::uint64_t seed);

  private:
    static constexpr std::uint64_t modulus = 1u << 24;
    using Generator = std::linear_congruential_engine<std::uint64_t, 1140671485 % modulus, 12820163, modulus>;

    Generator generator_{0x50000};
    bool fixed_ = false;
};

Chance& chance();

/// A draw from 0 up to, not including, `n`: Int(Rnd * n). One of 0 gives 0 and draws all the same, one of a
/// negative number goes down to that.
int draw_below(int n);

/// A percentage draw, 1 to 100.
int percent_draw();

} // namespace twk

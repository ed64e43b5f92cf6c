// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/sentences.h"
#include "platform/text.h"

#include <cstdint>
#include <vector>

namespace twk {

/// A text as `Ajustar_KW` leaves its argument, cut into pieces: for texts that get sentences many times.
struct SpacedText {
    /// Fault 6 when there are more words than 32767.
    explicit SpacedText(Text text);
    SpacedText(const SpacedText&) = delete;
    SpacedText& operator=(const SpacedText&) = delete;

    Text texto;
    std::int16_t palabras;
    std::vector<TextView> piezas; ///< of `texto`, without the blanks at its ends
};

/// What `plain::Ajustar_KW` gives for the text. The pieces are put together without a copy of each, and the
/// densities, of which only the faults matter, are counted where a fault cannot be ruled out.
Text Ajustar_KW(const SpacedText& spaced, const Text& keyword, int densidad_pedida,
                const LinkingSentences& sentences);

} // namespace twk

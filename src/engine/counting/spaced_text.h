// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/scan.h"
#include "engine/counting/sentences.h"
#include "platform/subscript.h"
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

    /// Without a word.
    bool blank() const { return starts.empty(); }
    /// Piece number `first` to `last` of the text without the blanks at its ends. Fault 9 outside it.
    TextView pieces(std::int64_t first, std::int64_t last) const {
        const std::uint32_t begin = at(starts, first), end = at(starts, last + 1);
        return TextView(texto).substr(begin, end - 1 - begin);
    }

    Text texto;
    TextScan scan; ///< of the text
    std::int16_t palabras;
    /// Where each piece begins in `texto`, and one blank behind the last; empty when there is none.
    std::vector<std::uint32_t> starts;
};

/// What `plain::Ajustar_KW` gives for the text. The pieces are put together without a copy of each, and the
/// densities, of which only the faults matter, are counted where a fault cannot be ruled out.
Text Ajustar_KW(const SpacedText& spaced, const Text& keyword, int densidad_pedida,
                const LinkingSentences& sentences);

} // namespace twk

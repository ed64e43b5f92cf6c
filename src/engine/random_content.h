// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

namespace twk {

struct Boxes;
struct Run;

/// What the texts of the random pages are drawn from, and what one page leaves to the next.
struct ContentPool {
    static constexpr int nothing = -1;

    /// Every box twice; the last entry holds nothing and is never drawn.
    explicit ContentPool(const Boxes& boxes);

    std::vector<int> fuente;    ///< numbers of boxes
    std::vector<int> seleccion; ///< boxes drawn for a page, or `nothing`; not emptied between pages
    int n_fuente;
    int d1 = 0, d2 = 0; ///< densities; kept from page to page at exactly 10000 units
};

/// The generated text of a random page: drawn boxes, adjusted to one or two keywords, their surplus replaced.
/// Writes the animation, when there is one, ahead of the text. Faults of the density adjustment come out.
Text tp3_content(Run& run, ContentPool& pool);

/// The same, through the synonyms where they are wanted.
Text random_content(Run& run, ContentPool& pool);

} // namespace twk

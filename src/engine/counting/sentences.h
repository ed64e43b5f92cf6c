// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <functional>
#include <vector>

namespace twk {

/// What `Ajustar_KW` puts into a text, and where.
struct LinkingSentences {
    std::vector<Text> anchors;   ///< words, trimmed and not empty, in front of which a sentence may go
    std::function<Text()> drawn; ///< the next sentence; draws from chance
    int* put_in = nullptr;       ///< counts every sentence that goes in, repeated ones too
};

} // namespace twk

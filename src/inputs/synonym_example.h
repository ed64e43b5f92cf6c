// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

/// How an entry of the dictionary is to be written.
inline constexpr TextView synonym_format =
    u"One word or phrase that pages may show in place of the word, letter by letter: no list, no quotes, no "
    u"apostrophes.";

/// What a page will show for the entry as it is being typed; how pages use one, before there is any.
Text synonym_example(const Text& word, const Text& synonym);

} // namespace twk

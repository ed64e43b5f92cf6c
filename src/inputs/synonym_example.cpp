// SPDX-License-Identifier: MIT
#include "inputs/synonym_example.h"

namespace twk {

Text synonym_example(const Text& word, const Text& synonym) {
    const Text from = word.empty() ? Text(u"shed") : Trim(word);
    const Text to = trim_view(synonym).empty() || word.empty() ? Text(u"garden house") : Trim(synonym);
    const Text example = u"\"the " + from + u" on this page\" becomes \"the " + to + u" on this page\"";
    if (word.empty() || trim_view(synonym).empty()) return u"For example: " + example;
    if (from.find(u' ') != Text::npos && to.find(u' ') != Text::npos)
        return u"Pages look for single words: neither of the two is found in a text.";
    if (from.find(u' ') != Text::npos)
        return u"Pages look for single words: only \"" + to + u"\" is found, and becomes \"" + from + u"\"";
    return u"A page will show: " + example;
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "engine/fill.h"

namespace twk {

void append_filled(Text& out, TextView html, std::initializer_list<TextView> values) {
    std::size_t size = out.size() + html.size();
    for (const TextView value : values) size += value.size();
    out.reserve(size);
    for (std::size_t from = 0;;) {
        const std::size_t place = html.find(u'{', from);
        out.append(html.substr(from, place - from));
        if (place == TextView::npos) return;
        out.append(values.begin()[html[place + 1] - u'1']);
        from = place + 3; // "{1}"
    }
}

} // namespace twk

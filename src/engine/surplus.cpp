#include "engine/surplus.h"

#include "platform/faults.h"

#include <algorithm>
#include <vector>

namespace twk {

void replace_last(Text& text, TextView find, TextView with, int count) {
    if (count < -1) throw RuntimeFault(fault_argument);
    if (count == 0 || find.empty()) return;
    std::vector<std::size_t> places; // from the end
    std::size_t end = text.size();
    while (count < 0 || static_cast<int>(places.size()) < count) {
        if (end < find.size()) break;
        const std::size_t at = text.rfind(find, end - find.size());
        if (at == Text::npos) break;
        places.push_back(at);
        end = at;
    }
    if (places.empty()) return;
    Text out;
    out.reserve(text.size());
    std::size_t from = 0;
    std::reverse(places.begin(), places.end());
    for (const std::size_t place : places) {
        out.append(text, from, place - from).append(with);
        from = place + find.size();
    }
    text = out.append(text, from);
}

} // namespace twk

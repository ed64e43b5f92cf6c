// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <initializer_list>

/// Pieces of pages, written as the HTML that they are: uR"(<td bgcolor="{1}">)" has a place for one value.
namespace twk {

/// What a literal calls whose places are not just {1} to {N}: it does not compile.
void a_fragment_names_each_of_its_values_and_no_other();

/// The literal of a piece with places for so many values, each of them named once or more.
template <std::size_t Values> class Fragment {
  public:
    // cppcheck-suppress noExplicitConstructor ; a literal is meant to become one
    template <std::size_t Size> consteval Fragment(const char16_t (&html)[Size]) : html_(html, Size - 1) {
        bool named[Values + 1] = {};
        for (std::size_t at = 0; at < html_.size(); ++at) {
            if (html_[at] != u'{') continue;
            const std::size_t number = at + 2 < html_.size() ? html_[at + 1] - u'0' : 0u;
            if (number < 1 || number > Values || html_[at + 2] != u'}')
                a_fragment_names_each_of_its_values_and_no_other();
            named[number] = true;
        }
        for (std::size_t value = 1; value <= Values; ++value)
            if (!named[value]) a_fragment_names_each_of_its_values_and_no_other();
    }
    constexpr TextView html() const { return html_; }

  private:
    TextView html_;
};

/// Appends a piece, its places filled; what a value holds is never taken for a place.
void append_filled(Text& out, TextView html, std::initializer_list<TextView> values);

/// The piece with its places filled.
template <class... Values> Text fill(Fragment<sizeof...(Values)> fragment, const Values&... values) {
    Text out;
    append_filled(out, fragment.html(), {TextView(values)...});
    return out;
}

} // namespace twk

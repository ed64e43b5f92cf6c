#include "engine/keyword_counts.h"

#include "engine/text_toolkit.h"

namespace twk {

std::int16_t KeywordCounts::count(Text& keyword) {
    if (plain_ && !contains(keyword, u"$")) {
        keyword = Trim(LCase(keyword));
        quitar_dobles(keyword);
        return windows_.may_hold(keyword) ? contar_kw(text_, keyword) : std::int16_t{0};
    }
    const std::int16_t found = contar_kw(text_, keyword);
    learn();
    return found;
}

void KeywordCounts::learn() {
    // A tag without its blanks, a joint or a highlight opening would be changed by any count.
    Text again = text_;
    Text not_there = u"\uFFFF \uFFFF";
    plain_ = contar_kw(again, not_there) == 0 && again == text_;
    if (plain_) windows_ = TextWindows(text_);
}

} // namespace twk

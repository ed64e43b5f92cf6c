#include "engine/keyword_counts.h"

#include "engine/text_toolkit.h"

#include <algorithm>
#include <bit>

namespace twk {

namespace {

constexpr std::size_t width = 4;

std::uint64_t window_at(TextView text, std::size_t at) {
    return static_cast<std::uint64_t>(text[at]) | static_cast<std::uint64_t>(text[at + 1]) << 16 |
           static_cast<std::uint64_t>(text[at + 2]) << 32 | static_cast<std::uint64_t>(text[at + 3]) << 48;
}

std::size_t hashed(std::uint64_t window, unsigned shift) {
    return static_cast<std::size_t>((window * 0x9E3779B97F4A7C15ULL) >> shift);
}

} // namespace

std::int16_t KeywordCounts::count(Text& keyword) {
    if (known_ && plain_ && !contains(keyword, u"$")) {
        keyword = Trim(LCase(keyword));
        quitar_dobles(keyword);
        // The text holds no tag without its blanks, no joint and no highlighting: it stays as it is.
        if (!may_hold(keyword)) return 0;
        return contar_kw(text_, keyword);
    }
    const std::int16_t found = contar_kw(text_, keyword);
    learn();
    return found;
}

void KeywordCounts::learn() {
    known_ = true;
    Text again = text_;
    Text none = u"\uFFFF \uFFFF";
    plain_ = contar_kw(again, none) == 0 && again == text_;
    if (!plain_) return;
    const unsigned bits = std::max(10U, static_cast<unsigned>(std::bit_width(text_.size() * 8)));
    shift_ = 64 - bits;
    windows_.assign((std::size_t{1} << bits) / 64, 0);
    for (std::size_t at = 0; at + width <= text_.size(); ++at) {
        const std::size_t bit = hashed(window_at(text_, at), shift_);
        windows_[bit / 64] |= std::uint64_t{1} << bit % 64;
    }
}

bool KeywordCounts::may_hold(TextView keyword) const {
    for (std::size_t at = 0; at + width <= keyword.size(); ++at) {
        const std::size_t bit = hashed(window_at(keyword, at), shift_);
        if ((windows_[bit / 64] >> bit % 64 & 1) == 0) return false;
    }
    return true;
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "platform/eight_units.h"
#include "platform/faults.h"
#include "platform/wide.h"

#include <algorithm>
#include <array>
#include <clocale> // newlocale, too
#include <cstddef>
#include <cstdint>
#include <cwctype>
#include <memory_resource>
#include <optional>
#include <utility>

namespace twk {

namespace {

constexpr char16_t replacement = 0xFFFD;

struct CaseTables {
    std::array<char16_t, 65536> lower{};
    std::array<char16_t, 65536> upper{};

    CaseTables() {
        const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        for (unsigned i = 0; i < 65536; ++i) {
            lower[i] = mapped(i, locale, towlower_l);
            upper[i] = mapped(i, locale, towupper_l);
        }
        if (locale != nullptr) freelocale(locale);
    }

    static char16_t mapped(unsigned unit, locale_t locale, wint_t (*map)(wint_t, locale_t)) {
        const bool surrogate = unit >= 0xD800 && unit < 0xE000;
        if (surrogate || locale == nullptr) return static_cast<char16_t>(unit);
        const wint_t to = map(unit, locale);
        return to < 65536 ? static_cast<char16_t>(to) : static_cast<char16_t>(unit);
    }
};

const CaseTables& tables() {
    static const CaseTables made;
    return made;
}

/// A text to look for, by its first and its last unit.
struct Ends {
    char16_t first;
    char16_t last;
    std::size_t distance;

    bool at(const char16_t* place) const { return place[0] == first && place[distance] == last; }
};

/// Passes over blocks in which the two units stand nowhere in their places.
TWK_WIDE const char16_t* pass_blocks(const char16_t* at, const char16_t* end, Ends ends) {
    constexpr std::size_t block = 64;
    for (; end - at >= std::ptrdiff_t{block}; at += block) {
        unsigned short found = 0;
        for (std::size_t i = 0; i < block; ++i)
            found = static_cast<unsigned short>(
                found | (int{at[i] == ends.first} & int{at[i + ends.distance] == ends.last}));
        // cppcheck-suppress knownConditionTrueFalse ; it takes the loop for one that never runs
        if (found != 0) break;
    }
    return at;
}

/// First place in [at, end) with both units in their places, or `end`.
const char16_t* find_ends(const char16_t* at, const char16_t* end, Ends ends) {
    constexpr std::ptrdiff_t eight = 8, close = 8 * eight;
    const EightUnits first = eight_of(ends.first), last = eight_of(ends.last);
    // Mostly the place is close by, or far away.
    for (const char16_t* far = end - at > close ? at + close : end;;
         far = end - at > close ? at + close : end) {
        for (; far - at >= eight; at += eight) {
            const FoundUnits found((eight_at(at) == first) & (eight_at(at + ends.distance) == last));
            if (found.any()) return at + found.first();
        }
        if (far == end) break;
        at = pass_blocks(at, end, ends);
    }
    while (at != end && !ends.at(at)) ++at;
    return at;
}

constexpr std::size_t npos = TextView::npos;

std::size_t as_count(int count) {
    if (count < 0) throw RuntimeFault(fault_argument);
    return static_cast<std::size_t>(count);
}

} // namespace

std::size_t position(TextView text, TextView find, std::size_t from) {
    if (find.size() > text.size() || from > text.size() - find.size()) return npos;
    if (find.empty()) return from;
    const char16_t* const begin = text.data();
    const char16_t* const end = begin + (text.size() - find.size()) + 1;
    const Ends ends{find.front(), find.back(), find.size() - 1};
    for (const char16_t* at = begin + from; (at = find_ends(at, end, ends)) != end; ++at)
        if (std::equal(find.begin() + 1, find.end(), at + 1)) return static_cast<std::size_t>(at - begin);
    return npos;
}

int Len(TextView text) {
    return static_cast<int>(text.size());
}

Text Left(TextView text, int count) {
    return Text(text.substr(0, as_count(count)));
}

Text Right(TextView text, int count) {
    const std::size_t wanted = std::min(as_count(count), text.size());
    return Text(text.substr(text.size() - wanted));
}

Text Mid(TextView text, int start) {
    return Mid(text, start, Len(text));
}

Text Mid(TextView text, int start, int count) {
    if (start < 1) throw RuntimeFault(fault_argument);
    const std::size_t from = std::min(static_cast<std::size_t>(start - 1), text.size());
    return Text(text.substr(from, as_count(count)));
}

int InStr(TextView text, TextView find, int start) {
    if (start < 1) throw RuntimeFault(fault_argument);
    if (text.empty()) return 0;
    const std::size_t at = position(text, find, static_cast<std::size_t>(start - 1));
    return at == npos ? 0 : static_cast<int>(at) + 1;
}

namespace {

/// The text with its first `count` occurrences replaced, all for -1; nothing when there is none.
std::optional<Text> replaced(TextView text, TextView find, TextView with, int count) {
    std::array<std::byte, 1024> room; // enough for most texts, without a request for memory
    std::pmr::monotonic_buffer_resource pool(room.data(), room.size());
    std::pmr::vector<std::size_t> places(&pool);
    for (std::size_t at = 0; !find.empty() && static_cast<int>(places.size()) != count; at += find.size()) {
        at = position(text, find, at);
        if (at == npos) break;
        places.push_back(at);
    }
    if (places.empty()) return std::nullopt;
    Text out;
    out.reserve(text.size() + places.size() * with.size() - places.size() * find.size());
    std::size_t from = 0;
    for (const std::size_t place : places) {
        out.append(text, from, place - from).append(with);
        from = place + find.size();
    }
    out.append(text, from);
    return out;
}

} // namespace

Text Replace(TextView text, TextView find, TextView with, int count) {
    if (count < -1) throw RuntimeFault(fault_argument);
    std::optional<Text> out = replaced(text, find, with, count);
    return out ? std::move(*out) : Text(text);
}

bool replace_all(Text& text, TextView find, TextView with) {
    std::optional<Text> out = replaced(text, find, with, -1);
    if (out) text = std::move(*out);
    return out.has_value();
}

std::vector<TextView> split_views(TextView text, TextView separator) {
    std::vector<TextView> pieces;
    if (text.empty()) return pieces;
    if (separator.empty()) return {text};
    pieces.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), separator.front())) + 1);
    std::size_t from = 0;
    // Pieces between single units are mostly short words: no use in looking at whole blocks.
    const auto next = [&](std::size_t at) {
        return separator.size() == 1 ? text.find(separator.front(), at) : position(text, separator, at);
    };
    for (std::size_t at = 0; (at = next(from)) != npos; from = at + separator.size())
        pieces.push_back(text.substr(from, at - from));
    pieces.push_back(text.substr(from));
    return pieces;
}

std::vector<Text> Split(TextView text, TextView separator) {
    const std::vector<TextView> views = split_views(text, separator);
    return {views.begin(), views.end()};
}

TextView trim_view(TextView text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == npos) return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text Trim(TextView text) {
    return Text(trim_view(text));
}

Text Trim(Text&& text) {
    text.erase(text.find_last_not_of(u' ') + 1); // all of it when there are only blanks: npos + 1 is 0
    text.erase(0, text.find_first_not_of(u' '));
    return std::move(text);
}

char16_t lower_beyond_ascii(char16_t unit) {
    return tables().lower[unit];
}

Text LCase(TextView text) {
    Text out(text);
    for (char16_t& unit : out) unit = lower(unit);
    return out;
}

Text UCase(TextView text) {
    const CaseTables& table = tables();
    Text out(text);
    for (char16_t& unit : out) unit = table.upper[unit];
    return out;
}

bool contains(TextView text, TextView find) {
    return position(text, find, 0) != npos;
}

bool same_text(TextView a, TextView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return x == y || lower(x) == lower(y); });
}

namespace {

/// Units or bytes in front that are plain ASCII.
template <class View> std::size_t ascii_length(View text) {
    using Unit = typename View::value_type;
    constexpr std::size_t block = 32;
    std::size_t length = 0;
    const auto plain = [&](std::size_t from, std::size_t count) {
        Unit all = 0;
        for (std::size_t i = 0; i < count; ++i) all = static_cast<Unit>(all | text[from + i]);
        return (all & ~0x7F) == 0;
    };
    while (text.size() - length >= block && plain(length, block)) length += block;
    while (length < text.size() && plain(length, 1)) ++length;
    return length;
}

} // namespace

std::string to_utf8(TextView text) {
    std::string out;
    out.reserve(text.size());
    const auto put = [&out](unsigned value) { out.push_back(static_cast<char>(value)); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t plain = ascii_length(text.substr(i));
        const std::size_t size = out.size();
        out.resize(size + plain);
        std::transform(text.begin() + static_cast<std::ptrdiff_t>(i),
                       text.begin() + static_cast<std::ptrdiff_t>(i + plain),
                       out.begin() + static_cast<std::ptrdiff_t>(size),
                       [](char16_t unit) { return static_cast<char>(unit); });
        i += plain;
        if (i == text.size()) break;
        unsigned code = text[i];
        const bool high = code >= 0xD800 && code < 0xDC00;
        if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00u);
            put(0xF0 | (code >> 18));
            put(0x80 | ((code >> 12) & 0x3F));
        } else {
            if (code >= 0xD800 && code < 0xE000) code = replacement;
            if (code < 0x800) {
                put(0xC0 | (code >> 6));
                put(0x80 | (code & 0x3F));
                continue;
            }
            put(0xE0 | (code >> 12));
        }
        put(0x80 | ((code >> 6) & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    return out;
}

namespace {

/// Decodes one code point at `at` and moves behind it; returns false, one byte further, where there is none.
bool decode(std::string_view bytes, std::size_t& at, unsigned& code) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned lead = byte(at);
    unsigned extra = 0, least = 0;
    if (lead < 0x80) {
        code = lead;
    } else if (lead >= 0xC2 && lead < 0xE0) {
        code = lead & 0x1F, extra = 1, least = 0x80;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        code = lead & 0x0F, extra = 2, least = 0x800;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        code = lead & 0x07, extra = 3, least = 0x10000;
    } else {
        ++at;
        return false;
    }
    bool good = at + extra < bytes.size();
    for (unsigned i = 1; good && i <= extra; ++i) {
        good = (byte(at + i) & 0xC0) == 0x80;
        code = (code << 6) | (byte(at + i) & 0x3Fu);
    }
    good = good && code >= least && code < 0x110000 && !(code >= 0xD800 && code < 0xE000);
    at += good ? extra + 1 : 1;
    return good;
}

} // namespace

Text from_utf8(std::string_view bytes) {
    Text out;
    out.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t plain = ascii_length(bytes.substr(at));
        out.append(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                   bytes.begin() + static_cast<std::ptrdiff_t>(at + plain));
        at += plain;
        if (at == bytes.size()) break;
        unsigned code = 0;
        if (!decode(bytes, at, code)) code = replacement;
        if (code < 0x10000) {
            out.push_back(static_cast<char16_t>(code));
        } else {
            out.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
        }
    }
    return out;
}

bool is_utf8(std::string_view bytes) {
    for (std::size_t at = ascii_length(bytes); at < bytes.size(); at += ascii_length(bytes.substr(at))) {
        unsigned code = 0;
        if (!decode(bytes, at, code)) return false;
    }
    return true;
}

namespace {

// Without an early exit: compilers vectorise that.
template <class View> bool all_ascii(View text) {
    typename View::value_type all = 0;
    for (const auto unit : text) all = static_cast<typename View::value_type>(all | unit);
    return (all & ~0x7F) == 0;
}

} // namespace

TWK_WIDE bool is_ascii(TextView text) {
    return all_ascii(text);
}

TWK_WIDE bool is_ascii(std::string_view bytes) {
    return all_ascii(bytes);
}

} // namespace twk

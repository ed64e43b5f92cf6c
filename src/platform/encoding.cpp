// SPDX-License-Identifier: MIT
#include "platform/encoding.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace twk {

namespace {

constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";

/// Windows-1252 from 0x80 on, where it differs from the first 256 code points; what it leaves open stays as
/// it is.
constexpr char16_t windows_upper[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                        0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char16_t from_windows(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? windows_upper[byte - 0x80] : byte;
}

/// Nothing when a character has no place in it.
std::optional<std::string> to_windows(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        const auto* const upper = std::find(std::begin(windows_upper), std::end(windows_upper), unit);
        if (upper != std::end(windows_upper))
            bytes += static_cast<char>(0x80 + (upper - std::begin(windows_upper)));
        else if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
            bytes += static_cast<char>(unit);
        else
            return std::nullopt;
    }
    return bytes;
}

} // namespace

std::string encode_text(TextView text, TextKind kind) {
    if (text.empty()) return {};
    if (kind != TextKind::marked && is_ascii(text)) {
        std::string plain(text.size(), '\0');
        std::transform(text.begin(), text.end(), plain.begin(),
                       [](char16_t unit) { return static_cast<char>(unit); });
        return plain;
    }
    if (kind == TextKind::windows)
        if (auto bytes = to_windows(text)) return std::move(*bytes);
    return (kind == TextKind::list ? std::string() : std::string(utf8_mark)) + to_utf8(text);
}

TextKind kind_of_bytes(std::string_view bytes, TextKind plain) {
    if (bytes.starts_with(utf8_mark)) return TextKind::marked;
    if (is_ascii(bytes)) return plain;
    return is_utf8(bytes) ? TextKind::list : TextKind::windows;
}

Text decode_text(std::string_view bytes) {
    if (bytes.starts_with(utf8_mark)) return from_utf8(bytes.substr(utf8_mark.size()));
    if (is_ascii(bytes)) return {bytes.begin(), bytes.end()};
    if (is_utf8(bytes)) return from_utf8(bytes);
    Text text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return from_windows(static_cast<unsigned char>(byte)); });
    return text;
}

bool reads_back(TextView text) {
    unsigned halves = 0;
    for (const char16_t unit : text) halves += (unit & 0xF800u) == 0xD800u ? 1u : 0u;
    if (halves == 0) return true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] < 0xD800 || text[i] >= 0xE000) continue;
        if (text[i] >= 0xDC00 || i + 1 == text.size() || text[i + 1] < 0xDC00 || text[i + 1] >= 0xE000)
            return false;
        ++i;
    }
    return true;
}

} // namespace twk

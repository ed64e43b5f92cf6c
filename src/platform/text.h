// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

/// Text as the whole program holds it: 16-bit units; lengths and positions count units, and positions start
/// at 1. The screens' routines are written in these operations; what each does at the edges is part of what
/// they do.
namespace twk {

using Text = std::u16string;
using TextView = std::u16string_view;

int Len(TextView text);

/// The first or last `count` units; all of the text when it is shorter. A negative count is fault 5.
Text Left(TextView text, int count);
Text Right(TextView text, int count);

/// From position `start` (1 or more, else fault 5) to the end, or `count` units (negative: fault 5).
Text Mid(TextView text, int start);
Text Mid(TextView text, int start, int count);

/// Position of the first `find` at or behind `start`, case-sensitive; 0 when there is none. An empty `find`
/// is found at `start`, except in an empty text.
int InStr(TextView text, TextView find, int start = 1);

/// The same counted from 0: the place of the first `find` at or behind `from`, `TextView::npos` when there is
/// none.
std::size_t position(TextView text, TextView find, std::size_t from = 0);

/// Replaces the first `count` occurrences from left to right; -1 means all, below that is fault 5. An empty
/// `find` leaves the text alone.
Text Replace(TextView text, TextView find, TextView with, int count = -1);
/// The same, in place and for all occurrences; returns whether one was found.
bool replace_all(Text& text, TextView find, TextView with);

/// Pieces between the separators, empty ones included; an empty text gives no piece at all.
std::vector<Text> Split(TextView text, TextView separator = u" ");
/// The same without copies: the pieces look into `text`, which must outlive them.
std::vector<TextView> split_views(TextView text, TextView separator = u" ");

/// Cuts blanks (and nothing else) from both ends.
Text Trim(TextView text);
/// The same for a text that the caller does not keep.
Text Trim(Text&& text);
TextView trim_view(TextView text);

Text LCase(TextView text);
Text UCase(TextView text);
char16_t lower_beyond_ascii(char16_t unit);
inline char16_t lower(char16_t unit) {
    if (unit >= 0x80) return lower_beyond_ascii(unit);
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

bool contains(TextView text, TextView find);
/// Equality, all units at once: the library compares one after the other.
inline bool same_units(TextView a, TextView b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}
/// Equality without regard to case.
bool same_text(TextView a, TextView b);

/// UTF-8 and back. Bytes that are no UTF-8, and halves of a pair, become U+FFFD.
std::string to_utf8(TextView text);
Text from_utf8(std::string_view bytes);
bool is_utf8(std::string_view bytes);
bool is_ascii(TextView text);
bool is_ascii(std::string_view bytes);

inline constexpr TextView vbCrLf = u"\r\n";
inline constexpr TextView vbCr = u"\r";
inline constexpr TextView vbLf = u"\n";

} // namespace twk

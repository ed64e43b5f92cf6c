// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

namespace twk {

/// To a 16-bit integer: rounds to the nearest, halves to even. Out of range is fault 6; a text that is no
/// number (an empty one, too) is fault 13. A text may have blanks around it, a sign, a decimal point or
/// comma, and an exponent.
std::int16_t CInt(double value);
std::int16_t CInt(TextView text);
/// The same to 32 bits.
std::int32_t CLng(double value);
std::int32_t CLng(TextView text);
double CDbl(TextView text);
float CSng(TextView text);
bool IsNumeric(TextView text);

/// The number that the text begins with, leading blanks skipped and blanks between digits ignored; 0 when it
/// begins with none. Knows the point as decimal mark only.
double Val(TextView text);

/// The largest whole number not above the value.
double Int(double value);

/// To a whole number, halves to even.
double Round(double value);

/// Number to text: the shortest decimal that reads back the same, point as mark, zero before the point.
Text to_text(int value);
Text to_text(std::int64_t value);
Text to_text(double value);
Text to_text(float value);

/// The patterns in use: "##.##" (up to two decimals, no zero before the point, the point kept behind a whole
/// number) and "###,0" (whole, thousands marked). Halves go up here, in decimal. Another pattern is fault 5.
Text Format(double value, TextView pattern);

} // namespace twk

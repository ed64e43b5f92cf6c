// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include "platform/faults.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace twk {

namespace {

std::string ascii(TextView text) {
    std::string out;
    for (const char16_t unit : text) out.push_back(unit < 0x80 ? static_cast<char>(unit) : '\x7F');
    return out;
}

std::optional<double> parsed(std::string_view digits) {
    double value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, value);
    if (at != end || error == std::errc::invalid_argument) return std::nullopt;
    if (error == std::errc::result_out_of_range) throw RuntimeFault(fault_overflow);
    return value;
}

std::optional<double> number_of(TextView text) {
    std::string digits = ascii(trim_view(text));
    const std::size_t comma = digits.find(',');
    if (comma != std::string::npos && digits.find('.') == std::string::npos) digits[comma] = '.';
    std::string_view rest = digits;
    if (!rest.empty() && rest.front() == '+') rest.remove_prefix(1);
    const std::size_t sign = !rest.empty() && rest.front() == '-' && rest.size() == digits.size() ? 1 : 0;
    // from_chars knows "inf" and "nan", which are words here
    if (rest.size() == sign || std::string_view("0123456789.").find(rest[sign]) == std::string::npos)
        return std::nullopt;
    return parsed(rest);
}

template <class Number, class Value> Text shortest(Value value) {
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, static_cast<Number>(value), std::chars_format::fixed);
    if (result.ec == std::errc()) return Text(buffer, result.ptr);
    const auto wide = std::to_chars(buffer, buffer + sizeof buffer, static_cast<Number>(value));
    return Text(buffer, wide.ptr);
}

/// Decimal digits of |value| rounded to `decimals` places, halves up as the decimal text shows them.
std::string rounded_digits(double value, int decimals) {
    char buffer[400];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::fixed);
    std::string digits(buffer, result.ptr);
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits.push_back('.');
    }
    const std::size_t keep = point + 1 + static_cast<std::size_t>(decimals);
    while (digits.size() <= keep) digits.push_back('0');
    const bool up = digits[keep] >= '5';
    digits.resize(keep);
    for (std::size_t i = keep; up && i-- > 0;) {
        if (digits[i] == '.') continue;
        if (digits[i] != '9') {
            ++digits[i];
            return digits;
        }
        digits[i] = '0';
        if (i == 0) digits.insert(0, 1, '1');
    }
    return digits;
}

} // namespace

double Round(double value) {
    return std::nearbyint(value);
}

double Int(double value) {
    return std::floor(value);
}

namespace {

template <class Integer> Integer to_integer(double value) {
    const double whole = Round(value);
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        throw RuntimeFault(fault_overflow);
    return static_cast<Integer>(whole);
}

} // namespace

std::int16_t CInt(double value) {
    return to_integer<std::int16_t>(value);
}
std::int16_t CInt(TextView text) {
    return CInt(CDbl(text));
}
std::int32_t CLng(double value) {
    return to_integer<std::int32_t>(value);
}
std::int32_t CLng(TextView text) {
    return CLng(CDbl(text));
}

double CDbl(TextView text) {
    const std::optional<double> value = number_of(text);
    if (!value) throw RuntimeFault(fault_type);
    return *value;
}

float CSng(TextView text) {
    return static_cast<float>(CDbl(text));
}

bool IsNumeric(TextView text) {
    try {
        return number_of(text).has_value();
    } catch (const RuntimeFault&) { // a number too large to hold
        return true;
    }
}

double Val(TextView text) {
    std::string digits;
    for (const char16_t unit : text)
        if (unit != u' ' && unit != u'\t' && unit != u'\n')
            digits.push_back(unit < 0x80 ? static_cast<char>(unit) : '\x7F');
    const bool plus = !digits.empty() && digits.front() == '+';
    const char* const begin = digits.data() + (plus ? 1 : 0);
    const char* const end = digits.data() + digits.size();
    const char* const first = begin != end && *begin == '-' && !plus ? begin + 1 : begin;
    if (first == end || std::string_view("0123456789.").find(*first) == std::string::npos) return 0;
    double value = 0;
    const auto result = std::from_chars(begin, end, value);
    if (result.ec == std::errc::result_out_of_range) throw RuntimeFault(fault_overflow);
    return result.ec == std::errc() ? value : 0;
}

Text to_text(std::int64_t value) {
    const std::string digits = std::to_string(value);
    return Text(digits.begin(), digits.end());
}

Text to_text(int value) {
    return to_text(static_cast<std::int64_t>(value));
}
Text to_text(double value) {
    return shortest<double>(value == 0 ? 0.0 : value);
}
Text to_text(float value) {
    return shortest<float>(value == 0 ? 0.0F : value);
}

Text Format(double value, TextView pattern) {
    if (pattern == u"##.##") {
        std::string digits = rounded_digits(value, 2);
        while (digits.back() == '0') digits.pop_back();
        if (digits.front() == '0') digits.erase(0, 1);
        if (value < 0 && digits != ".") digits.insert(0, 1, '-');
        return Text(digits.begin(), digits.end());
    }
    if (pattern == u"###,0") {
        std::string digits = rounded_digits(value, 0);
        digits.pop_back(); // the point
        for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, 1, ',');
        if (value < 0 && digits != "0") digits.insert(0, 1, '-');
        return Text(digits.begin(), digits.end());
    }
    throw RuntimeFault(fault_argument);
}

} // namespace twk

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/numbers.h"
#include "platform/text.h"

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <type_traits>

/// Statements for a store. A screen writes one down as a literal with places for its values, "{}". Values
/// stand in it as they are, texts between single quotes: an apostrophe would close these, and what follows it
/// go on as a statement of its own making. The literal is therefore looked at by the compiler, every value
/// when it enters, and the store takes nothing else.
namespace twk {

/// Name of a table or a column, for a statement that several of them share.
class StatementName {
  public:
    // cppcheck-suppress noExplicitConstructor
    template <std::size_t N> consteval StatementName(const char16_t (&name)[N]) : text_(name, N - 1) {
        for (const char16_t c : text_)
            if (c != u'_' && (c < u'0' || c > u'9') && (c < u'A' || c > u'Z') && (c < u'a' || c > u'z'))
                throw "no name";
    }
    constexpr TextView text() const { return text_; }

  private:
    TextView text_;
};

enum class StatementPart { text, number, name };

namespace detail {

constexpr bool begins_with_word(TextView literal, TextView word) {
    if (literal.size() <= word.size() || literal[word.size()] != u' ') return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if ((literal[i] | 0x20) != word[i]) return false;
    return true;
}

constexpr bool begins_as_statement(TextView literal) {
    return literal == u"content" || begins_with_word(literal, u"select") ||
           begins_with_word(literal, u"insert") || begins_with_word(literal, u"update") ||
           begins_with_word(literal, u"delete");
}

template <class Value> consteval StatementPart part_of() {
    if constexpr (std::same_as<Value, StatementName>) return StatementPart::name;
    if constexpr (std::integral<Value>) return StatementPart::number;
    return StatementPart::text;
}

template <std::integral Number> Text digits_or_text(Number value) {
    return to_text(value);
}
inline Text digits_or_text(TextView value) {
    return Text(value);
}
// cppcheck-suppress passedByValue
inline Text digits_or_text(StatementName value) {
    return Text(value.text());
}

/// The literal with the values in its places. Fault 3075 for a value that holds an apostrophe or a NUL.
Text filled(TextView literal, std::initializer_list<Text> values);

} // namespace detail

/// What keeps a literal from being one whole statement with such values, null when nothing does: it selects,
/// inserts, updates or deletes (or is "content", a table to add rows to), there is a place for each value, a
/// text fills its quotes from end to end, numbers and names stand outside quotes, and nothing follows.
constexpr const char* fault_in_statement(TextView literal, std::initializer_list<StatementPart> parts) {
    if (!detail::begins_as_statement(literal)) return "it begins with none of the words";
    const auto* part = parts.begin();
    bool quoted = false;
    for (std::size_t i = 0; i < literal.size(); ++i) {
        const TextView rest = literal.substr(i);
        if (rest.starts_with(u'\'')) {
            quoted = !quoted;
        } else if (rest.starts_with(u"{}")) {
            if (part == parts.end()) return "a place without a value";
            const bool whole = quoted && literal[i - 1] == u'\'' && rest.substr(2).starts_with(u'\'');
            if (*part == StatementPart::text ? !whole : quoted) return "a value in a place of another kind";
            ++part;
        } else if (!quoted &&
                   (rest.starts_with(u';') || rest.starts_with(u"--") || rest.starts_with(u"/*"))) {
            return "text that belongs to no statement";
        }
    }
    if (quoted) return "a quote is not closed";
    return part == parts.end() ? nullptr : "a value without a place";
}

/// A literal that has been found sound for values of these types.
template <class... Values> class StatementLiteral {
  public:
    template <std::size_t N>
    // cppcheck-suppress noExplicitConstructor
    consteval StatementLiteral(const char16_t (&literal)[N]) : text_(literal, N - 1) {
        if (const char* const why = fault_in_statement(text_, {detail::part_of<Values>()...})) throw why;
    }
    constexpr TextView text() const { return text_; }

  private:
    TextView text_;
};

/// One statement, as `Execute({u"delete from host where pid = {} and host= '{}' ", pid, host})`.
class Statement {
  public:
    /// Fault 3075, with the whole statement, for a text that holds an apostrophe or a NUL.
    template <class... Values>
    Statement(StatementLiteral<std::type_identity_t<Values>...> literal, const Values&... values)
        : text_(detail::filled(literal.text(), {detail::digits_or_text(values)...})) {}

    /// As it goes to the library.
    const Text& text() const { return text_; }

  private:
    Text text_;
};

/// Fault 3075, with the reason and the statement.
[[noreturn]] void malformed_statement(const Text& statement, TextView why);

} // namespace twk

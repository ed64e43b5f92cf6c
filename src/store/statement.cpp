// SPDX-License-Identifier: MIT
#include "store/statement.h"

#include "platform/faults.h"

#include <algorithm>

namespace twk {

namespace {

Text syntax_error(const Text& statement, TextView why) {
    return u"Syntax error in the statement: " + Text(why) + u"\n" + statement;
}

/// What an apostrophe has made of the statement.
TextView break_in(TextView statement) {
    for (std::size_t i = 0; i < statement.size(); ++i) {
        const TextView rest = statement.substr(i);
        if (rest.starts_with(u'\'')) {
            i = statement.find(u'\'', i + 1);
            if (i == TextView::npos) return u"a quote is not closed";
        } else if (rest.starts_with(u';') || rest.starts_with(u'\0') || rest.starts_with(u"--") ||
                   rest.starts_with(u"/*")) {
            return u"text that belongs to no statement";
        }
    }
    return u"an apostrophe in a value";
}

[[noreturn]] void refuse_apostrophe(const Text& statement) {
    throw RuntimeFault(fault_statement, u"An apostrophe (') cannot be stored here.\n" +
                                            syntax_error(statement, break_in(statement)));
}

/// The library would take a NUL for the end.
[[noreturn]] void refuse_nul(const Text& statement) {
    const std::size_t end = statement.find(u'\0'), quote = statement.rfind(u'\'', end);
    malformed_statement(statement, u"unrecognized token: \"" + statement.substr(quote, end - quote) + u"\"");
}

} // namespace

void malformed_statement(const Text& statement, TextView why) {
    throw RuntimeFault(fault_statement, syntax_error(statement, why));
}

Text detail::filled(TextView literal, std::initializer_list<Text> values) {
    Text text;
    for (const Text& value : values) {
        const std::size_t place = literal.find(u"{}");
        text.append(literal.substr(0, place)).append(value);
        literal.remove_prefix(place + 2);
    }
    text.append(literal);
    const auto any_has = [&](char16_t unit) {
        return std::any_of(values.begin(), values.end(),
                           [&](const Text& value) { return value.find(unit) != Text::npos; });
    };
    if (any_has(u'\'')) refuse_apostrophe(text);
    if (any_has(u'\0')) refuse_nul(text);
    return text;
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "store/statement_fence.h"

#include "platform/faults.h"

#include <algorithm>
#include <array>

namespace twk {

namespace {

/// All forms that hold more than one value in quotes, "?" standing for these, "#" for numbers; blanks count
/// only between words. An apostrophe inside a value makes at least one quoted piece more than the program
/// wrote, so that a statement with a single one has no apostrophe in its value, and one with several can only
/// be trusted when it is one of these: none of them begins as a shorter one does. That is also why the
/// doubled blank in the deletion from `synonyms` counts.
constexpr std::array<TextView, 9> forms_of_several_values{
    u"insert into Projects(name,site_name,site_url,title,category,description,designer_name,designer_url)"
    u"values(?,?,?,?,?,?,?,?)",
    u"update Projects set name=?,site_name=?,site_url=?,title=?,category=?,description=?,designer_name=?,"
    u"designer_url=?where pid=#",
    u"select Projects.pid as X1,keywords.keyid as X2,keywords.pid as X3 from Projects,keywords where name=?"
    u"and keyword=?and Projects.name=?",
    u"select*from keywords where  pid=?and keyword=?",
    u"update keywords set keyword=?where keyword=?and pid=#",
    u"update elements set element=?where catid=#and element=?",
    u"insert into synonyms(keyword,synonyms)values(?,?)",
    u"update synonyms set synonyms=?where keyword=?",
    u"delete from synonyms  where keyword=?and synonyms=?",
};

RuntimeFault statement_fault(const Text& statement, TextView why) {
    return {fault_statement, u"Syntax error in the statement: " + Text(why) + u"\n" + statement};
}

constexpr bool blank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

constexpr bool digit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

constexpr bool word_unit(char16_t c) {
    return digit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
}

struct Form {
    Text text;
    int values = 0;
};

/// Adds a unit; blanks next to anything but a word are dropped.
void put(Form& form, char16_t c, bool part_of_word) {
    if (!part_of_word)
        while (!form.text.empty() && form.text.back() == u' ') form.text.pop_back();
    form.text.push_back(c);
}

/// What the program itself writes has all its quotes in pairs: a statement that breaks at one has got it from
/// a value.
[[noreturn]] void apostrophe_in(const Text& statement, TextView why) {
    RuntimeFault fault = statement_fault(statement, why);
    fault.advice = u"An apostrophe (') cannot be stored here.";
    throw fault;
}

Form form_of(const Text& statement) {
    Form form;
    bool after_word = false;
    for (std::size_t i = 0; i < statement.size(); ++i) {
        const char16_t c = statement[i];
        const char16_t next = i + 1 < statement.size() ? statement[i + 1] : u'\0';
        if (c == u'\'') {
            i = statement.find(u'\'', i + 1);
            if (i == Text::npos) apostrophe_in(statement, u"a quote is not closed");
            put(form, u'?', false);
            ++form.values;
            after_word = false;
        } else if (blank(c)) {
            if (after_word) form.text.push_back(u' ');
        } else if (c == u';' || (c == u'-' && next == u'-') || (c == u'/' && next == u'*') || c == u'\0') {
            if (form.values > 0) apostrophe_in(statement, u"text that belongs to no statement");
            malformed_statement(statement, u"text that belongs to no statement");
        } else if (digit(c) && (i == 0 || !word_unit(statement[i - 1]))) {
            while (i + 1 < statement.size() && digit(statement[i + 1])) ++i;
            put(form, u'#', false);
            after_word = false;
        } else {
            after_word = word_unit(c);
            put(form, c, after_word);
        }
    }
    while (!form.text.empty() && form.text.back() == u' ') form.text.pop_back();
    return form;
}

} // namespace

void malformed_statement(const Text& statement, TextView why) {
    throw statement_fault(statement, why);
}

void fence_statement(const Text& statement, std::initializer_list<TextView> first_words) {
    const std::size_t begin = std::min(statement.find_first_not_of(u" \t\r\n"), statement.size());
    const std::size_t end = std::min(statement.find_first_of(u" \t\r\n", begin), statement.size());
    const TextView first = TextView(statement).substr(begin, end - begin);
    if (std::none_of(first_words.begin(), first_words.end(),
                     [&](TextView word) { return same_text(word, first); }))
        malformed_statement(statement, u"it does not begin as one that is known here");
    const Form form = form_of(statement);
    if (form.values > 1 && std::find(forms_of_several_values.begin(), forms_of_several_values.end(),
                                     form.text) == forms_of_several_values.end())
        apostrophe_in(statement, u"an apostrophe in a value");
}

} // namespace twk

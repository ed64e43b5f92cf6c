// SPDX-License-Identifier: MIT
#include "platform/page_cutter.h"

#include <algorithm>

namespace twk::plain_pages {

namespace {

struct Name {
    TextView name;
    Kind kind;
    int number; ///< tells elements of one kind apart
};

constexpr Name names[] = {
    {u"a", Kind::marks, 0},         {u"b", Kind::marks, 0},          {u"i", Kind::marks, 0},
    {u"u", Kind::marks, 0},         {u"font", Kind::marks, 0},       {u"span", Kind::marks, 0},
    {u"em", Kind::marks, 0},        {u"strong", Kind::marks, 0},     {u"big", Kind::marks, 0},
    {u"small", Kind::marks, 0},     {u"img", Kind::empty, 0},        {u"embed", Kind::empty, 0},
    {u"input", Kind::empty, 1},     {u"param", Kind::empty, 2},      {u"br", Kind::new_line, 0},
    {u"hr", Kind::rule, 0},         {u"p", Kind::paragraph, 0},      {u"div", Kind::block, 1},
    {u"center", Kind::block, 2},    {u"blockquote", Kind::block, 3}, {u"ul", Kind::block, 4},
    {u"ol", Kind::block, 5},        {u"h1", Kind::heading, 1},       {u"h2", Kind::heading, 2},
    {u"h3", Kind::heading, 3},      {u"h4", Kind::heading, 4},       {u"h5", Kind::heading, 5},
    {u"h6", Kind::heading, 6},      {u"li", Kind::item, 0},          {u"object", Kind::object, 0},
    {u"script", Kind::script, 0},   {u"table", Kind::table, 0},      {u"tbody", Kind::body_part, 0},
    {u"thead", Kind::body_part, 1}, {u"tfoot", Kind::body_part, 2},  {u"tr", Kind::row, 0},
    {u"td", Kind::cell, 0},         {u"th", Kind::cell, 1},          {u"html", Kind::page, 0},
    {u"head", Kind::page, 1},       {u"body", Kind::page, 2},        {u"meta", Kind::meta, 0},
    {u"title", Kind::title, 0},
};

bool is_letter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
bool is_letter_or_digit(char16_t c) {
    return is_letter(c) || (c >= u'0' && c <= u'9');
}

char16_t lower_ascii(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

/// Names are compared without regard to the case of plain letters alone.
bool is_name(TextView found, TextView name) {
    return std::equal(found.begin(), found.end(), name.begin(), name.end(),
                      [](char16_t a, char16_t b) { return lower_ascii(a) == b; });
}

} // namespace

std::size_t Cutter::next_bracket() const {
    // Mostly the next tag is close: no use in looking at whole blocks.
    constexpr std::size_t close = 24;
    const std::size_t near = html_.substr(at_, close).find(u'<');
    if (near != TextView::npos) return at_ + near;
    return std::min(position(html_, u"<", at_ + close), html_.size());
}

TextView Cutter::text() {
    const std::size_t from = at_;
    while (at_ < html_.size()) {
        at_ = next_bracket();
        if (at_ + 1 < html_.size() && (is_letter(html_[at_ + 1]) || html_[at_ + 1] == u'/' ||
                                       html_[at_ + 1] == u'!' || html_[at_ + 1] == u'?'))
            break;
        if (at_ < html_.size()) ++at_;
    }
    const TextView text = html_.substr(from, at_ - from);
    // A reference to a character begins with "&" and a letter or "#".
    for (std::size_t i = 0; ampersands_ && (i = position(text, u"&", i)) != TextView::npos; ++i)
        if (i + 1 == text.size() || !is_blank(text[i + 1])) throw NotPlain();
    return text;
}

std::optional<Tag> Cutter::tag() {
    ++at_; // the "<"
    if (unit() == u'!') {
        skip_comment();
        return std::nullopt;
    }
    Tag tag;
    if (unit() == u'/') {
        tag.end = true;
        ++at_;
    }
    if (!is_letter(unit())) throw NotPlain();
    tag.element = element();
    skip_attributes();
    return tag;
}

void Cutter::skip_to_end_of(TextView name, bool script) {
    const std::size_t from = at_;
    for (;; ++at_) {
        at_ = position(html_, u"</", at_);
        if (at_ == TextView::npos) throw NotPlain();
        const TextView found = html_.substr(at_ + 2, name.size());
        const char16_t behind = unit(name.size() + 2);
        if (is_name(found, name) && (is_blank(behind) || behind == u'>' || behind == u'/')) break;
    }
    if (script && html_.substr(from, at_ - from).find(u"<!--") != TextView::npos) throw NotPlain();
    at_ += name.size() + 2;
    skip_attributes();
}

void Cutter::skip_comment() {
    if (html_.substr(at_, 3) != u"!--") throw NotPlain();
    at_ += 3;
    const std::size_t end = position(html_, u"-->", at_);
    if (end == TextView::npos || unit() == u'>' || end == at_) throw NotPlain();
    const TextView comment = html_.substr(at_, end - at_);
    // "--!>" ends a comment, too; a dash before the end makes it the parser's business.
    if (comment.starts_with(u"->") || comment.ends_with(u"-") || comment.find(u"--!") != TextView::npos)
        throw NotPlain();
    at_ = end + 3;
}

Element Cutter::element() {
    const std::size_t from = at_;
    while (!is_blank(unit()) && unit() != u'/' && unit() != u'>' && at_ < html_.size()) ++at_;
    const TextView name = html_.substr(from, at_ - from);
    const char16_t first = lower_ascii(name.front());
    for (const Name& known : names)
        if (known.name.front() == first && is_name(name, known.name)) return {known.kind, known.number};
    // What is no name of HTML is an inline element like any other.
    if (!std::all_of(name.begin(), name.end(), is_letter_or_digit)) return {Kind::marks, 0};
    throw NotPlain();
}

void Cutter::skip_blanks() {
    while (is_blank(unit())) ++at_;
}

void Cutter::skip_attributes() {
    for (;;) {
        while (is_blank(unit()) || unit() == u'/') ++at_;
        if (at_end()) throw NotPlain();
        if (unit() == u'>') break;
        ++at_; // a name may begin with "="
        while (!at_end() && !is_blank(unit()) && unit() != u'/' && unit() != u'>' && unit() != u'=') ++at_;
        skip_blanks();
        if (unit() != u'=') continue;
        ++at_;
        skip_blanks();
        if (const char16_t quote = unit(); quote == u'"' || quote == u'\'') {
            at_ = html_.find(quote, at_ + 1);
            if (at_ == TextView::npos) throw NotPlain();
            ++at_;
        } else {
            while (!at_end() && !is_blank(unit()) && unit() != u'>') ++at_;
        }
    }
    ++at_;
}

} // namespace twk::plain_pages

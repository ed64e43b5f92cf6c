// SPDX-License-Identifier: MIT
#include "platform/page_cutter.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace twk::plain_pages {

namespace {

bool is_letter(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}
bool is_letter_or_digit(char16_t c) {
    return is_letter(c) || (c >= u'0' && c <= u'9');
}

constexpr char16_t lower_ascii(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
}

/// Names are compared without regard to the case of plain letters alone.
bool is_name(TextView found, TextView name) {
    return std::equal(found.begin(), found.end(), name.begin(), name.end(),
                      [](char16_t a, char16_t b) { return lower_ascii(a) == b; });
}

/// A name of letters and digits as one number, so that names are compared at once; the case does not count.
class NameNumber {
  public:
    constexpr NameNumber() = default;
    constexpr explicit NameNumber(TextView name) {
        for (const char16_t unit : name) add(unit);
    }
    constexpr void add(char16_t unit) {
        number_ = (number_ << bits) | (lower_ascii(unit) - (unit <= u'9' ? u'0' - 1 : u'a' - 11));
        ++units_;
    }
    constexpr bool operator==(const NameNumber&) const = default;
    constexpr bool fits() const { return units_ * bits <= 64; }

  private:
    static constexpr int bits = 6; ///< for 10 digits and 26 letters
    std::uint64_t number_ = 0;
    int units_ = 0;
};

struct Name {
    constexpr Name(TextView name, Kind kind, int number)
        : first(name.front()), name(name), element{kind, number} {}
    char16_t first;
    NameNumber name;
    Element element;
};

/// By their first letters.
constexpr Name names[] = {
    {u"a", Kind::marks, 0},          {u"b", Kind::marks, 0},         {u"big", Kind::marks, 0},
    {u"blockquote", Kind::block, 3}, {u"body", Kind::page, 2},       {u"br", Kind::new_line, 0},
    {u"center", Kind::block, 2},     {u"div", Kind::block, 1},       {u"em", Kind::marks, 0},
    {u"embed", Kind::empty, 0},      {u"font", Kind::marks, 0},      {u"h1", Kind::heading, 1},
    {u"h2", Kind::heading, 2},       {u"h3", Kind::heading, 3},      {u"h4", Kind::heading, 4},
    {u"h5", Kind::heading, 5},       {u"h6", Kind::heading, 6},      {u"head", Kind::page, 1},
    {u"hr", Kind::rule, 0},          {u"html", Kind::page, 0},       {u"i", Kind::marks, 0},
    {u"img", Kind::empty, 0},        {u"input", Kind::empty, 1},     {u"li", Kind::item, 0},
    {u"meta", Kind::meta, 0},        {u"object", Kind::object, 0},   {u"ol", Kind::block, 5},
    {u"p", Kind::paragraph, 0},      {u"param", Kind::empty, 2},     {u"script", Kind::script, 0},
    {u"small", Kind::marks, 0},      {u"span", Kind::marks, 0},      {u"strong", Kind::marks, 0},
    {u"table", Kind::table, 0},      {u"tbody", Kind::body_part, 0}, {u"td", Kind::cell, 0},
    {u"tfoot", Kind::body_part, 2},  {u"th", Kind::cell, 1},         {u"thead", Kind::body_part, 1},
    {u"title", Kind::title, 0},      {u"tr", Kind::row, 0},          {u"u", Kind::marks, 0},
    {u"ul", Kind::block, 4},
};

/// Where the names begin that begin with each letter, and where those of "z" end.
using Beginnings = std::array<std::uint8_t, 27>;
constexpr Beginnings beginnings() {
    Beginnings begins{};
    for (std::size_t letter = 0; letter < begins.size(); ++letter)
        for (const Name& name : names)
            if (name.first < u'a' + letter) ++begins[letter];
    return begins;
}
constexpr Beginnings by_letter = beginnings();

} // namespace

std::size_t Cutter::next_bracket() const {
    return std::min(position(html_, u"<", at_), html_.size());
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
    NameNumber name;
    bool strange = false;
    for (; at_ < html_.size() && !is_blank(html_[at_]) && html_[at_] != u'/' && html_[at_] != u'>'; ++at_) {
        strange = strange || !is_letter_or_digit(html_[at_]);
        name.add(html_[at_]);
    }
    // What is no name of HTML is an inline element like any other.
    if (strange) return {Kind::marks, 0};
    const auto letter = static_cast<std::size_t>(lower_ascii(html_[from]) - u'a');
    for (std::size_t known = by_letter[letter]; name.fits() && known < by_letter[letter + 1]; ++known)
        if (names[known].name == name) return names[known].element;
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
            at_ = position(html_, TextView(&quote, 1), at_ + 1);
            if (at_ == TextView::npos) throw NotPlain();
            ++at_;
        } else {
            while (!at_end() && !is_blank(unit()) && unit() != u'>') ++at_;
        }
    }
    ++at_;
}

} // namespace twk::plain_pages

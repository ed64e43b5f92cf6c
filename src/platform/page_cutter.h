// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <optional>

/// Pages cut into text and tags, as far as the pages of this program go.
namespace twk::plain_pages {

/// What is known of an element.
enum class Kind {
    other,     ///< not known here
    marks,     ///< inline, with an end tag
    empty,     ///< inline, without content
    rule,      ///< hr
    new_line,  ///< br
    paragraph, ///< p
    block,     ///< div, center, lists ...
    heading,   ///< h1 to h6
    item,      ///< li
    object,
    script,
    table,
    body_part, ///< tbody, thead, tfoot
    row,
    cell,
    page, ///< html, head, body
    meta,
    title,
};

inline constexpr int number_div = 1, number_ul = 4, number_ol = 5;

struct Element {
    Kind kind = Kind::other;
    int number = 0;
    bool operator==(const Element&) const = default;
};

struct Tag {
    Element element;
    bool end = false;
};

/// The page holds what the pages of this program do not hold, or not in this place.
struct NotPlain {};

inline bool is_blank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

/// Cuts a page into text and tags; comments fall away. Whatever is not certain throws `NotPlain`.
class Cutter {
  public:
    /// `ampersands`: the page holds one.
    Cutter(TextView html, bool ampersands) : html_(html), ampersands_(ampersands) {}

    bool at_end() const { return at_ >= html_.size(); }
    /// The text up to the next "<" that begins a tag or comment.
    TextView text();
    /// The tag at the place; nothing for a comment.
    std::optional<Tag> tag();
    /// Passes over text that ends only with the end tag of its element, and over that tag.
    void skip_to_end_of(TextView name, bool script);

  private:
    char16_t unit(std::size_t ahead = 0) const {
        return at_ + ahead < html_.size() ? html_[at_ + ahead] : u'\0';
    }
    /// Place of the next "<", the page's end when there is none.
    std::size_t next_bracket() const;
    void skip_comment();
    Element element();
    void skip_blanks();
    /// Up to the end of the tag, quoted values as one.
    void skip_attributes();

    TextView html_;
    bool ampersands_;
    std::size_t at_ = 0;
};

} // namespace twk::plain_pages

// SPDX-License-Identifier: MIT
#include "platform/plain_pages.h"

#include "platform/eight_units.h"
#include "platform/page_cutter.h"
#include "platform/wide.h"

#include <algorithm>
#include <vector>

namespace twk {

namespace {

constexpr std::size_t long_run = 9;

/// Whether a long run holds no white space but single blanks.
bool single_blanks(TextView text) {
    constexpr std::size_t eight = 8;
    const auto other_blanks = [&text](std::size_t at) {
        const EightUnits units = eight_at(text.data() + at);
        return (units == eight_of(u'\t')) | (units == eight_of(u'\n')) | (units == eight_of(u'\r')) |
               (units == eight_of(u'\f'));
    };
    const auto found = [&](std::size_t at) {
        const EightUnits before = eight_at(text.data() + at - 1), units = eight_at(text.data() + at);
        return other_blanks(at) | ((before == eight_of(u' ')) & (units == eight_of(u' ')));
    };
    auto other = other_blanks(0) | found(text.size() - eight);
    for (std::size_t at = 1; at + eight <= text.size(); at += eight) other |= found(at);
    return !FoundUnits(other).any();
}

} // namespace

// A long run of words with single blanks is taken as it is.
void VisibleLines::words(TextView text) {
    if (text.size() >= long_run && single_blanks(text)) {
        const bool before = text.front() == u' ', behind = text.back() == u' ';
        if ((blank_ || before) && !out_.empty() && out_.back() != u'\n') out_.push_back(u' ');
        out_.append(text.substr(before ? 1 : 0, text.size() - (before ? 1 : 0) - (behind ? 1 : 0)));
        blank_ = behind;
        return;
    }
    using plain_pages::is_blank;
    for (std::size_t at = 0; at < text.size();) {
        if (is_blank(text[at])) {
            blank_ = true;
            ++at;
            continue;
        }
        std::size_t end = at + 1;
        while (end < text.size() && !is_blank(text[end])) ++end;
        if (blank_ && !out_.empty() && out_.back() != u'\n') out_.push_back(u' ');
        blank_ = false;
        out_.append(text, at, end - at);
        at = end;
    }
}

void VisibleLines::line_end() {
    blank_ = false;
    if (!out_.empty() && out_.back() != u'\n') out_.append(vbCrLf);
}

namespace {

using namespace plain_pages;

/// What the units of a page are.
struct PageUnits {
    bool ascii, controls, ampersands;
};

TWK_WIDE PageUnits units_of(TextView html) {
    unsigned short all = 0, control = 0, ampersand = 0;
    for (const char16_t c : html) {
        const bool no_blank = (c != u'\t') & (c != u'\n') & (c != u'\r') & (c != u'\f');
        all = static_cast<unsigned short>(all | c);
        control = static_cast<unsigned short>(control | ((c < 0x20) & no_blank) | (c == 0x7F));
        ampersand = static_cast<unsigned short>(ampersand | (c == u'&'));
    }
    return {all < 0x80, control != 0, ampersand != 0};
}

/// Units that a parser takes as they are: no controls, no half pairs, no code points that are no characters.
bool is_plain(TextView html, const PageUnits& units) {
    if (units.controls || units.ascii) return !units.controls;
    return std::none_of(html.begin(), html.end(), [](char16_t c) {
        return (c >= 0x80 && c < 0xA0) || (c >= 0xD800 && c < 0xE000) || (c >= 0xFDD0 && c < 0xFDF0) ||
               c == 0xFEFF || c >= 0xFFFD;
    });
}

/// Follows the rules by which a parser builds the tree, as far as they touch the elements that end lines and
/// cells. Inline elements are not followed: where they would matter the page is none for this walk.
class Walk {
  public:
    Walk(TextView html, bool ampersands) : cutter_(html, ampersands), lines_(html.size()) {}

    Text whole() {
        read_head();
        while (!cutter_.at_end()) {
            take_text(cutter_.text());
            if (cutter_.at_end()) break;
            if (const std::optional<Tag> tag = cutter_.tag()) take(*tag);
        }
        while (!open_.empty()) pop();
        return lines_.take();
    }

  private:
    enum class Mode { body, table, body_part, row, cell };

    // The head

    static bool only_blanks(TextView text) { return std::all_of(text.begin(), text.end(), is_blank); }

    /// The next tag, with nothing but blanks and comments before it.
    Tag bare_tag() {
        for (;;) {
            if (!only_blanks(cutter_.text()) || cutter_.at_end()) throw NotPlain();
            if (const std::optional<Tag> tag = cutter_.tag()) return *tag;
        }
    }

    void read_head() {
        for (int number = 0; number < 2; ++number) { // html, then head
            const Tag tag = bare_tag();
            if (tag.end || tag.element != Element{Kind::page, number}) throw NotPlain();
        }
        for (;;) {
            const Tag tag = bare_tag();
            if (tag.element == Element{Kind::page, 1} && tag.end) break;
            if (tag.end) throw NotPlain();
            if (tag.element.kind == Kind::title)
                cutter_.skip_to_end_of(u"title", false);
            else if (tag.element.kind != Kind::meta)
                throw NotPlain();
        }
        const Tag tag = bare_tag();
        if (tag.end || tag.element != Element{Kind::page, 2}) throw NotPlain();
    }

    // The open elements that count

    void push(Element element) {
        if (ends_a_line(element)) lines_.line_end();
        open_.push_back(element);
        inside_ = Inside::nothing;
    }

    void pop() {
        const Element element = open_.back();
        open_.pop_back();
        if (ends_a_line(element)) lines_.line_end();
        if (element.kind == Kind::cell) lines_.cell_end();
        inside_ = Inside::uncertain;
    }

    static bool ends_a_line(Element element) {
        return element.kind != Kind::object && element.kind != Kind::body_part && element.kind != Kind::cell;
    }

    Kind current() const { return open_.empty() ? Kind::other : open_.back().kind; }

    /// Whether an element is open and no table cell, table or object has been opened since.
    template <class Wanted> bool in_scope(Wanted wanted, bool lists_too = false) const {
        for (auto at = open_.rbegin(); at != open_.rend(); ++at) {
            if (wanted(*at)) return true;
            if (at->kind == Kind::table || at->kind == Kind::cell || at->kind == Kind::object) return false;
            if (lists_too && at->kind == Kind::block && (at->number == number_ul || at->number == number_ol))
                return false;
        }
        return false;
    }

    template <class Wanted> bool in_table_scope(Wanted wanted) const {
        for (auto at = open_.rbegin(); at != open_.rend(); ++at) {
            if (wanted(*at)) return true;
            if (at->kind == Kind::table) return false;
        }
        return false;
    }

    template <class Wanted> void pop_through(Wanted wanted) {
        for (;;) {
            const bool last = wanted(open_.back());
            pop();
            if (last) return;
        }
    }

    static auto is(Kind kind) {
        return [kind](Element element) { return element.kind == kind; };
    }
    static auto is(Element wanted) {
        return [wanted](Element element) { return element == wanted; };
    }

    void close_paragraph() {
        if (in_scope(is(Kind::paragraph))) pop_through(is(Kind::paragraph));
    }

    // Text and tags

    void take_text(TextView text) {
        if (text.empty()) return;
        if (mode_ != Mode::body && mode_ != Mode::cell && !only_blanks(text))
            throw NotPlain(); // goes before the table
        lines_.words(text);
        if (inside_ == Inside::nothing) inside_ = Inside::uncertain; // an element may have been opened again
    }

    void take(const Tag& tag) {
        switch (mode_) {
        case Mode::body: in_body(tag); break;
        case Mode::table: in_table(tag); break;
        case Mode::body_part: in_body_part(tag); break;
        case Mode::row: in_row(tag); break;
        case Mode::cell: in_cell(tag); break;
        }
    }

    void in_body(const Tag& tag) {
        if (tag.end)
            end_in_body(tag.element);
        else
            start_in_body(tag.element);
    }

    void start_in_body(Element element) {
        switch (element.kind) {
        case Kind::marks: inside_ = Inside::inline_element; break;
        case Kind::empty:
            if (inside_ == Inside::nothing) inside_ = Inside::uncertain;
            break;
        case Kind::new_line:
            lines_.line_end();
            if (inside_ == Inside::nothing) inside_ = Inside::uncertain;
            break;
        case Kind::rule:
            close_paragraph();
            lines_.line_end();
            break;
        case Kind::paragraph:
        case Kind::block:
            close_paragraph();
            push(element);
            break;
        case Kind::heading: start_heading(element); break;
        case Kind::item: start_item(element); break;
        case Kind::object: push(element); break;
        case Kind::script: cutter_.skip_to_end_of(u"script", true); break;
        case Kind::table: // a page without a document type does not end its paragraph here
            push(element);
            mode_ = Mode::table;
            break;
        case Kind::body_part:
        case Kind::row:
        case Kind::cell: break; // outside a table they are nothing
        default: throw NotPlain();
        }
    }

    void start_heading(Element element) {
        close_paragraph();
        if (current() == Kind::heading) {
            if (inside_ == Inside::uncertain) throw NotPlain();
            if (inside_ == Inside::nothing) pop();
        }
        push(element);
    }

    void start_item(Element element) {
        for (std::size_t i = open_.size(); i-- > 0;) {
            const Element each = open_[i];
            if (each.kind == Kind::item) {
                pop_through(is(Kind::item));
                break;
            }
            const bool passed = each.kind == Kind::paragraph || each == Element{Kind::block, number_div};
            if (!passed) break;
        }
        close_paragraph();
        push(element);
    }

    void end_in_body(Element element) {
        switch (element.kind) {
        case Kind::marks: inside_ = Inside::uncertain; break;
        case Kind::empty: break;
        case Kind::new_line: lines_.line_end(); break; // as its start tag
        case Kind::paragraph:
            if (in_scope(is(Kind::paragraph)))
                close_paragraph();
            else
                lines_.line_end(); // an empty one
            break;
        case Kind::block:
        case Kind::object:
            if (in_scope(is(element))) pop_through(is(element));
            break;
        case Kind::heading:
            if (in_scope(is(Kind::heading))) pop_through(is(Kind::heading));
            break;
        case Kind::item:
            if (in_scope(is(Kind::item), true)) pop_through(is(Kind::item));
            break;
        case Kind::rule:
        case Kind::table:
        case Kind::body_part:
        case Kind::row:
        case Kind::cell: break; // nothing of them is open
        case Kind::page:
            if (element.number == 1) throw NotPlain();
            break; // what follows belongs to the body all the same
        default: throw NotPlain();
        }
    }

    // Tables. What a table holds outside its cells goes before it: such a page is none for this walk.

    void clear_back_to(std::initializer_list<Kind> kinds) {
        while (!open_.empty() && std::find(kinds.begin(), kinds.end(), current()) == kinds.end()) pop();
    }

    void in_table(const Tag& tag) {
        switch (tag.element.kind) {
        case Kind::body_part:
        case Kind::row:
        case Kind::cell:
            if (tag.end) return;
            clear_back_to({Kind::table});
            if (tag.element.kind == Kind::body_part) {
                push(tag.element);
                mode_ = Mode::body_part;
                return;
            }
            push({Kind::body_part, 0});
            mode_ = Mode::body_part;
            return in_body_part(tag);
        case Kind::table:
            if (!tag.end) throw NotPlain();
            pop_through(is(Kind::table));
            return reset_mode();
        case Kind::script:
            if (tag.end) throw NotPlain();
            return cutter_.skip_to_end_of(u"script", true);
        case Kind::page:
            if (tag.end && tag.element.number != 1) return;
            throw NotPlain();
        default: throw NotPlain();
        }
    }

    void in_body_part(const Tag& tag) {
        const Kind kind = tag.element.kind;
        if (!tag.end && (kind == Kind::row || kind == Kind::cell)) {
            clear_back_to({Kind::body_part});
            push({Kind::row, 0});
            mode_ = Mode::row;
            if (kind == Kind::cell) in_row(tag);
            return;
        }
        if (tag.end && (kind == Kind::row || kind == Kind::cell)) return;
        if (tag.end && kind == Kind::body_part && !in_table_scope(is(tag.element))) return;
        if (kind == Kind::body_part || (kind == Kind::table && tag.end)) {
            clear_back_to({Kind::body_part});
            pop();
            mode_ = Mode::table;
            if (kind == Kind::body_part && tag.end) return;
        }
        in_table(tag);
    }

    void in_row(const Tag& tag) {
        const Kind kind = tag.element.kind;
        if (!tag.end && kind == Kind::cell) {
            clear_back_to({Kind::row});
            push(tag.element);
            mode_ = Mode::cell;
            return;
        }
        if (tag.end && kind == Kind::cell) return;
        if (tag.end && kind == Kind::body_part && !in_table_scope(is(tag.element))) return;
        if (kind == Kind::row || kind == Kind::body_part || (kind == Kind::table && tag.end)) {
            clear_back_to({Kind::row});
            pop();
            mode_ = Mode::body_part;
            if (kind == Kind::row && tag.end) return;
            return in_body_part(tag);
        }
        in_table(tag);
    }

    void in_cell(const Tag& tag) {
        const Kind kind = tag.element.kind;
        if (tag.end && kind == Kind::cell) {
            if (!in_table_scope(is(tag.element))) return;
            pop_through(is(tag.element));
            mode_ = Mode::row;
            return;
        }
        const bool of_table = kind == Kind::table || kind == Kind::body_part || kind == Kind::row;
        if (tag.end && of_table) {
            if (!in_table_scope(is(tag.element))) return;
        } else if (tag.end && kind == Kind::page) {
            if (tag.element.number == 1) throw NotPlain();
            return;
        } else if (tag.end || (kind != Kind::cell && kind != Kind::body_part && kind != Kind::row)) {
            return in_body(tag);
        }
        pop_through(is(Kind::cell));
        mode_ = Mode::row;
        in_row(tag);
    }

    void reset_mode() {
        mode_ = Mode::body;
        for (auto at = open_.rbegin(); at != open_.rend(); ++at) {
            switch (at->kind) {
            case Kind::cell: mode_ = Mode::cell; return;
            case Kind::row: mode_ = Mode::row; return;
            case Kind::body_part: mode_ = Mode::body_part; return;
            case Kind::table: mode_ = Mode::table; return;
            default: break;
            }
        }
    }

    Cutter cutter_;
    VisibleLines lines_;
    std::vector<Element> open_; ///< below html and body
    Mode mode_ = Mode::body;
    /// What is open within the innermost of them: whether a heading is the current element hangs on it.
    enum class Inside { nothing, inline_element, uncertain } inside_ = Inside::nothing;
};

} // namespace

std::optional<Text> plain_page_text(TextView html) {
    const PageUnits units = units_of(html);
    if (!is_plain(html, units)) return std::nullopt;
    try {
        return Walk(html, units.ampersands).whole();
    } catch (const NotPlain&) {
        return std::nullopt;
    }
}

} // namespace twk

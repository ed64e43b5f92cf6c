// SPDX-License-Identifier: MIT
#include "reports/page_story.h"

#include "platform/numbers.h"

#include <algorithm>

namespace twk {

namespace {

Text counted(int n, TextView one, TextView many) {
    return to_text(n) + u" " + Text(n == 1 ? one : many);
}

Text box_name(const SiteReport& report, std::uint8_t box) {
    if (box == PageRecord::no_box) return u"none";
    const Text number = to_text(box + 1);
    return box < report.facts.boxes.size() ? number + u" (\"" + report.facts.boxes[box] + u"\")" : number;
}

Text joined(const std::vector<std::uint8_t>& boxes) {
    Text all;
    for (const std::uint8_t box : boxes)
        all += (all.empty() ? u"" : u", ") + (box == PageRecord::no_box ? Text(u"none") : to_text(box + 1));
    return all;
}

/// The box of a first-level page, and why it was taken.
Text first_level_box(const SiteReport& report, const PageRecord& made) {
    if (made.boxes.empty()) return u"It has no content box.";
    const Text box = box_name(report, made.boxes.front());
    switch (made.choice) {
    case BoxChoice::tied:
        return made.boxes.front() == PageRecord::no_box
                   ? Text(u"Its content is a tied box of another project.")
                   : u"Its content is box " + box + u", which is tied to the keyword.";
    case BoxChoice::densest:
        return u"No box is tied to the keyword: its content is box " + box +
               u", in which the keyword is dense.";
    default:
        return u"No box is tied to the keyword, and none holds it: its content is box " + box +
               u", drawn by chance.";
    }
}

void tell_boxes(const SiteReport& report, const PageRow& row, std::vector<Text>& lines) {
    const PageRecord& made = row.made;
    if (row.kind == 1)
        lines.push_back(first_level_box(report, made));
    else if (made.boxes.size() == 1)
        lines.push_back(u"Its content is box " + box_name(report, made.boxes.front()) +
                        u", drawn by chance.");
    else if (!made.boxes.empty())
        lines.push_back(u"Its content is " + counted(static_cast<int>(made.boxes.size()), u"box", u"boxes") +
                        u", drawn by chance, in this order: " + joined(made.boxes) + u".");
    if (row.kind == 3 && !made.boxes.empty())
        lines.push_back(u"The last of these is not drawn: it is what an earlier page left in that place.");
    if (!made.added.empty())
        lines.push_back(u"The text had fewer than " + to_text(report.facts.min_words) +
                        u" words (1.a) and got some of box " + joined(made.added) + u" (3.b).");
    if (made.read_more)
        lines.push_back(u"The text had more than " + to_text(report.facts.max_words) +
                        u" words (1.b): it was cut, and a link leads to its read-more page (3.c).");
}

/// The setting that a density is drawn from or asked with.
Text density_setting(const SiteReport& report, const PageRow& row, std::size_t which) {
    if (row.kind == 1) return u"as Step 5 asks (3.a)";
    if (row.kind == 2) return u"as always on second-level pages";
    const bool is_long = row.made.is_long();
    const auto& bounds = is_long ? report.facts.long_bounds : report.facts.short_bounds;
    const TextView keys[] = {u"1.d", u"1.f", u"1.e", u"1.g"};
    return u"drawn below " + to_text(bounds[which]) + u" (" + Text(keys[which + (is_long ? 0 : 2)]) + u")";
}

void tell_fittings(const SiteReport& report, const PageRow& row, std::vector<Text>& lines) {
    if (row.kind == 3 && row.made.units > 0)
        lines.push_back(u"Together they have " + counted(row.made.units, u"character", u"characters") + u".");
    for (std::size_t which = 0; which < row.made.fittings.size(); ++which) {
        const Fitting& fitting = row.made.fittings[which];
        const Text drawn = to_text(fitting.density) + u" %, " + density_setting(report, row, which);
        if (fitting.done)
            lines.push_back(u"The text was brought to a density for \"" +
                            fitted_keyword(report, row, fitting) + u"\": " + drawn +
                            (fitting.emptied ? u". That left nothing of it." : u"."));
        else if (row.kind == 3 && !row.made.index)
            lines.push_back(Text(which == 0 ? u"The first" : u"The second") + u" density is " + drawn +
                            u", and chance did not use it.");
    }
    if (row.made.sentences > 0)
        lines.push_back(counted(row.made.sentences, u"sentence was", u"sentences were") +
                        u" put into it, repeated ones among them.");
    if (row.made.replaced > 0)
        lines.push_back(counted(row.made.replaced, u"surplus keyword was", u"surplus keywords were") +
                        u" replaced (5.m).");
    if (row.made.synonyms) lines.push_back(u"Words at its beginning were exchanged for synonyms (2.f).");
    if (row.made.empty_text && !row.made.index) lines.push_back(u"The page has no text.");
}

void tell_decorations(const PageRow& row, std::vector<Text>& lines) {
    Text has;
    if (row.made.movie) has += u"an animation";
    if (row.made.picture) has += (has.empty() ? u"" : u" and ") + Text(u"a picture");
    if (!has.empty()) lines.push_back(u"It has " + has + u".");
    if (row.redirects == 1) lines.push_back(u"It leaves for the target site by JavaScript.");
}

} // namespace

std::vector<Text> page_story(const SiteReport& report, const PageRow& row) {
    if (row.made.index) return {u"It is the index page of its directory (2.g)."};
    std::vector<Text> lines;
    const Text own = own_keyword(report, row);
    lines.push_back(kind_name(row) + u" page" + (own.empty() ? Text() : u" about \"" + own + u"\"") +
                    u", template \"" + layout_name(row.made.layout) + u"\".");
    tell_boxes(report, row, lines);
    tell_fittings(report, row, lines);
    tell_decorations(row, lines);
    return lines;
}

Text short_story(const PageRow& row) {
    const PageRecord& made = row.made;
    if (made.index) return u"index";
    Text s;
    const auto add = [&s](const Text& part) { s += (s.empty() ? u"" : u"; ") + part; };
    if (!made.boxes.empty())
        add((made.choice == BoxChoice::tied ? u"tied box " : u"box ") + joined(made.boxes));
    if (!made.added.empty()) add(u"grown by " + joined(made.added));
    Text densities;
    for (const Fitting& fitting : made.fittings)
        if (fitting.done) densities += (densities.empty() ? u"" : u" + ") + to_text(fitting.density) + u" %";
    if (!densities.empty()) add(densities);
    if (made.sentences > 0) add(counted(made.sentences, u"sentence", u"sentences"));
    if (made.replaced > 0) add(to_text(made.replaced) + u" replaced");
    if (made.synonyms) add(u"synonyms");
    if (made.read_more) add(u"read more");
    if (made.movie) add(u"movie");
    if (made.picture) add(u"picture");
    if (made.empty_text) add(u"no text");
    return s;
}

} // namespace twk

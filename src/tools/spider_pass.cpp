// SPDX-License-Identifier: MIT
// One pass of the spider, from the links of the results page to the list of words. The pass is one event that
// lets others run while it waits: a click on "Cancell" meanwhile ends it, or starts a second pass within it.

#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "tools/form20.h"

#include <algorithm>

namespace twk {

namespace {

constexpr TextView running_caption = u"Cancell";
constexpr TextView head_end = u"</head>";

Text folded(TextView text) {
    return LCase(trim_view(text));
}

/// The page up to the end of its head: nothing behind it is looked at, and a page may be huge.
void keep_head(Text& page) {
    const auto found = std::search(page.begin(), page.end(), head_end.begin(), head_end.end(),
                                   [](char16_t a, char16_t b) { return lower(a) == b; });
    if (found == page.end()) return;
    page.erase(found + static_cast<std::ptrdiff_t>(head_end.size()), page.end());
    page.shrink_to_fit();
}

} // namespace

bool Form20::running() const {
    return Command7.caption() == running_caption;
}

/// The newest entry stands at the top.
void Form20::log(const Text& entry) {
    Text1.text.put_in_front(entry + u"\r\n\r\n");
}

void Form20::Command7_Click() {
    if (running() && MsgBox(u"Cancell Spider?", Buttons::yes_no, u"Spider") == Answer::yes) {
        Command7.caption = u"Spider";
        log(ahora() + u" - Process Cancelled");
        desktop().cancel(Inet1);
        return; // the pass under way sees the caption and ends by itself
    }
    // After a No a second pass starts inside the first, with a fresh table and log.
    palabras.clear();
    n_palabras = 0;
    max_filas = 1000;
    Text1.text = ahora() + u" - Starting Spider";
    if (!IsNumeric(combo1.text()) || combo1.text() == u"0") return;
    const int limit = CLng(combo1.text());
    if (limit < 0) throw RuntimeFault(fault_subscript);
    enlaces.clear();
    time_outs = 0;
    Command7.caption = Text(running_caption);
    Frame5.visible = true;
    take_links(limit);
    fetch_links();
    list_words();
    Command7.caption = u"Spider";
    Frame5.visible = false;
}

/// Takes links up to the limit and one more.
void Form20::take_links(int limit) {
    for (const Link& link : desktop().links(wb1)) {
        if (!running()) return;
        if (static_cast<int>(enlaces.size()) <= limit && wanted(link.address))
            enlaces.push_back(Trim(link.address));
    }
}

bool Form20::wanted(const Text& address) const {
    if (Check1.value())
        for (const Text& word : List2.entries())
            if (!trim_view(word).empty() && InStr(address, word) > 0) return false;
    if (Check2.value())
        // Leaves out a "related:" link of an address that is taken, and later pages of a bare host.
        for (const Text& taken : enlaces) {
            if (taken.empty()) break;
            if (InStr(address, Trim(Replace(taken, u"http://", u""))) > 0) return false;
        }
    return true;
}

void Form20::fetch_links() {
    const auto empty = [](const Text& entry) { return entry.empty(); };
    const auto total = static_cast<int>(enlaces.size()) -
                       static_cast<int>(std::count_if(enlaces.begin(), enlaces.end(), empty));
    for (int i = 0; i <= total && running(); ++i) {
        // The round behind the last entry finds nothing. A pass inside this one changes the table.
        if (i >= static_cast<int>(enlaces.size())) continue;
        const Text address = enlaces[static_cast<std::size_t>(i)];
        if (trim_view(address).empty() || trim_view(address) == u"http://") continue;
        fetch_page(address);
        if (!running()) return;
        ProgressBar2.set_value(100.0 / total * i);
    }
}

/// Fetches one page and takes its words. Only a time-out is told apart from success: after any other fault
/// the page is empty.
void Form20::fetch_page(const Text& address) {
    Text page;
    int error = 0;
    try {
        Inet1.protocol = http_protocol;
        page = desktop().fetch(Inet1, address);
    } catch (const RuntimeFault& fault) {
        error = fault.number();
    }
    if (!running()) return;
    while (Inet1.still_executing && running()) DoEvents();
    if (error == fault_timed_out) {
        log(ahora() + u"Timed out: " + address); // nothing between date and text
        ++time_outs;
        return;
    }
    log(Trim(address) + u" downloaded");
    harvest(std::move(page), address);
}

void Form20::harvest(Text page, const Text& address) {
    keep_head(page);
    page = preparar_texto(page);
    quitar_dobles(page);
    const Text lower_case = LCase(page);
    // The first "keywords" of the head counts, in a tag for keywords or not.
    const int p = InStr(lower_case, u"keywords");
    if (p <= 0 || p >= InStr(lower_case, head_end)) {
        log(ahora() + u" - No keywords found in " + address);
        return;
    }
    log(ahora() + u" - Searching for keywords in " + address);
    Text list = Right(page, Len(page) - p - 8); // the character behind "keywords" is dropped, too
    list = Trim(Left(list, InStr(list, u">"))); // ">" stays on the last word
    if (list.starts_with(u"content")) {
        // Inside a keyword "content" is lost with the rest.
        for (const TextView part : {u"content", u"\"", u"="}) replace_all(list, part, u"");
        list = Trim(list);
    }
    for (const TextView piece : split_views(list, u",")) {
        if (n_palabras >= max_filas) return;
        count_word(piece);
    }
}

void Form20::count_word(TextView piece) {
    const Text key = folded(piece);
    const auto& keywords = screen<Form3>().List1.entries();
    if (!key.empty() && std::any_of(keywords.begin(), keywords.end(),
                                    [&](const Text& keyword) { return same_text(trim_view(keyword), key); }))
        return; // the project has it already
    for (Word& row : palabras)
        if (row.key == key) {
            row.times = CInt(row.times + 1.0);
            return;
        }
    Text word = preparar_texto(Trim(piece));
    Text stored_key = folded(word);
    palabras.push_back({std::move(word), 1, std::move(stored_key)});
    ++n_palabras;
}

/// Lists the words; those met more than once arrive selected. What earlier passes listed stays.
void Form20::list_words() {
    if (!running()) return;
    log(ahora() + u" - Dumping Keywords ");
    for (const Word& row : palabras) {
        if (trim_view(row.word).empty()) continue;
        List1.add_item(row.word);
        if (row.times > 1) List1.set_selected(List1.list_count() - 1, true);
    }
    log(ahora() + u" - Process Complete ");
    ProgressBar2.set_value(100);
    Frame5.visible = false;
}

} // namespace twk

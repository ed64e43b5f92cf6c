// SPDX-License-Identifier: MIT
// Step 2: many lines put in at once, and a file dropped on the screen.

#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/paths.h"

#include <algorithm>

namespace twk {

namespace {

/// So many words of one reason are told by name.
constexpr std::size_t most_named = 8;

struct Refusal {
    Text reason;
    std::vector<Text> words;
};

void add_refusal(std::vector<Refusal>& all, const Text& reason, const Text& word) {
    auto same =
        std::find_if(all.begin(), all.end(), [&](const Refusal& each) { return each.reason == reason; });
    if (same == all.end()) same = all.insert(all.end(), Refusal{reason, {}});
    same->words.push_back(word);
}

Text told(const Refusal& refusal) {
    Text line = refusal.reason + u": ";
    for (std::size_t i = 0; i < std::min(refusal.words.size(), most_named); ++i)
        line += (i > 0 ? u", \"" : u"\"") + refusal.words[i] + u"\"";
    if (refusal.words.size() > most_named)
        line += u" and " + to_text(static_cast<int>(refusal.words.size() - most_named)) + u" more";
    return line;
}

} // namespace

void Form3::add_keywords(const Text& lines) {
    add_lines(lines, Text1, &Form3::Command2_Click, u"keyword");
}

void Form3::add_subkeywords(const Text& lines) {
    add_lines(lines, Text2, &Form3::Command3_Click, u"subkeyword");
}

void Form3::add_lines(const Text& lines, TextBox& box, void (Form3::*add)(), TextView what) {
    std::vector<Refusal> refusals;
    int added = 0;
    int left_out = 0;
    {
        HeldMessages held;
        const BulkWrite many(base_datos_);
        for (const Text& line : Split(Replace(lines, vbCr, vbLf), vbLf)) {
            const Text word = Trim(Replace(line, u"\t", u" "));
            if (word.empty()) continue;
            box.text = word;
            (this->*add)();
            const std::vector<Text> said = held.take();
            said.empty() ? ++added : ++left_out;
            if (!said.empty()) add_refusal(refusals, said.front(), word);
        }
    }
    box.text = u"";
    const Text summary = to_text(added) + u" " + Text(what) + (added == 1 ? u" added" : u"s added");
    say(summary);
    if (refusals.empty()) return;
    Text message = summary + u", " + to_text(left_out) + u" left out.\n";
    for (const Refusal& each : refusals) message += u"\n" + told(each);
    MsgBox(message);
}

void Form3::take_file(const Text& path) {
    op_imp_Click(LCase(path).ends_with(u".exp") ? 0 : 1);
    cmd_import_Click();
    Dir2.set_path(folder_of(TextView(path)));
    Dir2_Change();
    File2.list_index = File2.place_of(Text(last_name(TextView(path))));
}

} // namespace twk

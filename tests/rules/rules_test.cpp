// SPDX-License-Identifier: MIT
// Runs rules.txt: what the routines on texts and numbers make of their arguments.
//   ROUTINE ARGUMENT|ARGUMENT => RESULT & ARGUMENT|ARGUMENT => RESULT ...
// A text that a routine changes in place stands behind its result. "fault 5" is the fault that it ends in.
// The marks of the texts are those of the scenario files.

#include "engine/counting/keyword_counts.h"
#include "engine/counting/words.h"
#include "engine/text_toolkit.h"
#include "platform/html.h"
#include "platform/numbers.h"
#include "scenarios/scenario_text.h"
#include "support/faults.h"

#include <fstream>
#include <map>

namespace twk::test {
namespace {

using Arguments = std::vector<Text>;

Text joined(const std::vector<Text>& all) {
    Text text = to_text(static_cast<int>(all.size()));
    for (const Text& each : all) text += u"|" + each;
    return text;
}

Text yes(bool holds) {
    return holds ? u"yes" : u"no";
}

int whole(const Arguments& a, std::size_t at, int fallback = 0) {
    return at < a.size() ? CLng(a[at]) : fallback;
}

/// Result and what the routine has made of the text.
Text with(Text result, const Text& changed) {
    return std::move(result) + u"|" + changed;
}

/// A routine that changes its text, too.
std::function<Text(Arguments&)> in_place(Text (*routine)(Text&)) {
    return [routine](Arguments& a) {
        Text result = routine(a[0]);
        return with(std::move(result), a[0]);
    };
}

const std::map<std::string, std::function<Text(Arguments&)>> routines = {
    {"Left", [](Arguments& a) { return Left(a[0], whole(a, 1)); }},
    {"Right", [](Arguments& a) { return Right(a[0], whole(a, 1)); }},
    {"Mid",
     [](Arguments& a) {
         return a.size() == 2 ? Mid(a[0], whole(a, 1)) : Mid(a[0], whole(a, 1), whole(a, 2));
     }},
    {"InStr", [](Arguments& a) { return to_text(InStr(a[0], a[1], whole(a, 2, 1))); }},
    {"Replace", [](Arguments& a) { return Replace(a[0], a[1], a[2], whole(a, 3, -1)); }},
    {"replace_all",
     [](Arguments& a) {
         const bool any = replace_all(a[0], a[1], a[2]);
         return with(yes(any), a[0]);
     }},
    {"Split", [](Arguments& a) { return joined(a.size() == 1 ? Split(a[0]) : Split(a[0], a[1])); }},
    {"LCase", [](Arguments& a) { return LCase(a[0]); }},
    {"UCase", [](Arguments& a) { return UCase(a[0]); }},
    {"same_text", [](Arguments& a) { return yes(same_text(a[0], a[1])); }},
    {"Trim", [](Arguments& a) { return Trim(a[0]); }},
    {"CInt", [](Arguments& a) { return to_text(CInt(TextView(a[0]))); }},
    {"CInt_of_number", [](Arguments& a) { return to_text(CInt(CDbl(a[0]))); }},
    {"CLng_of_number", [](Arguments& a) { return to_text(CLng(CDbl(a[0]))); }},
    {"CDbl", [](Arguments& a) { return to_text(CDbl(a[0])); }},
    {"IsNumeric", [](Arguments& a) { return yes(IsNumeric(a[0])); }},
    {"Val", [](Arguments& a) { return to_text(Val(a[0])); }},
    {"Format", [](Arguments& a) { return Format(CDbl(a[0]), a[1]); }},
    {"visible_text", [](Arguments& a) { return visible_text(a[0]); }},
    {"page_links",
     [](Arguments& a) { return joined(a.size() == 1 ? page_links(a[0]) : page_links(a[0], a[1])); }},
    {"contar_palabras", [](Arguments& a) { return to_text(contar_palabras(a[0])); }},
    {"contar_kw", [](Arguments& a) { return to_text(contar_kw(a[0], a[1])); }},
    {"densidad",
     [](Arguments& a) {
         const double share = densidad(a[0], a[1]);
         return with(to_text(share), a[1]);
     }},
    {"densidad2",
     [](Arguments& a) {
         const auto share = densidad2(CInt(a[0]), a[1], a[2]);
         return with(to_text(share), a[1]);
     }},
    {"cortar_palabras", [](Arguments& a) { return cortar_palabras(a[0], CInt(a[1])); }},
    {"limpiar_html", in_place([](Text& t) { return limpiar_html(t); })},
    {"preparar_texto", in_place([](Text& t) { return preparar_texto(t); })},
    {"letra",
     [](Arguments& a) {
         int n = whole(a, 0);
         Text letter = letra(n);
         return with(letter, to_text(n));
     }},
    {"validar_palabra", in_place([](Text& t) { return validar_palabra(t); })},
    {"replace_last",
     [](Arguments& a) {
         replace_last(a[0], a[1], a[2], whole(a, 3));
         return a[0];
     }},
};

TEST(Rules, hold) {
    TempApp app;
    std::ifstream in(RULES);
    int number = 0, held = 0;
    for (std::string line; std::getline(in, line); ++number) {
        if (line.empty() || line.starts_with('#')) continue;
        const auto [name, rest] = cut(line, " ");
        for (const std::string& rule : parts(rest, " & ")) {
            SCOPED_TRACE("rules.txt:" + std::to_string(number + 1) + ": " + name + " " + rule.substr(0, 200));
            const auto [given, told] = cut(rule + " ", " => ");
            const auto [result, message] = cut(told.substr(0, told.size() - (told.empty() ? 0 : 1)), " -> ");
            if (!message.empty()) app.desktop.expect_exactly(from_utf8(message), Answer::ok);
            Arguments arguments;
            for (const std::string& each : parts(given, "|")) arguments.push_back(from_utf8(unescaped(each)));
            Text got;
            const int fault = fault_of([&] { got = routines.at(name)(arguments); });
            EXPECT_EQ(fault == 0 ? to_utf8(got) : "fault " + std::to_string(fault), unescaped(result));
            EXPECT_TRUE(app.desktop.all_said());
            ++held;
        }
    }
    EXPECT_GT(held, 150);
}

} // namespace
} // namespace twk::test

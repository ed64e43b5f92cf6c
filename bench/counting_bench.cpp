// SPDX-License-Identifier: MIT
// Counting and density over page text. Bytes are units of the text: one a character of plain ASCII.

#include "engine/density.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "settings/form6.h"

#include <benchmark/benchmark.h>

namespace {

using namespace twk;

/// Page text of about `size` units: sentences of common words with a tag every dozen words, the keywords
/// every fifty. With `raw` the tags touch their neighbours, as in text that no count has passed yet.
Text page_text(std::int64_t size, bool raw) {
    static const Text words[] = {u"the",   u"garden", u"with",  u"seeds,", u"from",  u"old",    u"houses",
                                 u"which", u"stand",  u"where", u"summer", u"light", u"falls.", u"and"};
    Text text;
    for (int i = 0; static_cast<std::int64_t>(text.size()) < size; ++i) {
        text += words[static_cast<std::size_t>(i * 7 % 14)];
        text += u' ';
        if (i % 12 == 11) text += raw ? u"<p>" : u"<p> ";
        if (i % 50 == 49) text += u"roses ";
        if (i % 50 == 24) text += u"red roses ";
    }
    return text;
}

void tell(benchmark::State& state) {
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void contar_palabras_of_clean_text(benchmark::State& state) {
    Text text = page_text(state.range(0), false);
    for (auto _ : state) benchmark::DoNotOptimize(contar_palabras(text));
    tell(state);
}

void contar_palabras_of_raw_text(benchmark::State& state) {
    const Text text = page_text(state.range(0), true);
    for (auto _ : state) {
        Text copy = text;
        benchmark::DoNotOptimize(contar_palabras(copy));
    }
    tell(state);
}

void contar_kw_of_a_word(benchmark::State& state) {
    Text text = page_text(state.range(0), false);
    Text keyword = u"roses";
    for (auto _ : state) benchmark::DoNotOptimize(contar_kw(text, keyword));
    tell(state);
}

void contar_kw_of_a_phrase(benchmark::State& state) {
    Text text = page_text(state.range(0), false);
    Text keyword = u"red roses";
    for (auto _ : state) benchmark::DoNotOptimize(contar_kw(text, keyword));
    tell(state);
}

void contar_kw_of_raw_text(benchmark::State& state) {
    const Text text = page_text(state.range(0), true);
    Text keyword = u"red roses";
    for (auto _ : state) {
        Text copy = text;
        benchmark::DoNotOptimize(contar_kw(copy, keyword));
    }
    tell(state);
}

void densidad_of_a_phrase(benchmark::State& state) {
    const Text text = page_text(state.range(0), false);
    Text keyword = u"red roses";
    for (auto _ : state) benchmark::DoNotOptimize(densidad(text, keyword));
    tell(state);
}

void densidad_of_raw_text(benchmark::State& state) {
    const Text text = page_text(state.range(0), true);
    Text keyword = u"red roses";
    for (auto _ : state) benchmark::DoNotOptimize(densidad(text, keyword));
    tell(state);
}

/// Without anchor words: the linking sentences would need the screens of a project.
void Ajustar_KW_at_one_per_cent(benchmark::State& state) {
    Form6 form;
    const Text text = page_text(state.range(0), false);
    const Text keyword = u"red roses";
    for (auto _ : state) {
        Text copy = text;
        benchmark::DoNotOptimize(Ajustar_KW(form.choices, copy, keyword, 1));
    }
    tell(state);
}

constexpr std::int64_t least = 25'000;
constexpr std::int64_t most = 100'000;

BENCHMARK(contar_palabras_of_clean_text)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(contar_palabras_of_raw_text)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(contar_kw_of_a_word)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(contar_kw_of_a_phrase)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(contar_kw_of_raw_text)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(densidad_of_a_phrase)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(densidad_of_raw_text)->RangeMultiplier(2)->Range(least, most)->Complexity();
BENCHMARK(Ajustar_KW_at_one_per_cent)->RangeMultiplier(2)->Range(least, most)->Complexity();

} // namespace

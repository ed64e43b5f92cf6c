// SPDX-License-Identifier: MIT
#include "engine/boxes.h"

#include "engine/page_choices.h"
#include "engine/page_record.h"
#include "engine/project.h"
#include "engine/text_toolkit.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "store/statements.h"

namespace twk {

std::uint8_t Boxes::number_of(std::int32_t cid) const {
    for (int i = 0; i <= ultima_caja; ++i)
        if (at(cids, i) == cid) return static_cast<std::uint8_t>(i);
    return PageRecord::no_box;
}

const Text& Boxes::box(int index) const {
    return at(contenidos, index);
}

const Text& Boxes::split(int index) {
    std::optional<Text>& kept = at(split_, index);
    if (!kept) kept = split_sentences(box(index));
    return *kept;
}

const SpacedText& Boxes::spaced(int index) {
    std::unique_ptr<const SpacedText>& kept = at(spaced_, index);
    if (!kept) kept = std::make_unique<SpacedText>(split(index));
    return *kept;
}

Text split_sentences(TextView text) {
    return Replace(text, u". ", u". <p>");
}

namespace {

/// `densidad` of every keyword in a text that stands as a count of words leaves it, with so many words.
std::vector<std::int16_t> densities(Project& project, const Text& t, std::int16_t words) {
    std::vector<std::int16_t> all;
    const KeywordSet& set = project.keyword_set();
    Text counted = t;
    KeywordCounts counts(set, counted);
    // A count would take these away, and make other words of the text.
    const bool together =
        !trim_view(t).empty() && !contains(t, keyword_joint) && !contains(t, highlight_opening);
    for (int k = 0; k < project.n_keywords; ++k) {
        Text& keyword = project.tabla_kw.cell(k);
        all.push_back(together && set.known(k) ? CInt(por_ciento(counts.contar(k, keyword), words))
                                               : CInt(densidad(t, keyword)));
    }
    return all;
}

} // namespace

void measure_boxes(Boxes& boxes, Project& project, const PageChoices& choices) {
    int i = 0;
    for (const auto row : project.base_datos.OpenRecordset(statements::boxes_of(choices.project_key()))) {
        if (i >= max_boxes)
            throw told_fault(fault_subscript, u"The project has more than " + to_text(max_boxes) +
                                                  u" content boxes; so many or fewer in Step 3 would do.");
        Text& kept = at(boxes.contenidos, i);
        Text raw = row.Fields(u"content").text();
        at(boxes.cids, i) = static_cast<std::int32_t>(row.Fields(u"cid").number());
        Text t = limpiar_html(raw);
        const std::int16_t words = contar_palabras(t); // spaces the tags of what is kept
        at(boxes.palabras_caja, i) = words;
        at(boxes.densidades, i) = densities(project, t, words);
        kept = std::move(t);
        ++i;
    }
    boxes.ultima_caja = CInt(i - 1);
}

} // namespace twk

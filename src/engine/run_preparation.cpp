// SPDX-License-Identifier: MIT
#include "engine/run_preparation.h"

#include "engine/counting/keyword_counts.h"
#include "engine/counting/words.h"
#include "engine/run.h"
#include "engine/text_toolkit.h"
#include "inputs/form3.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "shell/module1.h"

namespace twk {

namespace {

/// Elements of one keyword into its row, from column 1; column 99 is the last that is filled.
int read_elements(Run& run, int row, std::int16_t keyid) {
    int column = 1;
    for (Recordset elements =
             run.base_datos.OpenRecordset(u"select * from elements where catid = " + to_text(keyid));
         !elements.eof() && column < 100; elements.MoveNext())
        run.tabla_kw.cell(row, column++) = elements.Fields(u"element").text();
    return column - 1;
}

} // namespace

const Text& KeywordTable::at(int row, int column) const {
    static const Text empty;
    if (row < 0 || row >= rows() || column < 0 || column >= max_columns) throw RuntimeFault(fault_subscript);
    const std::vector<Text>& cells = rows_[static_cast<std::size_t>(row)];
    return column < static_cast<int>(cells.size()) ? cells[static_cast<std::size_t>(column)] : empty;
}

Text& KeywordTable::cell(int row, int column) {
    if (row < 0 || row >= rows() || column < 0 || column >= max_columns) throw RuntimeFault(fault_subscript);
    std::vector<Text>& cells = rows_[static_cast<std::size_t>(row)];
    if (column >= static_cast<int>(cells.size())) cells.resize(static_cast<std::size_t>(column) + 1);
    return cells[static_cast<std::size_t>(column)];
}

std::vector<Text> Run::column_0() const {
    std::vector<Text> all;
    all.reserve(static_cast<std::size_t>(n_keywords));
    for (int k = 0; k < n_keywords; ++k) all.push_back(tabla_kw.at(k));
    return all;
}

const KeywordSet& keyword_set(Run& run) {
    if (!run.keywords) run.keywords.emplace(run.column_0());
    return *run.keywords;
}

void read_project(Run& run) {
    for (Recordset row = run.base_datos.OpenRecordset(u"select * from Projects where Projects.pid = " +
                                                      to_text(run.form.pid_form));
         !row.eof(); row.MoveNext()) {
        run.proyecto = {row.Fields(u"Name").text(),          row.Fields(u"site_name").text(),
                        row.Fields(u"site_url").text(),      row.Fields(u"Title").text(),
                        row.Fields(u"category").text(),      row.Fields(u"Description").text(),
                        row.Fields(u"designer_name").text(), row.Fields(u"designer_url").text()};
        module1().url_principal = run.proyecto.site_url;
    }
}

void read_keywords(Run& run) {
    // One row more than the list has entries: it stays empty and ends the walks over the table.
    run.tabla_kw.resize(screen<Form3>().List1.list_count() + 2);
    int row = 0;
    for (Recordset keywords = run.base_datos.OpenRecordset(u"select * from keywords where pid = " +
                                                           to_text(run.form.pid_form));
         !keywords.eof(); keywords.MoveNext(), ++row) {
        run.tabla_kw.cell(row) = keywords.Fields(u"keyword").text();
        const int read = read_elements(run, row, CInt(keywords.Fields(u"keyid").number()));
        run.total_terminos += read + 1;
        run.total_sub += read;
    }
    run.n_keywords = CInt(static_cast<double>(row));
}

void collect_terms(Run& run) {
    run.terminos.assign(static_cast<std::size_t>(run.total_terminos) + 1, Text());
    std::size_t p = 0;
    const auto add = [&](Text term) {
        if (p < run.terminos.size()) run.terminos[p++] = std::move(term);
    };
    for (int k = 0; k <= run.n_keywords; ++k) {
        if (run.tabla_kw.at(k, 1).empty())
            run.tabla_kw.cell(k, 1) = run.proyecto.site_name;
        else
            for (int c = 1; c < max_columns && !run.tabla_kw.at(k, c).empty(); ++c)
                add(run.tabla_kw.at(k, c));
        const Text& keyword = run.tabla_kw.at(k);
        if (!keyword.empty()) add(keyword + u" "); // the blank stays with it
    }
    run.n_terminos = CInt(static_cast<double>(p));
}

namespace {

/// `densidad` of every keyword in a text that stands as a count of words leaves it, with so many words.
std::vector<std::int16_t> densities(Run& run, const Text& t, std::int16_t words) {
    std::vector<std::int16_t> all;
    all.reserve(static_cast<std::size_t>(run.n_keywords));
    const KeywordSet& set = keyword_set(run);
    Text counted = t;
    KeywordCounts counts(set, counted);
    // A count would take these away, and make other words of the text.
    const bool together =
        !trim_view(t).empty() && !contains(t, keyword_joint) && !contains(t, highlight_opening);
    for (int k = 0; k < run.n_keywords; ++k) {
        Text& keyword = run.tabla_kw.cell(k);
        all.push_back(together && set.known(k) ? CInt(por_ciento(counts.contar(k, keyword), words))
                                               : CInt(densidad(t, keyword)));
    }
    return all;
}

} // namespace

void measure_boxes(Run& run) {
    int i = 0;
    for (Recordset boxes =
             run.base_datos.OpenRecordset(u"select * from content where pid = " + to_text(run.form.pid_form));
         !boxes.eof(); boxes.MoveNext(), ++i) {
        if (i >= max_boxes) throw RuntimeFault(fault_subscript);
        const auto box = static_cast<std::size_t>(i);
        Text raw = boxes.Fields(u"content").text();
        Text t = limpiar_html(raw);
        run.palabras_caja[box] = contar_palabras(t); // spaces the tags of what is kept
        run.densidades[box] = densities(run, t, run.palabras_caja[box]);
        run.contenidos[box] = std::move(t);
    }
    run.ultima_caja = static_cast<std::int16_t>(i - 1);
}

bool list_pictures(Run& run) {
    Form6& form = run.form;
    const Text folder = beside_program(u"Images");
    form.List1.clear();
    form.File1.set_path(folder);
    for (const char16_t* pattern : {u"*.gif", u"*.jpg"}) {
        form.File1.set_pattern(pattern);
        for (const Text& name : form.File1.entries())
            form.List1.add_item(folder + Text(path_separator) + name);
    }
    if (form.List1.list_count() >= 3) return true;
    MsgBox(folder + u" Must have more than 3 images (*.gif or *.jpg)");
    return false;
}

} // namespace twk

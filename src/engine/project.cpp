// SPDX-License-Identifier: MIT
#include "engine/project.h"

#include "engine/page_choices.h"
#include "platform/module1.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "store/statements.h"

namespace twk {

const Text& KeywordTable::at(int row, int column) const {
    static const Text empty;
    const std::vector<Text>& cells = twk::at(rows_, row);
    if (column < 0 || column >= max_columns) throw RuntimeFault(fault_subscript);
    return std::cmp_less(column, cells.size()) ? cells[static_cast<std::size_t>(column)] : empty;
}

Text& KeywordTable::cell(int row, int column) {
    std::vector<Text>& cells = twk::at(rows_, row);
    if (column < 0 || column >= max_columns) throw RuntimeFault(fault_subscript);
    if (std::cmp_greater_equal(column, cells.size())) cells.resize(static_cast<std::size_t>(column) + 1);
    return cells[static_cast<std::size_t>(column)];
}

const std::vector<Text>& Project::keywords() {
    keywords_.resize(static_cast<std::size_t>(n_keywords));
    for (int k = 0; k < n_keywords; ++k) {
        Text& known = at(keywords_, k);
        if (same_units(known, tabla_kw.at(k))) continue;
        known = tabla_kw.at(k);
        marks.forget();
    }
    return keywords_;
}

const KeywordSet& Project::keyword_set() {
    if (!keyword_set_) keyword_set_.emplace(keywords());
    return *keyword_set_;
}

Text Project::joined_keywords() const {
    Text list;
    int r = 0;
    do list += u" , " + tabla_kw.at(r++);
    while (!trim_view(tabla_kw.at(r)).empty());
    return list;
}

void read_project(Project& project, const PageChoices& choices) {
    for (const auto row : project.base_datos.OpenRecordset(
             {u"select * from Projects where Projects.pid = {}", choices.project_key()})) {
        project.proyecto = {row.Fields(u"Name").text(),          row.Fields(u"site_name").text(),
                            row.Fields(u"site_url").text(),      row.Fields(u"Title").text(),
                            row.Fields(u"category").text(),      row.Fields(u"Description").text(),
                            row.Fields(u"designer_name").text(), row.Fields(u"designer_url").text()};
        module1().url_principal = project.proyecto.site_url;
    }
}

namespace {

/// Elements of one keyword into its row, from column 1; column 99 is the last that is filled.
int read_elements(Project& project, int row, std::int16_t keyid) {
    int column = 1;
    for (const auto element : project.base_datos.OpenRecordset(statements::subkeywords_of(keyid))) {
        if (column == max_columns - 1) break;
        project.tabla_kw.cell(row, column++) = element.Fields(u"element").text();
    }
    return column - 1;
}

} // namespace

void read_keywords(Project& project, const PageChoices& choices) {
    // One row more than the list has entries: it stays empty and ends the walks over the table.
    project.tabla_kw.resize(size_of(choices.listed_keywords()) + 2);
    int row = 0;
    for (const auto keyword :
         project.base_datos.OpenRecordset(statements::keywords_of(choices.project_key()))) {
        if (row >= project.tabla_kw.rows())
            throw told_fault(fault_subscript,
                             u"The project has more keywords than Step 2 shows; opening it anew "
                             u"from the project list would do.");
        project.tabla_kw.cell(row) = keyword.Fields(u"keyword").text();
        const int read = read_elements(project, row, CInt(keyword.Fields(u"keyid").number()));
        project.total_terminos += read + 1;
        project.total_sub += read;
        ++row;
    }
    project.n_keywords = CInt(row);
}

void collect_terms(Project& project) {
    KeywordTable& table = project.tabla_kw;
    project.terminos.assign(static_cast<std::size_t>(project.total_terminos) + 1, Text());
    int p = 0;
    const auto add = [&](Text term) {
        if (p < size_of(project.terminos)) at(project.terminos, p++) = std::move(term);
    };
    for (int k = 0; k <= project.n_keywords; ++k) {
        if (table.at(k, 1).empty())
            table.cell(k, 1) = project.proyecto.site_name;
        else
            for (int c = 1; c < max_columns && !table.at(k, c).empty(); ++c) add(table.at(k, c));
        const Text& keyword = table.at(k);
        if (!keyword.empty()) add(keyword + u" "); // the blank stays with it
    }
    project.n_terminos = CInt(p);
}

} // namespace twk

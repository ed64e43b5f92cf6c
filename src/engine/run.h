// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/keyword_counts.h"
#include "engine/counting/keyword_marks.h"
#include "engine/counting/spaced_text.h"
#include "platform/faults.h"
#include "platform/files.h"
#include "platform/text.h"
#include "settings/form6.h"
#include "store/database.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace twk {

struct KnownSynonyms;

/// The project's record, as the run reads it.
struct Proyecto {
    Text Name, site_name, site_url, Title, category, Description, designer_name, designer_url;
};

/// A random page of the plan: name and host it belongs to.
struct PlannedPage {
    Text name; ///< without extension until Step 6 has shown it, afterwards perhaps with it
    Text host;
};

inline constexpr int max_boxes = 101;   ///< content boxes 0 to 100
inline constexpr int max_columns = 101; ///< columns 0 to 100 of the keyword table

/// Words of every row: column 0 the keyword, columns 1 up its subkeywords. Cells outside are fault 9.
class KeywordTable {
  public:
    void resize(int rows) { rows_.assign(static_cast<std::size_t>(rows), {}); }
    int rows() const { return static_cast<int>(rows_.size()); }
    /// A cell that was never set is empty.
    const Text& at(int row, int column = 0) const;
    Text& cell(int row, int column = 0);

  private:
    std::vector<std::vector<Text>> rows_;
};

/// State of one run, made anew by each. The routines of all phases take it by reference and read it directly.
struct Run {
    explicit Run(Form6& form) : form(form), settings(form.settings) {}

    Form6& form;
    GatewaySettings& settings;
    Proyecto proyecto;

    KeywordTable tabla_kw;
    std::int16_t n_keywords = 0;
    std::int32_t total_terminos = 0; ///< keywords and subkeywords: the last index of `terminos`
    std::int32_t total_sub = 0;
    std::vector<Text> terminos; ///< 0 to total_terminos; keywords keep a trailing blank
    std::int16_t n_terminos = 0;
    std::vector<Text> nombres; ///< random page names, without extension
    std::int16_t n_nombres = 0;
    std::vector<PlannedPage> paginas; ///< 0 to n_nombres
    std::int16_t paginas_host = 0;    ///< random pages per destination

    std::array<Text, max_boxes> contenidos;
    std::array<std::int16_t, max_boxes> palabras_caja{};
    std::array<std::vector<std::int16_t>, max_boxes> densidades; ///< [box][keyword], per cent
    std::int16_t ultima_caja = -1;
    /// Boxes with every sentence in a paragraph of its own, and the same ready to get sentences; made when
    /// needed.
    std::array<std::optional<Text>, max_boxes> contenidos_partidos;
    std::array<std::unique_ptr<const SpacedText>, max_boxes> contenidos_espaciados;

    std::optional<KeywordSet> keywords; ///< those of the table, to be counted together; made when needed
    KeywordMarks marks;
    std::shared_ptr<KnownSynonyms> synonyms; ///< read when first needed

    Text extension;       ///< with its point
    Text separador;       ///< word separator of file names, read once
    Text archivo_sitemap; ///< file name of the hallway page
    Text lista_kw;        ///< keyword list of the page under way
    std::int16_t fase = 0;
    std::int16_t indice_kw = 0;
    std::int16_t cuenta1 = 0, cuenta2 = 0, cuenta3 = 0; ///< next report index per page kind
    std::int16_t cuenta_archivos = 0;
    Text mensaje_error; ///< the stage under way
    Text pagina_actual; ///< path of the page under way, for a fault's message
    Text enlace_padre;  ///< what a page leaves for the report: where it links to
    Text es_redireccion;
    Text nota_informe;

    // Second-level pages
    Text subkw_actual;
    Text nombre_relativo;
    Text texto_pagina;

    // Random pages
    static constexpr int nothing = -1;
    std::vector<int> fuente;    ///< the content pool: every box of `contenidos` twice
    std::vector<int> seleccion; ///< boxes drawn for a page, or `nothing`; not emptied between pages
    std::int16_t n_fuente = 0;
    std::int16_t es_js = 0;
    Text carpeta;  ///< folder of the destination
    Text url_host; ///< empty at destination 0
    Text url_pagina;
    std::vector<Text> ultima_por_host; ///< one per destination
    Text lista_enlaces;
    int d1 = 0, d2 = 0; ///< densities; kept from page to page at exactly 10000 units

    Database base_datos; ///< stays open after the run
    FileSystemObject fso;
    std::optional<ReplacedFile> origen; ///< the page under way, as it stands until it is replaced
    TextStreamPtr salida;               ///< and what is written of it
    Text ultima_pagina, ultimo_texto;   ///< path and text of the page written last
    std::shared_ptr<Fence> fence;       ///< every file of the run must lie inside

    // What the end of a run tells the command line.
    std::int64_t pages_written = 0;
    std::int64_t bytes_written = 0;
    double seconds = 0;    ///< from the first page to the last, pauses for questions not among them
    bool finished = false; ///< the run came to its end

    /// Folder `\Projects\<project>` and the main destination's folder in it.
    Text project_folder;
    Text main_folder;

    /// Prepared text of a content box. Fault 9 outside 0 to 100.
    const Text& box(int index) const {
        if (index < 0 || index >= max_boxes) throw RuntimeFault(fault_subscript);
        return contenidos[static_cast<std::size_t>(index)];
    }
    /// Column 0 of the table, as far as it has keywords.
    std::vector<Text> column_0() const;
    void writeline(TextView line) { salida->writeline(line); }
    void writeline(std::initializer_list<TextView> pieces) { salida->writeline(pieces); }
};

} // namespace twk

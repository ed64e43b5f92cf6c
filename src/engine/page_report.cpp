// SPDX-License-Identifier: MIT
#include "engine/page_report.h"

#include "engine/run.h"

namespace twk {

void analizar_pagina(Run& run, const Text& path) {
    analizar_pagina(run, path, {}, run.page.made, {});
}

void analizar_pagina(Run& run, const Text& path, const Text& redirects, const PageRecord& made,
                     TextView siblings) {
    std::int16_t* const counts[] = {&run.cuenta1, &run.cuenta2, &run.cuenta3};
    if (run.fase < 1 || run.fase > 3) return;
    OpenPage& page = run.page;
    Text texto_informe = path == page.ultima_pagina ? std::move(page.ultimo_texto) : read_text_file(path);
    page.ultima_pagina.clear();
    // The page's own redirection must not carry the preview away.
    replace_all(texto_informe, u"document.navigate", u"$$$document.navigate");
    std::int16_t& index = *counts[run.fase - 1];
    run.report.analyse(
        {path, texto_informe, page.size_of(path), run.fase, run.enlace_padre, redirects, made, siblings},
        index);
    ++index;
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "engine/page_report.h"

#include "engine/run.h"
#include "reports/form12.h"

namespace twk {

void analizar_pagina(Run& run, const Text& path, const Text&) {
    if (!run.form.informe_activo) return;
    Text texto_informe = path == run.ultima_pagina ? std::move(run.ultimo_texto) : read_text_file(path);
    run.ultima_pagina.clear();
    // The page's own redirection must not carry the preview away.
    replace_all(texto_informe, u"document.navigate", u"$$$document.navigate");
    Form12& report = screen<Form12>();
    switch (run.fase) {
    case 1:
        report.reporte2_2(path, texto_informe, run.cuenta1, run.fase, u"", u"", u"");
        ++run.cuenta1;
        break;
    case 2:
        report.reporte2_2(path, texto_informe, run.cuenta2, run.fase, run.enlace_padre, u"", u"");
        ++run.cuenta2;
        break;
    case 3:
        report.reporte2_2(path, texto_informe, run.cuenta3, run.fase, run.enlace_padre, run.es_redireccion,
                          run.nota_informe);
        ++run.cuenta3;
        break;
    default: break;
    }
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "engine/text_toolkit.h"

#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "platform/subscript.h"

#include <algorithm>

namespace twk {

Text cortar_palabras(TextView texto, int limite) {
    const TextView recortado = trim_view(texto);
    if (recortado.empty()) return {};
    // Pieces count towards the limit, words stop the loop. Once the pieces have used up the limit nothing
    // more is added, however few words there are: the loop would only run to its end.
    const bool whole_count = contains(recortado, highlight_opening); // its blank ties pieces together
    Text resultado;
    int piezas = 0;
    int palabras = 0;
    for (const TextView cada : split_views(recortado)) {
        if (++piezas > limite) break;
        resultado.append(1, u' ').append(cada);
        Text contada = whole_count ? Trim(resultado) : Text(cada);
        palabras = whole_count ? contar_palabras(contada) : palabras + contar_palabras(contada);
        if (palabras >= limite) break;
    }
    return Trim(resultado);
}

Text limpiar_html(Text& texto) {
    quitar_dobles(texto);
    while (contains(texto, u"..")) texto = Replace(Trim(texto), u"..", u".");
    for (const TextView vacio : {u"<p>  <p>", u"<p> <p>", u"<p><p>"})
        while (replace_all(texto, vacio, u"<p>")) {
        }
    space_tags(texto);
    return Trim(texto);
}

Text preparar_texto(Text& texto) {
    quitar_dobles(texto);
    replace_all(texto, vbCrLf, u" <p> ");
    replace_all(texto, u"(", u" (");
    replace_all(texto, u")", u") ");
    replace_all(texto, u"<", u" <");
    replace_all(texto, u">", u"> ");
    replace_all(texto, uR"(")", u"");
    Text limpio = texto;
    quitar_dobles(limpio);
    return Trim(limpio);
}

Text preparar_texto(Text&& texto) {
    return preparar_texto(texto);
}

int xrnum(int n) {
    return n == 0 ? 0 : CInt(draw_below(n));
}

Text letra(int& n) {
    if (n > 25) n -= 25; // 25, not 26: "b" follows "z"
    static constexpr TextView letters = u"abcdefghijklmnopqrstuvwxyz";
    return Text(1, at(letters, n));
}

bool is_reserved(TextView word) {
    const Text plain = LCase(trim_view(word));
    return plain == u"index" || plain == u"sitemap";
}

Text validar_palabra(Text& palabra) {
    if (Len(palabra) < 3) {
        MsgBox(u"The word must have more than 3 characters"); // 3 pass, whatever it says
        return {};
    }
    if (is_reserved(palabra)) {
        MsgBox(u"'Sitemap' and 'Index' are reserved words.");
        return {};
    }
    palabra = Trim(palabra);
    const auto allowed = [](char16_t c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
               c == u' ' || c == u'-' || c == u'_';
    };
    if (!std::all_of(palabra.begin(), palabra.end(), allowed)) {
        MsgBox(u"The word can only contain letters, numbers and dashes");
        return {};
    }
    return palabra;
}

Text ruta_corta(const Text& ruta) {
    return ruta;
}

void esperar(int segundos, const std::function<bool()>& enough) {
    desktop().wait(std::chrono::seconds(segundos), enough);
}

} // namespace twk

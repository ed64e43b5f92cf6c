#include "engine/text_toolkit.h"

#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/files.h"
#include "platform/numbers.h"

#include <algorithm>

namespace twk {

// Looks at every unit with the one before it, without an early exit: compilers vectorise that.
bool is_spaced(TextView text) {
    if (text.empty()) return true;
    if (text.front() == u'<' || text.back() == u'>') return false; // those two lack a neighbour
    unsigned short wrong = 0;
    for (std::size_t i = 1; i < text.size(); ++i) {
        const char16_t before = text[i - 1], here = text[i];
        const bool blank_before = before == u' ', blank_here = here == u' ';
        wrong = static_cast<unsigned short>(wrong | ((here == u'<') & !blank_before) |
                                            ((before == u'>') & !blank_here) | (blank_before & blank_here));
    }
    return wrong == 0;
}

namespace {

/// The search steps over one unit more per blank than it has matched: the count depends on it.
constexpr TextView long_joint = u"$$$$";

/// "<" to " <", ">" to "> ", then single blanks: the form in which tags are pieces of their own. One pass,
/// and only when the text is not in that form yet.
void space_tags(Text& text) {
    if (is_spaced(text)) return;
    Text out;
    out.resize(text.size() +
               2 * static_cast<std::size_t>(std::count_if(
                       text.begin(), text.end(), [](char16_t c) { return c == u'<' || c == u'>'; })));
    char16_t* at = out.data();
    char16_t last = 0;
    const auto put = [&](char16_t unit) {
        if (unit == u' ' && last == u' ') return;
        *at++ = last = unit;
    };
    for (const char16_t unit : text) {
        if (unit == u'<') put(u' ');
        put(unit);
        if (unit == u'>') put(u' ');
    }
    out.resize(static_cast<std::size_t>(at - out.data()));
    text = std::move(out);
}

std::int16_t as_count(std::int64_t count) {
    return CInt(static_cast<double>(count));
}

} // namespace

Text& quitar_dobles(Text& texto) {
    const auto doubled = [](char16_t a, char16_t b) { return a == u' ' && b == u' '; };
    texto.erase(std::unique(texto.begin(), texto.end(), doubled), texto.end());
    return texto;
}

std::int16_t contar_palabras(Text& texto) {
    replace_all(texto, highlight_opening, u"");
    space_tags(texto);
    const TextView trimmed = trim_view(texto);
    std::int64_t count = 0;
    for (std::size_t from = 0; from < trimmed.size();) {
        const std::size_t blank = trimmed.find(u' ', from);
        const std::size_t end = blank == TextView::npos ? trimmed.size() : blank;
        if (end > from && trimmed[from] != u'<' && trimmed[end - 1] != u'>') ++count;
        from = end + 1;
    }
    return as_count(count);
}

namespace {

/// Counts by the letter: the keyword's blanks become joints in the text, and each match takes the search on
/// by the length that the keyword has with the longer joints.
std::int64_t count_joined(Text& texto, const Text& keyword) {
    const Text joined = Replace(keyword, u" ", keyword_joint);
    const std::size_t step = Replace(keyword, u" ", long_joint).size();
    if (joined != keyword) replace_all(texto, keyword, joined);
    std::int64_t count = 0;
    for (std::size_t at = 1; (at = static_cast<std::size_t>(InStr(texto, joined, static_cast<int>(at)))) != 0;
         at += step)
        ++count;
    return count;
}

/// The same without touching the text, where that is certain to give the same: -1 when two matches stand so
/// close that the longer step, or a match across both, can play a part.
std::int64_t count_apart(TextView texto, TextView keyword) {
    const auto length = static_cast<int>(keyword.size());
    std::int64_t count = 0;
    int end = 0;
    for (int at = 1; (at = InStr(texto, keyword, at)) != 0; at = end) {
        if (count != 0 && at - end < length) return -1;
        end = at + length;
        ++count;
    }
    return count;
}

} // namespace

std::int16_t contar_kw(Text& texto, Text& keyword) {
    replace_all(texto, highlight_opening, u" ");
    space_tags(texto);
    keyword = Trim(LCase(keyword));
    const bool phrase = contains(keyword, u" ");
    if (phrase) quitar_dobles(keyword);
    const bool has_joints = contains(texto, keyword_joint);
    // A "$" beside a joint would make the joint another one.
    const bool plain = !has_joints && !contains(keyword, u"$");
    std::int64_t count = 0;
    if (!keyword.empty()) {
        count = plain && phrase ? count_apart(texto, keyword) : -1;
        if (count < 0) count = count_joined(texto, keyword);
    }
    if (has_joints || phrase) replace_all(texto, keyword_joint, u" ");
    return as_count(count);
}

double densidad(const Text& texto, Text& keyword) {
    if (trim_view(texto).empty()) return 0;
    Text copia = texto;
    const double cuenta = contar_kw(copia, keyword);
    const double palabras = contar_palabras(copia);
    if (palabras == 0) return 0;
    return CInt(Replace(Format(Round(cuenta * 100 / palabras), u"###,0"), u",", u""));
}

double densidad2(std::int16_t cuenta, Text& texto, const Text& keyword) {
    replace_all(texto, keyword, Replace(keyword, u" ", keyword_joint));
    const std::int64_t blanks = std::count(texto.begin(), texto.end(), u' ');
    // One less than the pieces, of which an empty text has none.
    const double piezas = texto.empty() ? -1 : blanks == 0 ? 1 : static_cast<double>(blanks);
    const double valor = CInt(static_cast<double>(cuenta) * 100) / piezas;
    if (valor == 0) return 0;
    return CInt(Format(valor, u"##.##"));
}

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
    replace_all(texto, u"\"", u"");
    Text limpio = texto;
    quitar_dobles(limpio);
    return Trim(limpio);
}

Text preparar_texto(Text&& texto) {
    return preparar_texto(texto);
}

std::int16_t xrnum(std::int16_t n) {
    if (n == 0) return 0;
    return CInt(Int(chance().Rnd() * n));
}

Text letra(std::int16_t& n) {
    if (n > 25) n = static_cast<std::int16_t>(n - 25); // 25, not 26: "b" follows "z"
    if (n < 0 || n > 25) throw RuntimeFault(fault_subscript);
    return Text(1, static_cast<char16_t>(u'a' + n));
}

Text validar_palabra(Text& palabra) {
    if (Len(palabra) < 3) {
        MsgBox(u"The word must have more than 3 characters"); // 3 pass, whatever it says
        return {};
    }
    const Text plana = LCase(trim_view(palabra));
    if (plana == u"index" || plana == u"sitemap") {
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

void esperar(int segundos) {
    Sleep(segundos * 1000);
}

} // namespace twk

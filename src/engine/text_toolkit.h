// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

/// What "word" and "occurrence of a keyword" mean for the whole program, and small services around page text.
/// A text is HTML mixed with plain words. Where an argument is changed, it is a reference and said so.
namespace twk {

/// Opening of a keyword highlight; the counts do not see it.
inline constexpr TextView highlight_opening = u"<span style=\"background-color: #FFFF97\">";

/// Stands for a blank inside a keyword while it is counted; a count turns it to a blank.
inline constexpr TextView keyword_joint = u"$$$";

/// What one pass over a text tells.
struct Survey {
    /// Every tag has a blank on both sides and no blank follows another: the form in which a count leaves a
    /// text.
    bool spaced = true;
    bool opens_tags = false; ///< there is a "<"
    bool dollars = false;    ///< there is a "$"
    std::int64_t blanks = 0;
    std::int64_t tag_ends = 0; ///< "<" and ">"

    explicit Survey(TextView texto);
};

/// Whether a count leaves the text as it is: spaced, without highlight openings and joints.
bool is_settled(TextView texto);

/// Number of units of which the test holds; blocks with small counters, which compilers vectorise.
template <class Test> std::int64_t count_units(TextView texto, Test test) {
    constexpr std::size_t block = 4096;
    std::int64_t all = 0;
    for (std::size_t from = 0; from < texto.size(); from += block) {
        unsigned short count = 0;
        for (const char16_t unit : texto.substr(from, block))
            count = static_cast<unsigned short>(count + (test(unit) ? 1 : 0));
        all += count;
    }
    return all;
}

/// Whether two occurrences of a phrase with this text between them are counted as two whatever the search
/// does at the first one's end.
bool are_apart(TextView between, TextView keyword);

/// Collapses runs of blanks in place; returns the argument.
Text& quitar_dobles(Text& texto);

/// Puts a blank before every "<" and behind every ">", then collapses runs of blanks. In place.
void space_tags(Text& texto);

/// Number of words: pieces between blanks that neither begin with "<" nor end with ">", once every tag has a
/// blank on both sides. The text keeps that spacing and loses its highlight openings. Fault 6 past 32767.
std::int16_t contar_palabras(Text& texto);

/// Occurrences of the keyword, as a substring in the text's own case. The keyword becomes trimmed lower case
/// (single blanks, if it is a phrase); the text gets blanks around tags, single blanks, and its "$$$" become
/// blanks. Fault 6 past 32767.
std::int16_t contar_kw(Text& texto, Text& keyword);

/// Whole per cent of `cuenta` among `palabras`, halves to even; 0 when there are no words.
double por_ciento(std::int16_t cuenta, std::int16_t palabras);

/// Whole per cent of occurrences among words, halves to even. The keyword is changed as by `contar_kw`.
double densidad(const Text& texto, Text& keyword);

/// The form of reports and critic: whole per cent of `cuenta` among the pieces between blanks less one. In
/// the text the keyword's blanks become "$$$". Fault 6 from 328 occurrences on.
double densidad2(std::int16_t cuenta, Text& texto, const Text& keyword);

/// The first words: at most `limite` pieces, tags and empty pieces among them.
Text cortar_palabras(TextView texto, int limite);

/// Collapses blanks, points and empty paragraphs; spaces tags. Returns the trimmed text; the argument keeps
/// the untrimmed form.
Text limpiar_html(Text& texto);

/// Text of a box to page text: line ends to " <p> ", blanks around parentheses and tags, no double quotes.
/// Returns it with single blanks and trimmed; the argument keeps the form before that.
Text preparar_texto(Text& texto);
/// The same for a text that the caller does not keep.
Text preparar_texto(Text&& texto);

/// A whole number from 0 to n - 1; 0, without a draw, when n is 0.
std::int16_t xrnum(std::int16_t n);

/// Letter of the number, "a" for 0. Above 25 the number loses 25 (in place): 26 gives "b". Fault 9 past 50.
Text letra(std::int16_t& n);

/// Whether the word, blanks around it and case aside, is the name of a page that every site has.
bool is_reserved(TextView word);

/// The trimmed word, or an empty text after a message when it is no word of letters, digits, blank, dash and
/// underscore, is reserved, or is shorter than 3. The argument is trimmed when it passes the first two tests.
Text validar_palabra(Text& palabra);

/// Path in the form that the system's open command takes.
Text ruta_corta(const Text& ruta);

/// Waits.
void esperar(int segundos);

} // namespace twk

// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/spaced_text.h"

/// Brings a content box to about the word count and keyword density asked for, marks keywords, and makes file
/// names. Density is reached by adding sentences at even steps; what the text has already is not measured.
namespace twk {

class PageChoices;
struct Boxes;
struct GatewaySettings;
struct Project;
struct Run;

/// The density that Step 5 asks for, in per cent. Faults 6 and 13, naming the control, for what is none.
int box_density(const PageChoices& choices);

/// The driver: grows a short text, moves a long one to a read-more page, spreads the linking sentences, and
/// limits repetitions, each as Step 5 says. Faults 6, 9 and 13 come out; 1001 when the sentences of the
/// settings are all empty.
Text recalcular(Run& run, const Text& texto, const Text& keyword);

/// Adds words from drawn boxes while the text has fewer than `min_palabras`, five times at most. In place;
/// `drawn` gets the numbers of the boxes.
Text pocas_palabras(const Boxes& boxes, const GatewaySettings& settings, Text& texto,
                    std::vector<std::uint8_t>* drawn = nullptr);

/// Cuts a text of more than `max_palabras` words to its first 500 pieces, which go to a read-more page. In
/// place. Fault 9 when there are fewer pieces.
Text muchas_palabras(Run& run, Text& texto);

/// The text in segments of about 100 / `densidad_pedida` pieces, each with a sentence that links the keyword
/// in front of its first anchor word. Empty when the text is, when the density is below 1, or above 50. The
/// argument gets its tags spaced; a fault leaves it empty. Faults 6 (words times density past 16 bits), 9 (an
/// anchor word past the last piece), 1001. `put_in` goes up by the sentences.
Text Ajustar_KW(const PageChoices& choices, Text& texto, const Text& keyword, int densidad_pedida,
                int* put_in = nullptr);
/// The same for a text that is ready to get sentences.
Text Ajustar_KW(const PageChoices& choices, const SpacedText& spaced, const Text& keyword,
                int densidad_pedida, int* put_in = nullptr);

/// What a page's text is fitted to, and where the page's record notes it.
struct FittingTo {
    std::size_t which; ///< 0 or 1, in the order of the page
    int row;           ///< of the keyword table, -1 for a subkeyword
    int density;       ///< per cent
};

/// `Ajustar_KW` of the text of the page under way.
Text fitted_text(Run& run, Text& texto, const Text& keyword, const FittingTo& to);
Text fitted_text(Run& run, const SpacedText& spaced, const Text& keyword, const FittingTo& to);

/// The draw of `xrnum`.
int xrnum2(int n);

/// Marks every keyword that stands between blanks, in its own case. In place.
void highLight(Project& project, const GatewaySettings& settings, Text& texto);

/// A text made fit for a file name: separator for blanks, plain letters, lower case. "}", ",", "/", "\" and
/// "." pass through.
Text rspaces(const PageChoices& choices, TextView texto);

} // namespace twk

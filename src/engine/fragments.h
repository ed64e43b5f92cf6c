// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

/// Lines that several page kinds and layouts share, so that each layout reads as a list of them.
namespace twk {

struct Run;

/// Address of the main gateway directory, as Step 4 shows it.
const Text& main_host(const Run& run);

Text font_line(const Run& run);       ///< face, colour and size 3
Text small_font_line(const Run& run); ///< colour and size 3
/// Subject, description and category with their captions, between `join`s: the heart of every caption line.
Text captions_text(const Run& run, TextView join = u"<br>");
Text captions(const Run& run); ///< the same as a heading
Text heading_pair(const Run& run, TextView keyword);
Text phrase_line(const Run& run, TextView keyword);
Text link_line(const Run& run, TextView heading); ///< to the hallway page, between <heading> and </heading>
Text hidden_list(const Run& run);                 ///< the keyword list in letters of size 0
Text hidden_field(TextView name, TextView content);
/// A text with every sentence in a paragraph of its own.
Text split_sentences(TextView text);
/// A content box like that, made when it is first asked for: many pages draw the same box.
const Text& split_box(Run& run, int b);
/// The user's own HTML between line breaks; empty when there is none.
Text custom_box(const Run& run);
/// Writes that line when there is one.
void write_custom_box(Run& run);

/// "<td ...>" of a coloured or pictured cell with the given attributes. Written only when a background is
/// chosen.
void write_background_cell(Run& run, TextView attributes);

Text redirect_script(Run& run); ///< draws an address

/// Opening of a URL comment's text: the main directory, a blank and the keyword list.
Text list_comment(const Run& run, TextView list);

} // namespace twk

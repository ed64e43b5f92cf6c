// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

/// Lines that several page kinds and layouts share, so that each layout reads as a list of them.
namespace twk {

class PageChoices;
struct GatewaySettings;
struct OpenPage;
struct Plan;
struct Proyecto;

Text font_line(const PageChoices& choices);       ///< face, colour and size 3
Text small_font_line(const PageChoices& choices); ///< colour and size 3

/// Subject, description and category with their captions, between `join`s: the heart of every caption line.
Text captions_text(const GatewaySettings& settings, const Proyecto& proyecto, TextView join = u"<br>");
/// The same as a heading.
Text captions(const GatewaySettings& settings, const Proyecto& proyecto);
Text heading_pair(const Proyecto& proyecto, TextView keyword);
Text phrase_line(const GatewaySettings& settings, TextView keyword);
/// The link to the hallway page, between <heading> and </heading>.
Text link_line(const PageChoices& choices, const Plan& plan, TextView heading);
/// The keyword list in letters of size 0.
Text hidden_list(const PageChoices& choices, TextView list);
Text hidden_field(TextView name, TextView content);
/// The user's own HTML between line breaks; empty when there is none.
Text custom_box(const PageChoices& choices);
/// Writes that line when there is one.
void write_custom_box(OpenPage& page, const PageChoices& choices);

/// "<td ...>" of a coloured or pictured cell with the given attributes. Written only when a background is
/// chosen.
void write_background_cell(OpenPage& page, const PageChoices& choices, TextView attributes);

Text redirect_script(const PageChoices& choices); ///< draws an address

/// A comment of the main directory, a blank and the keyword list.
Text list_comment(const PageChoices& choices, TextView list);

} // namespace twk

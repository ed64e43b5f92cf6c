// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

/// Frames of the table layouts; each writes its lines.
namespace twk {

class PageChoices;
struct OpenPage;

void write_table1_open(OpenPage& page);
/// The coloured or pictured strip above a Table 1; nothing when no background is chosen.
void write_band(OpenPage& page, const PageChoices& choices);
/// The left cell of a Table 1; nothing when no background is chosen.
void write_side_cell(OpenPage& page, const PageChoices& choices);

void write_table2_head(OpenPage& page);
/// Ends the table before it and opens the green box of links.
void write_green_box(OpenPage& page);
/// Ends the green box and opens the table of the text.
void write_body_table(OpenPage& page);
/// Copies the background of Table 2 into a folder that has none; returns whether it did.
bool copy_table2_background(OpenPage& page, const Text& folder);
/// The folder that the background comes from.
Text templates_folder();

void write_table3_open(OpenPage& page, const PageChoices& choices);
void write_side_list_open(OpenPage& page, const PageChoices& choices);
/// A row per text, the colours taking turns.
void write_side_stripes(OpenPage& page, const PageChoices& choices, const std::vector<Text>& rows);
void write_right_box(OpenPage& page, const PageChoices& choices);

} // namespace twk

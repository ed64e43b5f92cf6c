// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <vector>

/// Frames of the table layouts; each writes its lines.
namespace twk {

struct Run;

void write_table1_open(Run& run);
/// The coloured or pictured strip above a Table 1; nothing when no background is chosen.
void write_band(Run& run);
/// The left cell of a Table 1; nothing when no background is chosen.
void write_side_cell(Run& run);

void write_table2_head(Run& run);
/// Ends the table before it and opens the green box of links.
void write_green_box(Run& run);
/// Ends the green box and opens the table of the text.
void write_body_table(Run& run);
/// Copies the background of Table 2 into a folder that has none; returns whether it did.
bool copy_table2_background(Run& run, const Text& folder);
/// The folder that the background comes from.
Text templates_folder();

void write_table3_open(Run& run);
void write_side_list_open(Run& run);
/// A row per text, the colours taking turns.
void write_side_stripes(Run& run, const std::vector<Text>& rows);
void write_right_box(Run& run);

} // namespace twk

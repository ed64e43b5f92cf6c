// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct Run;

/// Writes the animation with the first ten words of the text, which it keeps (in place).
void flash(Run& run, Text& t);

/// Writes the four lines of the animation with the text as it stands.
void write_flash_object(Run& run, const Text& t);

/// Under Check4, by chance: copies the animation into the folder and writes it with the words (commas taken
/// out), and a blank line.
void perhaps_flash(Run& run, const Text& folder, TextView words);

/// The block of a linked picture; a picture drawn anew is copied under the page's name when that name has
/// none yet. Empty, after its draws, for kind 2. Faults of the copy come out.
Text imagen(Run& run, int kind, TextView alt, const Text& folder, const Text& stem);

/// "_js" for 1, else nothing.
Text tiene_java(int value);

/// Copies the animation into a folder of the project.
void copy_flash_movie(Run& run, const Text& folder);

} // namespace twk

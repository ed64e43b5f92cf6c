// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

class PageChoices;
struct OpenPage;
struct Run;

/// Writes the animation with the first ten words of the text, which it keeps (in place).
void flash(OpenPage& page, Text& t);

/// Writes the four lines of the animation with the text as it stands.
void write_flash_object(OpenPage& page, const Text& t);

/// Where animations are wanted, by chance: copies the movie into the folder and writes the animation with the
/// words (commas taken out), and a blank line.
void perhaps_flash(OpenPage& page, const PageChoices& choices, const Text& folder, TextView words);

/// Copies the movie into a folder of the project.
void copy_flash_movie(OpenPage& page, const Text& folder);

/// The block of a linked picture; a picture drawn anew is copied under the page's name when that name has
/// none yet. Empty, after its draws, for kind 2. Leaves the stage in `mensaje_error`. Faults of the copy come
/// out.
Text imagen(Run& run, int kind, TextView alt, const Text& folder, const Text& stem);

/// "_js" for 1, else nothing.
Text tiene_java(int value);

} // namespace twk

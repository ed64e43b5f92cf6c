// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

struct Run;

// The layouts. Each writes what lies between the head of a page and its common end: a first-level page's
// behind the body tag, the others with the body tag.

void first_level_no_table(Run& run);
void first_level_table1(Run& run);
void first_level_table2(Run& run);
void first_level_table3(Run& run);

void second_level_no_table(Run& run);
void second_level_table1(Run& run);
void second_level_table23(Run& run); ///< one layout for two options

void random_no_table(Run& run);
void random_table1(Run& run);
void random_table2(Run& run);
void random_table3(Run& run);

} // namespace twk

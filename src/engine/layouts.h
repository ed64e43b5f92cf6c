// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

namespace twk {

struct RandomPhase;
struct Run;
struct SecondLevelPage;

// The layouts. Each writes what lies between the head of a page and its common end: a first-level page's
// behind the body tag, the others with the body tag. `keyword` is what the headings show.

void first_level_no_table(Run& run, const Text& keyword);
void first_level_table1(Run& run, const Text& keyword);
void first_level_table2(Run& run, const Text& keyword);
void first_level_table3(Run& run, const Text& keyword);

void second_level_no_table(SecondLevelPage& sub);
void second_level_table1(SecondLevelPage& sub);
void second_level_table23(SecondLevelPage& sub); ///< one layout for two options

void random_no_table(RandomPhase& phase);
void random_table1(RandomPhase& phase);
void random_table2(RandomPhase& phase);
void random_table3(RandomPhase& phase);

} // namespace twk

#pragma once

namespace twk {

struct Run;

/// The three table layouts; each writes what lies between the head of a page and its common end.
void first_level_table1(Run& run);
void first_level_table2(Run& run);
void first_level_table3(Run& run);
void second_level_table1(Run& run);
void second_level_table23(Run& run);
void random_table1(Run& run);
void random_table2(Run& run);
void random_table3(Run& run);

} // namespace twk

// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

class KeywordSet;
struct Run;

/// The set of the run's keywords.
const KeywordSet& keyword_set(Run& run);

/// Reads the project's record; the pages' main address is its Target Site URL.
void read_project(Run& run);

/// Fills the keyword table, and counts terms and subkeywords.
void read_keywords(Run& run);

/// The flat list of terms. A keyword without subkeywords gets the site's name in column 1, which is no term.
void collect_terms(Run& run);

/// Loads and measures the content boxes. The measuring leaves column 0 of the keyword table trimmed and in
/// lower case. Fault 9 at the 102nd box.
void measure_boxes(Run& run);

/// Fills the list of pictures; false, after a message, when there are too few.
bool list_pictures(Run& run);

} // namespace twk

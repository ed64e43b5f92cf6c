// SPDX-License-Identifier: MIT
#pragma once

#include "engine/counting/keyword_counts.h"
#include "engine/counting/keyword_marks.h"
#include "engine/keyword_table.h"
#include "store/database.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace twk {

class PageChoices;

/// The project's record.
struct Proyecto {
    Text Name, site_name, site_url, Title, category, Description, designer_name, designer_url;
};

/// The project as a run has read it.
struct Project {
    Database base_datos; ///< stays open after the run
    Proyecto proyecto;
    KeywordTable tabla_kw; ///< one row more than there are keywords: the last one stays empty
    std::int16_t n_keywords = 0;
    std::int32_t total_terminos = 0; ///< keywords and subkeywords: the last index of `terminos`
    std::int32_t total_sub = 0;
    std::vector<Text> terminos; ///< 0 to total_terminos; keywords keep a trailing blank
    std::int16_t n_terminos = 0;

    /// Column 0 of the table, as far as there are keywords and as it is now.
    const std::vector<Text>& keywords();
    /// The keywords, to be counted together; made when first asked for.
    const KeywordSet& keyword_set();
    /// Keywords joined by " , " from the first row on, each with the separator in front.
    Text joined_keywords() const;

    KeywordMarks marks;

  private:
    std::vector<Text> keywords_;
    std::optional<KeywordSet> keyword_set_;
};

/// Reads the project's record; the pages' main address is its Target Site URL.
void read_project(Project& project, const PageChoices& choices);

/// Fills the keyword table, and counts terms and subkeywords.
void read_keywords(Project& project, const PageChoices& choices);

/// The flat list of terms. A keyword without subkeywords gets the site's name in column 1, which is no term.
void collect_terms(Project& project);

} // namespace twk

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <cstdint>

namespace twk {

struct PageRecord;
struct Project;

/// What the report is told of a page.
struct WrittenPage {
    const Text& path;
    const Text& text;
    std::int64_t bytes;    ///< of the file
    int kind;              ///< 1 first-level, 2 second-level, 3 random
    const Text& links_to;  ///< where a second-level or random page links to
    const Text& redirects; ///< "YES" or "NO" for a random page
    const PageRecord& made;
    TextView siblings; ///< the links at the end of the text that all pages of its folder share; or empty
};

/// Report indices behind the last page of each kind; the kinds follow each other.
struct PageCounts {
    int first_level, second_level, random;
};

/// The report of a run, as far as the run knows it.
class RunReport {
  public:
    virtual ~RunReport() = default;

    /// From now on pages are analysed.
    virtual void switch_on() = 0;
    /// Shows an empty report and sizes it for the project.
    virtual void begin(const Project& project) = 0;
    /// The status line.
    virtual void status(const Text& text) = 0;
    /// What the progress bar shows, in per cent.
    virtual double progress() const = 0;
    virtual void set_progress(double per_cent) = 0;
    /// One page more is written.
    virtual void page_written() = 0;
    /// Analyses a page under an index that no other page has. No fault comes out.
    virtual void analyse(const WrittenPage& page, std::int16_t index) = 0;
    /// A page that is written and not analysed: it links to others.
    virtual void links_from(const Text& path, const Text& text) = 0;
    /// Lists the pages of each kind and lets the user at them.
    virtual void finish(int first_level_pages, const PageCounts& counts) = 0;
};

} // namespace twk

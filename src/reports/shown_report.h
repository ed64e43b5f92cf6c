// SPDX-License-Identifier: MIT
#pragma once

#include "engine/run_report.h"
#include "platform/screens.h"
#include "reports/page_table.h"

#include <optional>

namespace twk {

class Form6;

/// The report of a run in `Form12`, which is loaded when it is told of something.
class ShownReport : public RunReport {
  public:
    explicit ShownReport(Form6& form) : form_(form) {}

    void switch_on() override;
    void begin(const Project& project) override;
    void status(const Text& text) override;
    double progress() const override;
    void set_progress(double per_cent) override;
    void analyse(const WrittenPage& page, std::int16_t index) override;
    void links_from(const Text& path, const Text& text) override;
    void page_written() override;
    void finish(int first_level_pages, const PageCounts& counts) override;

    /// The run has ended: the report can be closed, and one that was left unfinished tells of no action.
    void end(bool finished);

  private:
    /// What the run knows at its end.
    RunFacts facts() const;

    std::optional<Screens::Hold> held_; ///< keeps the user from closing the report meanwhile
    Form6& form_;                       ///< knows whether reports are made
};

} // namespace twk

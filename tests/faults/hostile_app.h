// SPDX-License-Identifier: MIT
#pragma once

#include "platform/faults.h"
#include "support/sample_project.h"

#include <gtest/gtest.h>

namespace twk::test {

/// The small test project beside another one that it must not harm: rows in the store, pages, lists and
/// settings in the application folder, and files around it. The test fails when any of that has changed at
/// its end.
class HostileApp : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    /// The click of "Next: Generate Gateway Pages", confirmed. Gives the number of the fault it ends in; 0
    /// when it finishes, -1 when it is refused by a message.
    int run_project();
    /// The number of the fault that the event ends in, 0 for none.
    template <class Form> int fault_of_event(const std::string& control, int index = -1) {
        return fault_of_dispatch([&] { screens().fire<Form>(control, "Click", index); });
    }
    int fault_of_dispatch(const std::function<void()>& event);
    /// All that must stay as it is; tests call it to find out which of several values did harm.
    std::string precious() const;

    TempApp app;
    std::unique_ptr<SampleProject> project;

  private:
    std::string before_;
};

} // namespace twk::test

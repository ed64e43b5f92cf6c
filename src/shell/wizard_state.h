// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <array>
#include <cstdint>

namespace twk {

enum class StepState {
    not_yet, ///< it waits for an earlier step, or for its own Next
    missing, ///< its Next would refuse
    done,
};

/// One step of the wizard as the project stands now.
struct WizardStep {
    const char* screen = ""; ///< "Form3"
    TextView name;           ///< "Keywords"
    StepState state = StepState::not_yet;
    Text detail; ///< a few words: "2 of 3 keywords"; empty when there is nothing to say
    Text reason; ///< what Next would say, for a step that misses something
    bool loaded = false;
};

inline constexpr int wizard_steps = 6;

/// Where the project stands.
struct WizardState {
    Text project; ///< empty without one
    std::array<WizardStep, wizard_steps> steps;
    std::int64_t pages = -1; ///< written by the last run of Step 5; -1 before it
    double seconds = 0;      ///< that it took
};

/// Number of the step that a screen shows, 1 to 6; 0 for another screen.
int step_of(const std::string& screen);

/// Looks at the loaded steps, and for the others at the store: the checks are those of each step's Next.
/// Shows and changes nothing, raises no fault.
WizardState look_at_wizard();

/// Brings a step forward, the field in front that it misses. A step that is not loaded is reached by Next
/// alone: then the last loaded one before it comes forward, and the status bar tells. `number` is 1 to 6.
void go_to_step(int number);

} // namespace twk

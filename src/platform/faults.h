// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <exception>
#include <string>

namespace twk {

/// Numbers of the faults.
enum Fault : int {
    fault_argument = 5,
    fault_overflow = 6,
    fault_memory = 7,
    fault_subscript = 9,
    fault_division = 11,
    fault_type = 13,
    fault_internal = 51,
    fault_file_not_found = 53,
    fault_device_io = 57,
    fault_disk_full = 61,
    fault_past_end = 62,
    fault_file_permission = 70,
    fault_path_access = 75,
    fault_path_not_found = 76,
    fault_null = 94,
    fault_store_missing = 3024,
    fault_store_password = 3031,
    fault_statement = 3075,
    fault_store_locked = 3260,
    fault_store = 3343,
    fault_field = 3265,
    fault_no_record = 3021,
    fault_project_lacks = 1001, ///< a run that could never end, with what the project lacks
    fault_dialog_cancelled = 32755,
    fault_timed_out = 35761,
};

/// A run-time fault: ends the event under way, unless one of the few routines that trap faults stands
/// between; the dispatcher of events shows it.
class RuntimeFault : public std::exception {
  public:
    RuntimeFault(int number, Text text);
    explicit RuntimeFault(int number); ///< with the usual text of that number

    int number() const { return number_; }
    const Text& text() const { return text_; }
    const char* what() const noexcept override { return utf8_.c_str(); }

    /// The stage of the run and the page under way, for the message; empty outside a run.
    Text stage;
    Text page;

  private:
    int number_;
    Text text_;
    std::string utf8_;
};

/// Runs one step of a routine that carries on after every fault.
template <class Step> void stepping_over(Step step) {
    try {
        step();
    } catch (const RuntimeFault&) {
    }
}

/// A fault that the user can do something about: one sentence that names what is wrong and what would do, in
/// front of the usual text of the number.
RuntimeFault told_fault(int number, TextView sentence);

/// "Run-time error 'N':", a blank line and the text; then the stage and the page, when there are any.
Text fault_message(const RuntimeFault& fault);

} // namespace twk

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/faults.h"

#include <gtest/gtest.h>

namespace twk::test {

/// Number of the fault that the action ends in, 0 when it ends well.
template <class Action> int fault_of(Action action) {
    try {
        action();
    } catch (const RuntimeFault& fault) {
        EXPECT_FALSE(fault.text().empty()) << "fault " << fault.number() << " says nothing";
        return fault.number();
    }
    return 0;
}

} // namespace twk::test

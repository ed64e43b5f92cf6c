// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"
#include "support/temp_app.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace twk::fuzz {

/// The application folder that all inputs of a process share, its messages answered by OK.
inline test::TempApp& app() {
    // Never destroyed: a fuzzer ends in the middle of things.
    static test::TempApp& one = []() -> test::TempApp& {
        auto* const made = new test::TempApp;
        made->desktop.always(u"", Answer::ok);
        return *made;
    }();
    one.desktop.messages.clear();
    return one;
}

inline std::string_view bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// What must hold for every input.
inline void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace twk::fuzz

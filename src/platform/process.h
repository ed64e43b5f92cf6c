// SPDX-License-Identifier: MIT
#pragma once

#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/module1.h"
#include "platform/screens.h"
#include "platform/text.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <typeindex>

namespace twk {

class Desktop;

/// All that the process has one of. `desktop()`, `app_path()`, `clock()`, `chance()`, `module1()` and
/// `screens()` are the ways to it.
class Process {
  public:
    Desktop* desktop = nullptr;
    Text app_path = u".";
    std::shared_ptr<Clock> clock = std::make_shared<SystemClock>();
    Chance chance;
    Module1 module1;

    /// What a single routine, here or in a layer above, keeps for the process: made by the first use.
    template <class Part> Part& part() {
        std::shared_ptr<void>& kept = parts_[typeid(Part)];
        if (!kept) kept = std::make_shared<Part>();
        return *static_cast<Part*>(kept.get());
    }

  private:
    std::map<std::type_index, std::shared_ptr<void>> parts_;

  public:
    Screens screens; ///< last, so that they go before what they use
};

/// The one in place.
Process& process();

/// Puts a fresh process state in place, and brings the one before back in the end, with everything in it.
/// Screens are unloaded first, while the desktop still stands.
class ProcessGuard {
  public:
    /// `desktop` must outlive the guard. Without a clock time is the system's; with a seed two runs draw the
    /// same.
    ProcessGuard(Desktop& desktop, TextView app_path, std::shared_ptr<Clock> clock = {},
                 std::optional<std::uint64_t> seed = {});
    ~ProcessGuard();
    ProcessGuard(const ProcessGuard&) = delete;
    ProcessGuard& operator=(const ProcessGuard&) = delete;

  private:
    Process own_;
    Process* const before_;
};

} // namespace twk

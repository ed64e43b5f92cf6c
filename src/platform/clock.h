// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <chrono>
#include <memory>

namespace twk {

/// A local date and time, as the clock shows it.
struct LocalTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

/// What the program knows of time. Tests and `--now` put one in place that stands still.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual LocalTime now() = 0;
    virtual void sleep(std::chrono::milliseconds time) = 0;

    /// Seconds since midnight, with their fraction.
    double Timer();
};

/// The machine's own clock, in local time.
class SystemClock : public Clock {
  public:
    LocalTime now() override;
    void sleep(std::chrono::milliseconds time) override;
};

/// A clock that stands at one moment and sleeps no time.
class FixedClock : public Clock {
  public:
    explicit FixedClock(const LocalTime& at) : at_(at) {}
    LocalTime now() override { return at_; }
    void sleep(std::chrono::milliseconds time) override { slept += time; }

    std::chrono::milliseconds slept{0};

  private:
    LocalTime at_;
};

Clock& clock();
/// Puts another clock in place; an empty pointer brings the system's back.
void set_clock(std::shared_ptr<Clock> clock);

/// The present date and time in its default text form, "24/11/2026 10:18:05 a.m.".
Text ahora();

} // namespace twk

// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <cstdio>
#include <ctime>
#include <thread>

namespace twk {

LocalTime SystemClock::now() {
    const auto moment = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto part = std::chrono::duration_cast<std::chrono::milliseconds>(moment.time_since_epoch()) % 1000;
    return {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            static_cast<int>(part.count())};
}

void SystemClock::sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

double Clock::Timer() {
    const LocalTime at = now();
    return at.hour * 3600.0 + at.minute * 60.0 + at.second + at.millisecond / 1000.0;
}

Text ahora() {
    const LocalTime at = clock().now();
    const int hour = at.hour % 12 == 0 ? 12 : at.hour % 12;
    char buffer[96];
    std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d %02d:%02d:%02d %s", at.day, at.month, at.year, hour,
                  at.minute, at.second, at.hour < 12 ? "a.m." : "p.m.");
    return from_utf8(buffer);
}

} // namespace twk

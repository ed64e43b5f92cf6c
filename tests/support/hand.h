// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

/// Controls of any kind as a hand and an eye meet them, for tests that name them by text.
namespace twk::test {

/// What a control shows: the property that is named ("enabled", "visible", "caption", "index", "path",
/// "text"), or with none what the control is there for. Lists come as "A|B", switches as "yes" and "no".
std::string shown(const ScreenMap::Control& control, const std::string& property);

/// Puts a text, "yes" or "no", a number, or the folder of a list into a control; no event is raised.
void put(const ScreenMap::Control& control, const Text& value);

/// Chooses an entry by its text, several of a list as "A|B", none with "-"; no event is raised.
void choose(const ScreenMap::Control& control, const std::string& what);

/// Fills a list with these entries, "A|B", in place of those that it has.
void list(const ScreenMap::Control& control, const std::string& entries);

} // namespace twk::test

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <initializer_list>

/// Values stand in a statement between quotes as they are. A value with an apostrophe in it could thus close
/// its quotes and go on as a statement of its own making: what comes through here cannot hold one.
namespace twk {

/// Fault 3075, with the statement and the reason.
[[noreturn]] void malformed_statement(const Text& statement, TextView why);

/// Fault 3075 unless the statement begins with one of the words, its quotes are closed, nothing but values
/// stands where values stand, and there are no comments and no second statement.
void fence_statement(const Text& statement, std::initializer_list<TextView> first_words);

} // namespace twk

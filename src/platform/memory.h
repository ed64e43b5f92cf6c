// SPDX-License-Identifier: MIT
#pragma once

namespace twk {

/// Lets the process keep the memory that it frees, up to some tens of megabytes: whoever makes thousands of
/// long texts one after the other need not get each from the system anew. Without effect where the C library
/// does not know of it.
void keep_freed_memory();

} // namespace twk

// SPDX-License-Identifier: MIT
#include "fuzz/readers.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > 0) twk::fuzz::READER({reinterpret_cast<const char*>(data), size});
    return 0;
}

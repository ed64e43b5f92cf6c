// SPDX-License-Identifier: MIT
#pragma once

#include "platform/faults.h"

#include <concepts>
#include <iterator>
#include <utility>

namespace twk {

/// The element of an array, list or table at an index counted from 0. Fault 9 outside it.
template <class Container> decltype(auto) at(Container& container, std::integral auto index) {
    if (std::cmp_less(index, 0) || std::cmp_greater_equal(index, std::size(container)))
        throw RuntimeFault(fault_subscript);
    return container[static_cast<std::size_t>(index)];
}

/// Number of the elements, of the type that counts them everywhere.
template <class Container> int size_of(const Container& container) {
    return static_cast<int>(std::size(container));
}

} // namespace twk

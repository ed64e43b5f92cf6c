// SPDX-License-Identifier: MIT
#include "platform/module1.h"

namespace twk {

void marcar_forma(int number, bool loaded) {
    module1().formas_abiertas.at(static_cast<std::size_t>(number)) =
        loaded ? std::int16_t{-1} : std::int16_t{0};
}

} // namespace twk

// SPDX-License-Identifier: MIT
#include "shell/module1.h"

namespace twk {

Module1& module1() {
    static Module1 one;
    return one;
}

const Text& version_app() {
    static const Text version = [] {
        const Text number = from_utf8(TARNWICK_VERSION); // "1.0.0"
        const std::vector<Text> parts = Split(number, u".");
        return parts.at(0) + u"." + parts.at(1) + parts.at(2) + u"-tarnwick";
    }();
    return version;
}

void marcar_forma(int number, bool loaded) {
    module1().formas_abiertas.at(static_cast<std::size_t>(number)) =
        loaded ? std::int16_t{-1} : std::int16_t{0};
}

} // namespace twk

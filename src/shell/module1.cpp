// SPDX-License-Identifier: MIT
#include "shell/module1.h"

namespace twk {

const Text& version_app() {
    static const Text version = [] {
        const Text number = from_utf8(TARNWICK_VERSION); // "1.0.0"
        const std::vector<Text> parts = Split(number, u".");
        return parts.at(0) + u"." + parts.at(1) + parts.at(2) + u"-tarnwick";
    }();
    return version;
}

} // namespace twk

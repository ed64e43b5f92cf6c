// SPDX-License-Identifier: MIT
#include "shell/module1.h"

#include "platform/numbers.h"

namespace twk {

const Text& version_app() {
    static const Text version = [] {
        const Text number = from_utf8(TARNWICK_VERSION); // "1.0.0"
        const std::vector<Text> parts = Split(number, u".");
        return parts.at(0) + u"." + parts.at(1) + parts.at(2) + u"-tarnwick";
    }();
    return version;
}

Text sent_to_step2(int words) {
    return to_text(words) + Text(words == 1 ? u" word" : u" words") + u" sent to Step 2";
}

} // namespace twk

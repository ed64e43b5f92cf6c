// SPDX-License-Identifier: MIT
// Good files with some of their bytes changed, doubled or lost: whatever they have become, what is made of
// them is sound. The fuzzers look for more.

#include "fuzz/readers.h"
#include "support/temp_app.h"

#include <random>

#include <gtest/gtest.h>

namespace twk::test {
namespace {

struct AnyBytes : testing::Test {
    std::size_t below(std::size_t n) { return draw() % n; }
    std::string disturbed(std::string bytes) {
        for (std::size_t i = 1 + below(8); i > 0 && !bytes.empty(); --i) {
            const std::size_t at = below(bytes.size()), length = below(40);
            switch (below(4)) {
            case 0: bytes[at] = static_cast<char>(draw()); break;
            case 1: bytes.erase(at, length); break;
            case 2: bytes.insert(at, bytes.substr(below(bytes.size()), length)); break;
            default: bytes.insert(at, 1, "=;*\"\r\n#"[below(8)]); // or a zero
            }
        }
        return bytes;
    }
    std::mt19937 draw{1};
};

TEST_F(AnyBytes, AsSettingsAreSavedAgainOrToldNotToBe) {
    const std::string good = bytes_of(std::filesystem::path(TEST_DATA_DIR) / "twk.dat");
    int saved = 0;
    for (int round = 0; round < 200; ++round) saved += fuzz::settings(disturbed(good)) ? 1 : 0;
    EXPECT_GT(saved, 50);
}

TEST_F(AnyBytes, AsListsLeaveScreenAndStoreAlike) {
    std::string good = "#\r\n# list\r\n\r\n";
    for (const char* word : {"roses", "red tulips", "caf\xC3\xA9 lilies", "late ferns"})
        good += std::string(" 1.= ") + word + "\r\n Subkeyword 1.= below\r\n";
    const std::string names = "#\r\n# Host: h\r\na.htm\r\n     # Host: h\r\nb.htm\r\nc.htm\r\n#\r\n";
    int imported = 0;
    for (int round = 0; round < 200; ++round) {
        const std::string first(1, static_cast<char>(round));
        if (round < 100) imported += fuzz::keywords(first + disturbed(good));
        fuzz::page_names(first + disturbed(names));
    }
    EXPECT_GT(imported, 60);
}

} // namespace
} // namespace twk::test

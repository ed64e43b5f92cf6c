// SPDX-License-Identifier: MIT
#include "engine/text_toolkit.h"
#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/faults.h"
#include "platform/text.h"

#include <gtest/gtest.h>

namespace twk::test {

TEST(Chance, IsTheKnownSequenceAndKeepsAFixedSeed) {
    Chance chance;
    // x0 = 0x50000, the state that a fresh generator is known to start from
    EXPECT_NEAR(chance.Rnd(), 0.7055475, 1e-7);
    EXPECT_NEAR(chance.Rnd(), 0.5334240, 1e-7);
    EXPECT_NEAR(chance.Rnd(), 0.5795186, 1e-7);
    Chance seeded, wrapped;
    seeded.fix_seed(5);
    wrapped.fix_seed((std::uint64_t{1} << 24) + 5);
    for (int i = 0; i < 100; ++i) {
        seeded.Randomize();
        const double draw = seeded.Rnd();
        EXPECT_EQ(draw, wrapped.Rnd());
        EXPECT_TRUE(draw >= 0 && draw < 1);
    }
}

TEST(Utf8, GoesBothWaysAndMarksWhatIsNone) {
    const Text text = u"a\u00e9\u20ac\U0001F600z";
    EXPECT_EQ(from_utf8(to_utf8(text)), text);
    EXPECT_EQ(to_utf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(to_utf8(Text(1, u'\xD83D')), "\xEF\xBF\xBD");
    EXPECT_EQ(from_utf8("a\xC3"), u"a\uFFFD");
    for (const char* const bad :
         {"\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xC3(", "\xE2\x82"})
        EXPECT_FALSE(is_utf8(bad)) << testing::PrintToString(bad);
    EXPECT_TRUE(is_utf8("\xC3\xA9"));
}

TEST(Draws, OfNothingTakeNoChance) {
    chance().fix_seed(5);
    Chance same;
    same.fix_seed(5);
    EXPECT_EQ(xrnum(0), 0);
    EXPECT_EQ(xrnum(1000), static_cast<int>(same.Rnd() * 1000));
    EXPECT_EQ(chance().Rnd(), same.Rnd());
    chance() = {};
}

TEST(Clock, TellsDateAndTimeInItsOwnWords) {
    const auto at = [](int hour) {
        set_clock(std::make_shared<FixedClock>(LocalTime{2026, 2, 3, hour, 4, 5, 500}));
        Text text = ahora();
        return text;
    };
    EXPECT_EQ(at(0), u"03/02/2026 12:04:05 a.m.");
    EXPECT_EQ(at(11), u"03/02/2026 11:04:05 a.m.");
    EXPECT_EQ(at(12), u"03/02/2026 12:04:05 p.m.");
    EXPECT_EQ(at(23), u"03/02/2026 11:04:05 p.m.");
    EXPECT_EQ(clock().Timer(), 23 * 3600 + 245.5);
    set_clock(nullptr);
}

} // namespace twk::test

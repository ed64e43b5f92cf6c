// SPDX-License-Identifier: MIT
#include "platform/chance.h"
#include "platform/clock.h"
#include "platform/faults.h"
#include "platform/numbers.h"
#include "support/faults.h"

#include <gtest/gtest.h>

namespace twk::test {

TEST(CInt, RoundsHalvesToEvenAndHoldsSixteenBits) {
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-1.5), -2);
    EXPECT_EQ(CInt(32767.49), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_EQ(fault_of([] { CInt(32767.5); }), fault_overflow);
    EXPECT_EQ(fault_of([] { CInt(u"99999"); }), fault_overflow);
    EXPECT_EQ(CLng(99999.5), 100000);
    EXPECT_EQ(fault_of([] { CLng(3e9); }), fault_overflow);
}

TEST(NumbersFromText, TakeWhatIsANumberAndNothingElse) {
    EXPECT_EQ(CInt(u" 12 "), 12);
    EXPECT_EQ(CInt(u"-3.5"), -4);
    EXPECT_EQ(CDbl(u"0,0001"), 0.0001);
    EXPECT_EQ(CDbl(u"+1e2"), 100);
    EXPECT_EQ(CDbl(u".5"), 0.5);
    for (const char16_t* const text :
         {u"", u" ", u"abc", u"12a", u"1 2", u"--1", u"+-1", u".", u"inf", u"nan", u"1,2,3", u"1\u0660"}) {
        EXPECT_EQ(fault_of([text] { CInt(TextView(text)); }), fault_type) << to_utf8(text);
        EXPECT_FALSE(IsNumeric(text)) << to_utf8(text);
    }
    EXPECT_TRUE(IsNumeric(u"7"));
}

TEST(Val, ReadsTheNumberATextBeginsWith) {
    EXPECT_EQ(Val(u"  12 % of all"), 12);
    EXPECT_EQ(Val(u"1 2 3"), 123);
    EXPECT_EQ(Val(u"3,7"), 3);
    EXPECT_EQ(Val(u"-4.5x"), -4.5);
    EXPECT_EQ(Val(u"abc"), 0);
    EXPECT_EQ(Val(u""), 0);
    EXPECT_EQ(Val(u"infinite"), 0);
    EXPECT_EQ(Val(u"+5"), 5);
}

TEST(NumbersToText, AreTheShortestDecimal) {
    EXPECT_EQ(to_text(0.1), u"0.1");
    EXPECT_EQ(to_text(-0.0), u"0");
    EXPECT_EQ(to_text(3.0), u"3");
    EXPECT_EQ(to_text(0.1F), u"0.1");
    EXPECT_EQ(to_text(1234567), u"1234567");
    EXPECT_EQ(to_text(-0.25), u"-0.25");
}

TEST(Format, KeepsThePointAndMarksThousands) {
    EXPECT_EQ(Format(3, u"##.##"), u"3.");
    EXPECT_EQ(Format(0, u"##.##"), u".");
    EXPECT_EQ(Format(0.5, u"##.##"), u".5");
    EXPECT_EQ(Format(2.345, u"##.##"), u"2.35"); // as the decimal text shows it
    EXPECT_EQ(Format(9.999, u"##.##"), u"10.");
    EXPECT_EQ(Format(-1.25, u"##.##"), u"-1.25");
    EXPECT_EQ(Format(0, u"###,0"), u"0");
    EXPECT_EQ(Format(999.5, u"###,0"), u"1,000");
    EXPECT_EQ(Format(1234567, u"###,0"), u"1,234,567");
    EXPECT_EQ(fault_of([] { Format(1, u"0.0"); }), fault_argument);
}

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

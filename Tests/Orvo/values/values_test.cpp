#include <limits>

#include <gtest/gtest.h>

#include "Orvo/values/ansi.h"
#include "Orvo/values/arithmetic.h"
#include "Orvo/values/integer_array.h"
#include "Orvo/values/text.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

TEST(RoundingTest, GoesToTheNearestAndHalfwayToTheEven) {
    EXPECT_EQ(roundToInteger(9.5), 10);
    EXPECT_EQ(roundToInteger(8.5), 8);
    EXPECT_EQ(roundToInteger(-2.5), -2);
    EXPECT_EQ(roundToInteger(-3.5), -4);
    EXPECT_EQ(roundToInteger(32767.4), 32767);
    EXPECT_EQ(errorOf([] { roundToInteger(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { roundToInteger(-32768.6); }), 6);
    EXPECT_EQ(errorOf([] { roundToInteger(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorOf([] { roundToLong(2147483647.5); }), 6);
}

TEST(NumericValueTest, TakesPlainNumbersAndNothingElse) {
    EXPECT_EQ(numericValue(u" +12.50 "), 12.5);
    EXPECT_EQ(numericValue(u"-.5e1"), -5);
    for (const auto* text :
         {u"", u" ", u"-", u"--1", u"1 2", u"1,5", u"inf", u"nan", u"0x1", u"١"}) {
        EXPECT_EQ(errorOf([&] { numericValue(text); }), 13) << toUtf8(text);
    }
    EXPECT_EQ(errorOf([] { numericValue(u"1e999"); }), 6);
}

TEST(ConversionTest, OfNothingGivesZeroAndNoText) {
    EXPECT_EQ(convert({}, ValueType::integer), Value(Integer{0}));
    EXPECT_EQ(convert({}, ValueType::string), Value(String()));
}

TEST(Utf8Test, RoundTripsTextAndReplacesWhatIsNone) {
    const String text = u"a" + String(1, u'\0') + u" è € \U0001F50A";
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    EXPECT_EQ(toUtf8(u"\xD83D!"), "\uFFFD!");
    EXPECT_EQ(fromUtf8("\xC0\xAF|\xE2\x82|\xFF"), u"\uFFFD|\uFFFD|\uFFFD");
    EXPECT_EQ(fromUtf8("\xED\xA0\x80"), u"\uFFFD");
}

TEST(AnsiTest, IsCodePage1252) {
    EXPECT_EQ(toAnsi(u"È €\u0081 Ω \U0001F50A"), "\xC8 \x80\x81 ? ?");
    EXPECT_EQ(fromAnsi("\x80\xE8\x9F\x81"), u"€èŸ\u0081");
}

TEST(IntegerArrayTest, KeepsItsBounds) {
    EXPECT_EQ(IntegerArray(-1, {1, 2, 3}).bounds(), (IntegerArray::Bounds{-1, 1}));
    EXPECT_EQ(errorOf([] { static_cast<void>(IntegerArray().bounds()); }), 9);
    const IntegerArray grid(std::vector<IntegerArray::Bounds>{{0, 2}, {1, 4}});
    EXPECT_EQ(grid.elements().size(), 12U);
    EXPECT_EQ(grid.bounds(2), (IntegerArray::Bounds{1, 4}));
    EXPECT_EQ(errorOf([&] { static_cast<void>(grid.bounds(3)); }), 9);
    using Dimensions = std::vector<IntegerArray::Bounds>;
    EXPECT_EQ(errorOf([] { IntegerArray(Dimensions{{5, 3}}); }), 5);
    EXPECT_EQ(errorOf([] { IntegerArray(Dimensions{{0, 65535}, {0, 65535}}); }), 6);
    EXPECT_EQ(errorOf([] { IntegerArray(2147483647, {1, 2}); }), 5);
}

}  // namespace
}  // namespace Orvo::Tests

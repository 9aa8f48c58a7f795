#include "common/text/Numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <initializer_list>
#include <limits>
#include <random>

#include "common/RunTimeError.h"

namespace morvane::common {
namespace {

constexpr double kMost = std::numeric_limits<double>::max();

TEST(Numbers, PrefixParseTakesTheLongestNumber) {
  using Case = std::pair<std::string, double>;
  const auto expect = [](std::initializer_list<Case> cases) {
    for (const auto& [text, value] : cases) EXPECT_EQ(ParseNumber(text), value) << text;
  };
  expect({Case{"", 0}, Case{"abc", 0}, Case{"12", 12}, Case{"  12.5abc", 12.5}, Case{"-3", -3}, Case{"+4", 4},
          Case{"+-4", 0}, Case{"--4", 0}, Case{".5", .5}, Case{"-.5", -.5}, Case{".", 0}, Case{"-", 0},
          Case{"5.", 5}, Case{"1.2.3", 1.2}, Case{"1,5", 1}, Case{"1 2", 1}});
  expect({Case{"1e3", 1000}, Case{"1E-2", .01}, Case{"1e", 1}, Case{"1e+", 1}, Case{"2e3x", 2000},
          Case{"e5", 0}, Case{"1e-400", 0}, Case{"1e400", kMost}, Case{"-1e999999999999999999999", -kMost},
          Case{"1e-999999999999999999999", 0}, Case{"0.000e400", 0},
          Case{"0." + std::string(500, '0') + "1", 0}, Case{"1" + std::string(500, '0'), kMost}});
  expect({Case{"&H1F", 31}, Case{"&hff", 255}, Case{"&HG", 0}, Case{"&H", 0}, Case{"&", 0}, Case{" &H10", 16},
          Case{"&H4G", 4}, Case{"0x10", 0}, Case{"nan", 0}, Case{"inf", 0}, Case{"-inf", 0},
          Case{"infinity", 0}});
}

TEST(Numbers, FieldsHoldTheirLimitsAndRoundTiesToEven) {
  struct Case {
    const char* text;
    int i16, i32;
  };
  for (const auto& [text, i16, i32] :
       {Case{"0.5", 0, 0}, Case{"1.5", 2, 2}, Case{"2.5", 2, 2}, Case{"-0.5", 0, 0}, Case{"-1.5", -2, -2},
        Case{"32767.4", 32767, 32767}, Case{"32768", 32767, 32768}, Case{"-99999", -32768, -99999},
        Case{"1e308", 32767, 2147483647}, Case{"-1e308", -32768, std::numeric_limits<int>::min()}}) {
    EXPECT_EQ(ParseInt16(text), i16) << text;
    EXPECT_EQ(ParseInt32(text), i32) << text;
  }
  EXPECT_EQ(ParseSingle("1e308"), std::numeric_limits<float>::max());
  EXPECT_EQ(ParseSingle("-1e308"), std::numeric_limits<float>::lowest());
}

TEST(Numbers, PlainNumberHasSevenSignificantDigits) {
  using Case = std::pair<float, const char*>;
  for (const auto& [value, text] :
       {Case{0, "0"}, Case{-0.0F, "0"}, Case{.125F, "0.125"}, Case{-1.5F, "-1.5"}, Case{0.1F, "0.1"},
        Case{1 / 3.0F, "0.3333333"}, Case{1234567, "1234567"}, Case{12345678, "1.234568E+07"},
        Case{1e10F, "1E+10"}, Case{0.0001F, "0.0001"}, Case{100000, "100000"}, Case{99.99999F, "99.99999"}}) {
    EXPECT_EQ(PlainNumber(value), text);
  }
}

TEST(Numbers, Pictures) {
  using Case = std::pair<double, std::string>;
  const auto expect = [](const char* picture, std::initializer_list<Case> cases) {
    for (const auto& [value, text] : cases) EXPECT_EQ(FormatPicture(value, picture), text) << picture;
  };
  expect("0.000", {Case{-0.5, "-0.500"}, Case{0.0625, "0.063"}, Case{-0.0625, "-0.063"},
                   Case{-0.0001, "0.000"}, Case{99.9999, "100.000"}});
  expect("0.00##", {{1.5, "1.50"}, {1.2345, "1.2345"}, {1.23456, "1.2346"}, {0, "0.00"}});
  expect("#.###", {{0.5, ".5"}, {5.25, "5.25"}, {-0.5, "-.5"}});
  expect(".##", {{0.25, ".25"}, {12.5, "12.5"}});
  expect("00.0", {{3.14, "03.1"}, {123, "123.0"}});
  expect("0", {{2.5, "3"}, {-2.5, "-3"}});
  expect("###", {{7, "7"}, {0, ""}});
  expect("0.00", {{1.005, "1.00"}});
  expect("0.0 mm", {{2.5, "2.5 mm"}});
  expect("#,##0.00", {{1234.5, "1234.50"}});
  expect("", {{1.5, "1.5"}});
  expect("abc", {{1, "abc"}});
  EXPECT_EQ(FormatPicture(0.5, "0." + std::string(5000, '0')).size(), 62U);
}

TEST(Numbers, StrictConversionsFail) {
  EXPECT_EQ(StrictSingle(" 12.5 "), 12.5F);
  for (const char* bad : {"", "abc", "1x", "nan", "1 2", "1e39"}) {
    EXPECT_THROW(StrictSingle(bad), RunTimeError) << bad;
  }
  EXPECT_TRUE(StrictBoolean("true") && StrictBoolean("-1") && !StrictBoolean("False"));
  EXPECT_THROW(StrictBoolean("yes"), RunTimeError);
}

// Plain decimals take a short way of their own: it must round and stop as from_chars does.
TEST(Numbers, PlainDecimalsReadAsFromCharsDoes) {
  std::mt19937 random(7);
  const std::string_view alphabet = "01234567899..eEY -";
  for (int i = 0; i < 200000; ++i) {
    std::string text = std::to_string(random() % 10);
    for (auto length = random() % 20; length > 0; --length) text += alphabet[random() % alphabet.size()];
    double expected = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), expected);
    if (error != std::errc()) continue;
    std::size_t end = 0;
    ASSERT_EQ(ParseNumber(text, end), expected) << text;
    ASSERT_EQ(end, static_cast<std::size_t>(stop - text.data())) << text;
    ASSERT_EQ(ParseNumber('-' + text), -expected) << text;
  }
}

}  // namespace
}  // namespace morvane::common

#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>
#include <random>

#include "common/RunTimeError.h"

namespace morvane::common {
namespace {

constexpr double kMost = std::numeric_limits<double>::max();

TEST(Numbers, PrefixParseTakesTheLongestNumber) {
  using Case = std::pair<std::string, double>;
  for (const auto& [text, value] : {Case{"", 0},
                                    Case{"abc", 0},
                                    Case{"12", 12},
                                    Case{"  12.5abc", 12.5},
                                    Case{"-3", -3},
                                    Case{"+4", 4},
                                    Case{"+-4", 0},
                                    Case{"--4", 0},
                                    Case{".5", .5},
                                    Case{"-.5", -.5},
                                    Case{".", 0},
                                    Case{"-", 0},
                                    Case{"5.", 5},
                                    Case{"1.2.3", 1.2},
                                    Case{"1,5", 1},
                                    Case{"1e3", 1000},
                                    Case{"1E-2", .01},
                                    Case{"1e", 1},
                                    Case{"1e+", 1},
                                    Case{"2e3x", 2000},
                                    Case{"e5", 0},
                                    Case{"1 2", 1},
                                    Case{"&H1F", 31},
                                    Case{"&hff", 255},
                                    Case{"&HG", 0},
                                    Case{"&H", 0},
                                    Case{"&", 0},
                                    Case{" &H10", 16},
                                    Case{"&H4G", 4},
                                    Case{"nan", 0},
                                    Case{"inf", 0},
                                    Case{"-inf", 0},
                                    Case{"infinity", 0},
                                    Case{"0x10", 0},
                                    Case{"1e-400", 0},
                                    Case{"1e400", kMost},
                                    Case{"-1e999999999999999999999", -kMost},
                                    Case{"1e-999999999999999999999", 0},
                                    Case{"0.000e400", 0},
                                    Case{"0." + std::string(500, '0') + "1", 0},
                                    Case{"1" + std::string(500, '0'), kMost}}) {
    EXPECT_EQ(ParseNumber(text), value) << text;
  }
}

TEST(Numbers, FieldsHoldTheirLimitsAndRoundTiesToEven) {
  const struct {
    const char* text;
    int i16, i32;
  } cases[] = {{"0.5", 0, 0},
               {"1.5", 2, 2},
               {"2.5", 2, 2},
               {"-0.5", 0, 0},
               {"-1.5", -2, -2},
               {"32767.4", 32767, 32767},
               {"32768", 32767, 32768},
               {"-99999", -32768, -99999},
               {"1e308", 32767, 2147483647},
               {"-1e308", -32768, std::numeric_limits<int>::min()}};
  for (const auto& c : cases) {
    EXPECT_EQ(ParseInt16(c.text), c.i16) << c.text;
    EXPECT_EQ(ParseInt32(c.text), c.i32) << c.text;
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
  struct Case {
    const char* picture;
    double value;
    const char* text;
  };
  for (const auto& [picture, value, text] : {Case{"0.000", 1.25, "1.250"},
                                             Case{"0.000", -0.5, "-0.500"},
                                             Case{"0.000", 0.0625, "0.063"},
                                             Case{"0.000", -0.0625, "-0.063"},
                                             Case{"0.000", -0.0001, "0.000"},
                                             Case{"0.000", 0.9996, "1.000"},
                                             Case{"0.000", 99.9999, "100.000"},
                                             Case{"0.00##", 1.5, "1.50"},
                                             Case{"0.00##", 1.2345, "1.2345"},
                                             Case{"0.00##", 1.23456, "1.2346"},
                                             Case{"0.00##", 0, "0.00"},
                                             Case{"#.###", 0.5, ".5"},
                                             Case{"#.###", 5.25, "5.25"},
                                             Case{"#.###", -0.5, "-.5"},
                                             Case{".##", 0.25, ".25"},
                                             Case{".##", 12.5, "12.5"},
                                             Case{"00.0", 3.14, "03.1"},
                                             Case{"00.0", 123, "123.0"},
                                             Case{"0", 2.5, "3"},
                                             Case{"0", -2.5, "-3"},
                                             Case{"###", 7, "7"},
                                             Case{"###", 0, ""},
                                             Case{"", 1.5, "1.5"},
                                             Case{"0.0 mm", 2.5, "2.5 mm"},
                                             Case{"0.00", 1.005, "1.00"},
                                             Case{"abc", 1, "abc"},
                                             Case{"#,##0.00", 1234.5, "1234.50"}}) {
    EXPECT_EQ(FormatPicture(value, picture), text) << value << " " << picture;
  }
  EXPECT_EQ(FormatPicture(1e300, "0.000").size(), 305U);
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

#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>
#include <random>

#include "common/RunTimeError.h"

namespace morvane::common {
namespace {

TEST(Numbers, PrefixParseTakesTheLongestNumber) {
  const struct {
    const char* text;
    double value;
  } cases[] = {
      {"", 0},
      {"abc", 0},
      {"12", 12},
      {"  12.5abc", 12.5},
      {"-3", -3},
      {"+4", 4},
      {"+-4", 0},
      {"--4", 0},
      {".5", .5},
      {"-.5", -.5},
      {".", 0},
      {"-", 0},
      {"5.", 5},
      {"1.2.3", 1.2},
      {"1,5", 1},
      {"1e3", 1000},
      {"1E-2", .01},
      {"1e", 1},
      {"1e+", 1},
      {"2e3x", 2000},
      {"e5", 0},
      {"1 2", 1},
      {"&H1F", 31},
      {"&hff", 255},
      {"&HG", 0},
      {"&H", 0},
      {"&", 0},
      {" &H10", 16},
      {"&H4G", 4},
      {"nan", 0},
      {"inf", 0},
      {"-inf", 0},
      {"infinity", 0},
      {"0x10", 0},
      {"1e-400", 0},
      {"1e400", std::numeric_limits<double>::max()},
      {"-1e999999999999999999999", std::numeric_limits<double>::lowest()},
      {"1e-999999999999999999999", 0},
      {"0.000e400", 0},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseNumber(c.text), c.value) << c.text;
  const std::string tiny = "0." + std::string(500, '0') + "1";
  EXPECT_EQ(ParseNumber(tiny), 0);
  EXPECT_EQ(ParseNumber("1" + std::string(500, '0')), std::numeric_limits<double>::max());
}

TEST(Numbers, FieldsHoldTheirLimitsAndRoundTiesToEven) {
  const struct {
    const char* text;
    int i16;
    int i32;
  } cases[] = {
      {"0.5", 0, 0},
      {"1.5", 2, 2},
      {"2.5", 2, 2},
      {"-0.5", 0, 0},
      {"-1.5", -2, -2},
      {"32767.4", 32767, 32767},
      {"32768", 32767, 32768},
      {"-99999", -32768, -99999},
      {"1e308", 32767, 2147483647},
      {"-1e308", -32768, std::numeric_limits<int>::min()},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParseInt16(c.text), c.i16) << c.text;
    EXPECT_EQ(ParseInt32(c.text), c.i32) << c.text;
  }
  EXPECT_EQ(ParseSingle("1e308"), std::numeric_limits<float>::max());
  EXPECT_EQ(ParseSingle("-1e308"), std::numeric_limits<float>::lowest());
}

TEST(Numbers, PlainNumberHasSevenSignificantDigits) {
  const struct {
    float value;
    const char* text;
  } cases[] = {
      {0, "0"},
      {-0.0F, "0"},
      {.125F, "0.125"},
      {-1.5F, "-1.5"},
      {1, "1"},
      {0.1F, "0.1"},
      {1 / 3.0F, "0.3333333"},
      {1234567, "1234567"},
      {12345678, "1.234568E+07"},
      {1e10F, "1E+10"},
      {0.0001F, "0.0001"},
      {100000, "100000"},
      {99.99999F, "99.99999"},
  };
  for (const auto& c : cases) EXPECT_EQ(PlainNumber(c.value), c.text);
}

TEST(Numbers, Pictures) {
  const struct {
    double value;
    const char* picture;
    const char* text;
  } cases[] = {
      {1.25, "0.000", "1.250"},
      {-0.5, "0.000", "-0.500"},
      {0.0625, "0.000", "0.063"},
      {-0.0625, "0.000", "-0.063"},
      {-0.0001, "0.000", "0.000"},
      {0.9996, "0.000", "1.000"},
      {99.9999, "0.000", "100.000"},
      {1.5, "0.00##", "1.50"},
      {1.2345, "0.00##", "1.2345"},
      {1.23456, "0.00##", "1.2346"},
      {0, "0.00##", "0.00"},
      {0.5, "#.###", ".5"},
      {5.25, "#.###", "5.25"},
      {-0.5, "#.###", "-.5"},
      {0.25, ".##", ".25"},
      {12.5, ".##", "12.5"},
      {3.14, "00.0", "03.1"},
      {123, "00.0", "123.0"},
      {2.5, "0", "3"},
      {-2.5, "0", "-3"},
      {7, "###", "7"},
      {0, "###", ""},
      {1.5, "", "1.5"},
      {2.5, "0.0 mm", "2.5 mm"},
      {1.005, "0.00", "1.00"},
      {1, "abc", "abc"},
      {1234.5, "#,##0.00", "1234.50"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FormatPicture(c.value, c.picture), c.text) << c.value << " " << c.picture;
  EXPECT_EQ(FormatPicture(1e300, "0.000").size(), 305U);
  EXPECT_EQ(FormatPicture(0.5, "0." + std::string(5000, '0')).size(), 62U);
}

TEST(Numbers, StrictConversionsFail) {
  EXPECT_EQ(StrictSingle(" 12.5 "), 12.5F);
  for (const char* bad : {"", "abc", "1x", "nan", "1 2"})
    EXPECT_THROW(StrictSingle(bad), RunTimeError) << bad;
  EXPECT_THROW(StrictSingle("1e39"), RunTimeError);
  EXPECT_TRUE(StrictBoolean("true"));
  EXPECT_FALSE(StrictBoolean("False"));
  EXPECT_TRUE(StrictBoolean("-1"));
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

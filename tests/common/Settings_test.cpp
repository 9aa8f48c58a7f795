#include "common/Settings.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/FakeFileSystem.h"

namespace morvane::common {
namespace {

using Table = std::vector<std::pair<std::string, std::string>>;
constexpr const char* kIni = "/base/Morvane.ini";

class SettingsTest : public ::testing::Test {
 protected:
  std::string SavedTo(const std::string& before, const std::vector<SettingChange>& changes) {
    disk_.Put(kIni, before);
    settings_.Apply(changes);
    return disk_.Get(kIni);
  }

  test::FakeFileSystem disk_;
  Files files_{disk_, "/base"};
  Settings settings_{files_};
};

TEST(SettingsSnapshot, ReadsOneKey) {
  const std::string bytes =
      "\xEF\xBB\xBF[First]\r\nlost\r\n"
      "; [Settings]\r\n"
      " [ settings ] trailing\r\n"
      "IP = 1.2.3.4 \r\n"
      ";Units=mm\r\n"
      "units=in\n"
      "UNITS=again\r"
      "Quoted=\" a b \"\r\nSingle='x'\r\nHalf=\"x\r\nLone=\"\r\nTwice=\"\"x\"\"\r\n"
      "Equals=a=b;c\r\na=b.bmp=1,2\r\nWord\r\nEmpty=\r\n"
      "Long=" +
      std::string(300, 'x') +
      "\r\n"
      "[Machines]\r\nIP=9\r\n[Settings]\r\nLate=1\r\n[Open\r\nA=1";
  const SettingsSnapshot snapshot(bytes);
  struct Case {
    const char* section;
    const char* key;
    std::string value;
  };
  const Case cases[] = {{"SETTINGS", "ip", "1.2.3.4"},
                        {"Settings", "Units", "in"},
                        {"Settings", ";Units", "none"},
                        {"Settings", "Quoted", " a b "},
                        {"Settings", "Single", "x"},
                        {"Settings", "Half", "\"x"},
                        {"Settings", "Lone", "\""},
                        {"Settings", "Twice", "\"x\""},
                        {"Settings", "Equals", "a=b;c"},
                        {"Settings", "A=B.BMP", "1,2"},
                        {"Settings", "Word", "none"},
                        {"Settings", "Empty", ""},
                        {"Settings", "Long", std::string(255, 'x')},
                        {"Settings", "Late", "none"},
                        {"Settings", "Lost", "none"},
                        {"First", "lost", "none"},
                        {"machines", "IP", "9"},
                        {"Open", "A", "1"},
                        {"None", "IP", "none"}};
  for (const Case& c : cases) EXPECT_EQ(snapshot.Get(c.section, c.key, "none"), c.value) << c.key;
  EXPECT_EQ(snapshot.Number("Settings", "IP", "5"), 1.2);
  EXPECT_EQ(snapshot.Number("Settings", "GridSpacing", "5"), 5);
}

TEST(SettingsSnapshot, ListsASectionAsFarAsItsEntriesGo) {
  struct Case {
    std::string lines;
    Table table;
  };
  const Case cases[] = {{"A = 1 \r\n\r\n;C=1\r\nB=\"2\"\r\n[Other]\r\nC=3", {{"A", "1"}, {"B", "\"2\""}}},
                        {"A=1=2\r\nB=3;4\r\n", {{"A", "1"}, {"B", "3"}, {"4", ""}}},
                        {"A=1;;\r\nB=2", {{"A", "1"}}},
                        {"A=;x\r\nB=2", {{"A", ""}, {"x", ""}, {"B", "2"}}},
                        {"Word\r\n=3\r\nB==2", {{"Word", ""}, {"B", ""}}},
                        {std::string("A=1\0B=2\0\0C=3", 13), {{"A", "1"}, {"B", "2"}}},
                        {"", {}}};
  for (const Case& c : cases) {
    EXPECT_EQ(SettingsSnapshot("[Machines]\r\n" + c.lines).GetAll("machines"), c.table) << c.lines;
  }
  // The 10240th character is the last that is read.
  const std::string text = "[M]\nA=" + std::string(10230, 'x') + "\nB=12345678\nC=3";
  EXPECT_EQ(SettingsSnapshot(text).GetAll("M").back(),
            std::make_pair(std::string("B"), std::string("12345")));
}

TEST_F(SettingsTest, WritesChangeNothingElse) {
  struct Case {
    const char* before;
    SettingChange change;
    const char* after;
  };
  const Case cases[] = {
      {"", {"S", "K", "1"}, "[S]\r\nK=1\r\n"},
      {"; c\n[T]\nx", {"S", "K", "1"}, "; c\n[T]\nx\r\n[S]\r\nK=1\r\n"},
      {"[S]\r\nA=1\r\n\r\n \r\n[T]\r\n", {"s", "K", "1"}, "[S]\r\nA=1\r\nK=1\r\n\r\n \r\n[T]\r\n"},
      {"[S]", {"S", "K", "1"}, "[S]\r\nK=1\r\n"},
      {"[S]\n;K=0\nk = \"old\" \nK=2\n", {"S", "K", "new"}, "[S]\n;K=0\nk = new \nK=2\n"},
      {"[S]\nK=\n", {"S", "K", "1"}, "[S]\nK=1\n"},
      {"[S]\nK=1\n", {"S", "K", ""}, "[S]\nK=\n"},
      {"[S]\nK=1\nL=2", {"S", "k", "", true}, "[S]\nL=2"},
      {"[S]\nK=1\nL=2", {"S", "l", "", true}, "[S]\nK=1\n"},
      {"[S]\nK=1", {"T", "K", "", true}, "[S]\nK=1"},
      {"[S]\na=b.bmp=1\n", {"S", "A=B.bmp", "2"}, "[S]\na=b.bmp=2\n"},
      {"[S]\n", {"S", "K\r\n", "1\r\n[T]\tx"}, "[S]\nK=1[T]x\r\n"},
      {"[S]\nlong key=1\n", {"S", "long", "2"}, "[S]\nlong key=1\nlong=2\r\n"}};
  for (const Case& c : cases) EXPECT_EQ(SavedTo(c.before, {c.change}), c.after) << c.before;
}

TEST_F(SettingsTest, RefusesWhatTheFileCannotHold) {
  const SettingChange cases[] = {{"S", "", "1"},      {"S", " ", "1"}, {"S", ";K", "1"}, {"S", "[K]", "1"},
                                 {"S", "\n[K]", "1"}, {"", "K", "1"},  {"S]", "K", "1"}, {"S", "=K", "1"}};
  for (const SettingChange& change : cases) {
    EXPECT_THROW(settings_.Apply({{"S", "First", "1"}, change}), RunTimeError) << change.key;
    EXPECT_FALSE(disk_.Has(kIni));
  }
}

TEST_F(SettingsTest, DefaultsStandWithoutAFile) {
  EXPECT_EQ(settings_.GetSetting("Settings", "ComPort", "1"), "1");
  EXPECT_EQ(settings_.UnitsFormatText(), "0.000");
  EXPECT_TRUE(settings_.GetAllSettings("Machines").empty());
  settings_.DeleteSetting("Settings", "ComPort");
  EXPECT_FALSE(disk_.Has(kIni));
  settings_.SaveSetting("Settings", "UnitsFormat", "0.00");
  EXPECT_EQ(settings_.UnitsFormatText(), "0.00");
}

TEST_F(SettingsTest, AFailedWriteKeepsTheOldFile) {
  const std::string before = "[Settings]\r\nComPort=5\r\n";
  disk_.Put(kIni, before);
  disk_.faults.bytesLeft = 10;
  EXPECT_THROW(settings_.SaveSetting("Settings", "IP", "1.2.3.4"), RunTimeError);
  disk_.faults = {};
  disk_.faults.read = platform::Error::DeviceError;
  EXPECT_THROW(settings_.SaveSetting("Settings", "IP", "1.2.3.4"), RunTimeError);
  EXPECT_EQ(settings_.GetSetting("Settings", "ComPort", "1"), "1");
  EXPECT_EQ(disk_.Get(kIni), before);
}

}  // namespace
}  // namespace morvane::common

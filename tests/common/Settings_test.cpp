#include "common/Settings.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/BaseStation.h"

namespace morvane::common {
namespace {

constexpr const char* kIni = "/base/Morvane.ini";

class SettingsTest : public testing::Test, public test::BaseStation {
 protected:
};

TEST(SettingsSnapshot, ReadsOneKey) {
  const std::string bytes =
      "\xEF\xBB\xBF[First]\r\nlost\r\n; [Settings]\r\n [ settings ] trailing\r\nIP = 1.2.3.4 "
      "\r\n;Units=mm\r\n"
      "units=in\nUNITS=again\rQuoted=\" a b \"\r\nSingle='x'\r\nHalf=\"x\r\nLone=\"\r\nTwice=\"\"x\"\"\r\n"
      "Equals=a=b;c\r\na=b.bmp=1,2\r\nWord\r\nEmpty=\r\nLong=" +
      std::string(300, 'x') + "\r\n[Machines]\r\nIP=9\r\n[Settings]\r\nLate=1\r\n[Open\r\nA=1";
  const SettingsSnapshot snapshot(bytes);
  using Case = std::pair<const char*, std::string>;
  for (const auto& [key, value] :
       {Case{"ip", "1.2.3.4"}, Case{"Units", "in"}, Case{";Units", "none"}, Case{"Quoted", " a b "},
        Case{"Single", "x"}, Case{"Half", "\"x"}, Case{"Lone", "\""}, Case{"Twice", "\"x\""},
        Case{"Equals", "a=b;c"}, Case{"A=B.BMP", "1,2"}, Case{"Word", "none"}, Case{"Empty", ""},
        Case{"Long", std::string(255, 'x')}, Case{"Late", "none"}, Case{"Lost", "none"}}) {
    EXPECT_EQ(snapshot.Get("SETTINGS", key, "none"), value) << key;
  }
  EXPECT_EQ(snapshot.Get("First", "lost", "none") + snapshot.Get("None", "IP", "none"), "nonenone");
  EXPECT_EQ(snapshot.Get("machines", "IP", "none") + snapshot.Get("Open", "A", "none"), "91");
  EXPECT_EQ(snapshot.Number("Settings", "IP", "5"), 1.2);
  EXPECT_EQ(snapshot.Number("Settings", "GridSpacing", "5"), 5);
}

TEST(SettingsSnapshot, ListsASectionAsFarAsItsEntriesGo) {
  using Table = std::vector<std::pair<std::string, std::string>>;
  using Case = std::pair<std::string, Table>;
  for (const auto& [lines, table] :
       {Case{"A = 1 \r\n\r\n;C=1\r\nB=\"2\"\r\n[Other]\r\nC=3", {{"A", "1"}, {"B", "\"2\""}}},
        Case{"A=1=2\r\nB=3;4\r\n", {{"A", "1"}, {"B", "3"}, {"4", ""}}}, Case{"A=1;;\r\nB=2", {{"A", "1"}}},
        Case{"A=;x\r\nB=2", {{"A", ""}, {"x", ""}, {"B", "2"}}},
        Case{"Word\r\n=3\r\nB==2", {{"Word", ""}, {"B", ""}}},
        Case{{"A=1\0B=2\0\0C=3", 13}, {{"A", "1"}, {"B", "2"}}}, Case{}}) {
    EXPECT_EQ(SettingsSnapshot("[Machines]\r\n" + lines).GetAll("machines"), table) << lines;
  }
  // The 10240th character is the last that is read.
  const std::string text = "[M]\nA=" + std::string(10230, 'x') + "\nB=12345678\nC=3";
  EXPECT_EQ(SettingsSnapshot(text).GetAll("M").back().second, "12345");
}

TEST_F(SettingsTest, WritesChangeNothingElse) {
  using Case = std::tuple<const char*, SettingChange, const char*>;
  for (const auto& [before, change, after] :
       {Case{"", {"S", "K", "1"}, "[S]\r\nK=1\r\n"},
        Case{"; c\n[T]\nx", {"S", "K", "1"}, "; c\n[T]\nx\r\n[S]\r\nK=1\r\n"},
        Case{"[S]\r\nA=1\r\n\r\n \r\n[T]\r\n", {"s", "K", "1"}, "[S]\r\nA=1\r\nK=1\r\n\r\n \r\n[T]\r\n"},
        Case{"[S]\n;K=0\nk = \"old\" \nK=2\n", {"S", "K", "new"}, "[S]\n;K=0\nk = new \nK=2\n"},
        Case{"[S]\nK=1\n", {"S", "K", ""}, "[S]\nK=\n"}, Case{"[S]\nK=\n", {"S", "K", "1"}, "[S]\nK=1\n"},
        Case{"[S]\nK=1\nL=2", {"S", "k", "", true}, "[S]\nL=2"},
        Case{"[S]\nK=1\nL=2", {"S", "l", "", true}, "[S]\nK=1\n"},
        Case{"[S]\nK=1", {"T", "K", "", true}, "[S]\nK=1"},
        Case{"[S]\na=b.bmp=1\n", {"S", "A=B.bmp", "2"}, "[S]\na=b.bmp=2\n"},
        Case{"[S]\n", {"S", "K\r\n", "1\r\n[T]\tx"}, "[S]\nK=1[T]x\r\n"},
        Case{"[S]\nlong key=1\n", {"S", "long", "2"}, "[S]\nlong key=1\nlong=2\r\n"}}) {
    disk.Put(kIni, before);
    settings.Apply({change});
    EXPECT_EQ(disk.Get(kIni), after) << before;
  }
}

TEST_F(SettingsTest, RefusesWhatTheFileCannotHold) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [section, key] : {Case{"S", ""}, Case{"S", " "}, Case{"S", ";K"}, Case{"S", "[K]"},
                                     Case{"S", "\n[K]"}, Case{"", "K"}, Case{"S]", "K"}, Case{"S", "=K"}}) {
    EXPECT_THROW(settings.Apply({{"S", "First", "1"}, {section, key, "1"}}), RunTimeError) << key;
    EXPECT_FALSE(disk.Has(kIni));
  }
}

TEST_F(SettingsTest, DefaultsStandWithoutAFile) {
  EXPECT_EQ(settings.GetSetting("Settings", "ComPort", "1"), "1");
  EXPECT_EQ(settings.UnitsFormatText(), "0.000");
  settings.DeleteSetting("Settings", "ComPort");
  EXPECT_FALSE(disk.Has(kIni));
}

TEST_F(SettingsTest, AFailedWriteKeepsTheOldFile) {
  const std::string before = "[Settings]\r\nComPort=5\r\n";
  disk.Put(kIni, before);
  test::FakeFileSystem::Faults full, broken;
  full.bytesLeft = 10;
  broken.read = platform::Error::DeviceError;
  for (const auto& faults : {full, broken}) {
    disk.faults = faults;
    EXPECT_THROW(settings.SaveSetting("Settings", "IP", "1.2.3.4"), RunTimeError);
    EXPECT_EQ(disk.Get(kIni), before);
  }
  EXPECT_EQ(settings.GetSetting("Settings", "ComPort", "1"), "1");
}

}  // namespace
}  // namespace morvane::common

#include <gtest/gtest.h>

#include "common/IniText.h"
#include "common/Settings.h"
#include "support/Mutator.h"

namespace morvane::common {
namespace {

const std::vector<std::string> kSeeds = {
    "[Settings]\r\nImported=1\r\nComPort=5\r\nIP=192.168.0.10\r\nUnitsFormat=0.000\r\nGridSpacing=.5\r\n"
    "MainLeft=1000\r\nLOGO.BMP=0,0,4,4\r\nColor0=16776960\r\n\r\n; machines\r\n[Machines]\r\nM "
    "1=10.0.0.1\r\n",
    "\xEF\xBB\xBF[Machines]\nA=1;B=2=3\n\n[Settings]\nUnits = \" mm \"\n=x\nword\n[Settings]\nUnits=in"};

// Reads as the program does, then writes, and what was written must read back with the rest untouched.
void ReadAndChange(const std::string& bytes) {
  const SettingsSnapshot snapshot(bytes);
  EXPECT_LE(snapshot.Get("Settings", "IP", "").size(), 255u);
  snapshot.Number("Settings", "GridSpacing", "1");
  std::size_t listed = 0;
  for (const auto& [key, value] : snapshot.GetAll("Machines")) listed += key.size() + value.size();
  EXPECT_LE(listed, 10240u);
  const std::string changed = IniWith(bytes, "Settings", "IP", "1.2.3.4");
  EXPECT_EQ(IniValue(changed, "Settings", "IP"), "1.2.3.4");
  const auto units = snapshot.Get("Settings", "Units", "none");
  EXPECT_EQ(SettingsSnapshot(changed).Get("Settings", "Units", "none"), units);
  EXPECT_LE(IniWithout(changed, "Settings", "IP").size(), changed.size());
}

TEST(IniMutation, AnyBytes) {
  test::RunMutations(kSeeds, ReadAndChange);
}

TEST(IniMutation, OneHugeLine) {
  test::RunHugeLine("[Settings]\nIP=", "x", ReadAndChange);
  test::RunHugeLine("", "[", ReadAndChange);
  test::RunHugeLine("[Machines]\n", "a=1\r", ReadAndChange);
}

}  // namespace
}  // namespace morvane::common

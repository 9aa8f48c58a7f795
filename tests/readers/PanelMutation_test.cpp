#include <gtest/gtest.h>

#include "gcode/panel/modPanel.h"
#include "support/Mutator.h"

namespace morvane::gcode::panel {
namespace {

// What was read is written in a form that reads and writes the same.
void Read(const std::string& bytes) {
  const std::string written = FormatPanel(ParsePanel(bytes));
  ASSERT_EQ(FormatPanel(ParsePanel(written)), written);
}

TEST(PanelMutation, AnyBytes) {
  Panel panel;
  panel.Power.fill(50);
  test::RunMutations({FormatPanel(panel)}, Read);
}

TEST(PanelMutation, HugeLines) {
  test::RunHugeLine("", "9", Read);
  test::RunHugeLine("48\n", "\r", Read);
}

}  // namespace
}  // namespace morvane::gcode::panel

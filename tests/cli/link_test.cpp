// The command line's link and job transfers against the simulated controller.
#include <filesystem>

#include "cli/CommandLine.h"
#include "support/Simulator.h"

namespace morvane {
namespace {

const std::string kAddress = test::OwnAddress();

// A base directory that is connected to a machine.
class CliLink : public test::CommandLine {
 protected:
  void Connect(bool network, const test::Simulator& simulator) {
    folder.Write("Morvane.ini", std::string("[Settings]\r\nComPort=") + (network ? "5" : "2") + "\r\nIP=" +
                                    kAddress + "\r\n[SerialDevices]\r\nCOM2=" + simulator.Line() + "\r\n");
  }
};

TEST_F(CliLink, EveryCommandOverBothTransports) {
  const std::string text = "one\r\ntwo \x80\r\n";
  const std::string bytes("\0\xFF\r\n", 4);
  for (const bool network : {false, true}) {
    SCOPED_TRACE(network);
    test::Simulator simulator(kAddress);
    ASSERT_TRUE(simulator.ready);
    Connect(network, simulator);
    folder.Write("A.TXT", text);
    folder.Write("P.RAS", bytes);
    folder.Write("LOGO.JOB", "G0 X1\r\n");
    using Case = std::tuple<const char*, const char*, const char*>;  // said by the machine, printed
    for (const auto& [arguments, said, printed] :
         {Case{"link check", nullptr, nullptr}, Case{"link put A.TXT", "stored A.TXT, 12 bytes", nullptr},
          Case{"link putbin P.RAS", "stored P.RAS, 4 bytes", nullptr},
          Case{"link putjob LOGO.JOB", "stored LOGO.JOB, 7 bytes", nullptr},
          Case{"link files '*.*'", nullptr, "A.TXT\nLOGO.JOB\nP.RAS\n"}, Case{"link jobs", nullptr, "LOGO\n"},
          Case{"link get A.TXT B.TXT", "sent A.TXT", nullptr}, Case{"link run A.TXT", "ran A.TXT", nullptr},
          Case{"link runwait A.TXT", "ran A.TXT", nullptr},
          Case{"link gcode 'G0 X1'", "G-code G0 X1", nullptr},
          Case{"link date", "clock set to 03/09/26 14:05:07", nullptr},
          Case{"link delete P.RAS", "deleted P.RAS", nullptr}}) {
      SCOPED_TRACE(arguments);
      ASSERT_EQ(Run(arguments), 0) << folder.errors;
      EXPECT_TRUE(said == nullptr || simulator.WaitFor(said));
      EXPECT_EQ(out, printed != nullptr ? printed : out);
    }
    EXPECT_EQ(folder.Read("B.TXT"), text);
    EXPECT_EQ(simulator.machine.Read("A.TXT"), text);
    EXPECT_FALSE(std::filesystem::exists(simulator.machine / "P.RAS"));
    EXPECT_EQ(Run("link runwait NONE.TJB 2"), 1);
    EXPECT_EQ(folder.errors, "Morvane: The run did not end well: NONE.TJB\n");
  }
}

TEST_F(CliLink, AJobGoesWithItsFilesAndComesBack) {
  test::Simulator simulator(kAddress);
  ASSERT_TRUE(simulator.ready);
  std::filesystem::copy(MORVANE_SOURCE_DIR "/station", folder.Path());
  Connect(true, simulator);
  ASSERT_EQ(Run("job download SAMPLE.TJB --run"), 0) << folder.errors;
  EXPECT_TRUE(simulator.WaitFor("ran SAMPLE.TJB"));
  const std::string job = folder.Read("SAMPLE.TJB");
  EXPECT_EQ(simulator.machine.Read("SAMPLE.TJB").substr(0, job.size()), job);
  simulator.machine.Write("SAMPLE.TJB", job);
  for (const char* name : {"LOGO.JOB", "RULE.JOB", "HOLE.JOB", "FILL1.FIL", "SAMPLE.DM"}) {
    EXPECT_EQ(simulator.machine.Read(name), folder.Read(name)) << name;
  }

  const std::string logo = folder.Read("LOGO.JOB");
  for (const char* name : {"SAMPLE.TJB", "LOGO.JOB"}) std::filesystem::remove(folder / name);
  ASSERT_EQ(Run("job upload SAMPLE.TJB"), 0) << folder.errors;
  EXPECT_EQ(folder.Read("SAMPLE.TJB"), job);
  EXPECT_EQ(folder.Read("LOGO.JOB"), logo);
}

TEST_F(CliLink, HostileNamesLeadNowhere) {
  test::Simulator simulator(kAddress, {"names=hostile"});
  ASSERT_TRUE(simulator.ready);
  folder.MakeFolder("base");
  folder.Write("base/Morvane.ini", std::string("[Settings]\r\nComPort=5\r\nIP=") + kAddress + "\r\n");
  const auto before = folder.Names();
  const std::string refused = "Morvane: This name leads out of the folder and is refused: ";
  using Case = std::pair<const char*, std::string>;
  for (const auto& [arguments, error] :
       {Case{"job upload '..\\evil.tjb'", refused + "..\\EVIL.TJB\n"},
        Case{"job upload ../EVIL.TJB", refused + "../EVIL.TJB\n"},
        Case{"job upload 'C:\\EVIL.TJB'", refused + "C:\\EVIL.TJB\n"},
        Case{"job upload NONE.TJB", "Select File: Not in the list: NONE.TJB\n"},
        Case{"link get ../EVIL.TJB", refused + "../EVIL.TJB\n"},
        Case{"job download ../NONE.TJB", "Morvane: Load(../NONE.TJB) File not found\n"}}) {
    EXPECT_EQ(folder.Run(std::string("morvane-cli --base base ") + arguments), 1) << arguments;
    EXPECT_EQ(folder.errors, error);
  }
  auto after = folder.Names();
  for (const char* name : {"base/Temp", "base/Temp/tmp.lst"}) after.erase(name);
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace morvane

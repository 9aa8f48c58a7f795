// What goes over the wire, byte for byte and with its times.
#include <gtest/gtest.h>

#include "support/LinkStation.h"

namespace morvane::link {
namespace {

// No period that the blocks could hide behind.
std::string Pattern(std::size_t length) {
  std::string bytes(length, '\0');
  for (std::size_t i = 0; i < length; ++i) bytes[i] = static_cast<char>('0' + (i * 31 + i / 97) % 64);
  return bytes;
}

TEST(Wire, EachOperationAtItsPace) {
  const std::string text = "one\ntwo\r\nlast";
  const auto download = [](Comm& comm) { return comm.DownloadFile("QT7250DFILE A.TXT", "A.TXT"); };
  const auto binary = [](Comm& comm) { return comm.DownloadBinaryFile("QT7250DLBIN B.RAS", "B.RAS"); };
  const auto command = [](Comm& comm) { return comm.SendCommand("QT7250RUN A.TJB"); };
  const std::string line = "0 <open COM2 38400,n,8,1>|", network = "0 <open 10.0.0.7:2000>|";
  const std::string block(1024, '\xFF');
  // Milliseconds and what happened then.
  using Case = std::tuple<bool, bool (*)(Comm&), std::string>;
  for (const auto& [overNetwork, run, log] :
       {Case{false, download,
             line + "0 QT7250FILES COMMAND.COM\r\n|1001 <close>|1001 <open COM2 38400,n,8,1>|"
                    "1001 QT7250DFILE A.TXT\r\n|1001 one\r\n|1002 two\r\n|1003 last\r\n|1004 "
                    "ENDFILE\r\n|2004 <close>|"},
        Case{true, download, network + "0 QT7250DFILE A.TXT\r\n|0 " + text + "|50 ENDFILE\r\n|2050 <close>|"},
        Case{false, binary,
             line + "0 QT7250DLBIN B.RAS,1026,261630\r\n|0 " + block + "|100 \xFF\xFF|1200 <close>|"},
        Case{true, binary,
             network + "0 QT7250DLBIN B.RAS,1026,261630\r\n|0 " + block + "\xFF\xFF|1050 <close>|"},
        Case{false, command, line + "0 QT7250RUN A.TJB\r\n|1000 <close>|"},
        Case{true, command, network + "0 QT7250RUN A.TJB\r\n|2000 <close>|"}}) {
    test::LinkStation station(overNetwork);
    station.disk.Put("/base/A.TXT", text);
    station.disk.Put("/base/B.RAS", std::string(1026, '\xFF'));
    EXPECT_TRUE(run(station.comm));
    std::string happened;
    for (const auto& [time, what] : station.controller.log)
      happened += std::to_string(time) + ' ' + what + '|';
    EXPECT_EQ(happened + station.Boxes(), log);
    EXPECT_FALSE(station.progress.shown);
  }
}

TEST(Wire, TheMarkerGoesByThePathAndEmptyFilesAreSpecial) {
  using Case = std::tuple<bool, std::string, std::string, std::string>;
  for (const auto& [network, path, bytes, wire] :
       {Case{true, "/base/LOGO.job", "G0\r\n", "JOB X\r\nG0\r\nENDJOB\r\n"},
        Case{true, "/JOBS.OLD.JOBS/A.TXT", "G0", "JOB X\r\nG0ENDJOB\r\n"},
        Case{false, "/base/LOGO.job", "G0", "JOB X\r\nG0\r\nENDJOB\r\n"},
        Case{true, "/base/EMPTY.JOB", "", ""}, Case{false, "/base/EMPTY.TXT", "", "JOB X\r\nENDFILE\r\n"}}) {
    test::LinkStation station(network);
    station.disk.Put(path, bytes);
    EXPECT_TRUE(station.comm.DownloadFile("JOB X", path)) << path;
    EXPECT_EQ(station.controller.wire, (network ? "" : "QT7250FILES COMMAND.COM\r\n") + wire) << path;
  }
  for (const bool network : {false, true}) {
    test::LinkStation station(network);
    station.disk.Put("/base/B.RAS", "");
    EXPECT_TRUE(station.comm.DownloadBinaryFile("QT7250DLBIN B.RAS", "B.RAS"));
    EXPECT_EQ(station.controller.wire, "QT7250DLBIN B.RAS,0,0\r\n");
  }
}

// Behind the file come as many bytes as there were full blocks: what the last read left in the buffer.
TEST(Wire, TheBlocksAndTheirSurplus) {
  struct Case {
    std::size_t length, surplusAt, surplus;
    bool fails;
  };
  for (const Case& c : {Case{1, 0, 0, false},
                        {2899, 0, 0, false},
                        {2900, 2900, 1, true},
                        {2901, 0, 1, false},
                        {5799, 2898, 1, false},
                        {5800, 2899, 2, true},
                        {5801, 2900, 2, false},
                        {8705, 5804, 3, false}}) {
    const std::string file = Pattern(c.length);
    const std::string sent =
        file + (c.length == 2900 ? std::string(1, '\0') : file.substr(c.surplusAt, c.surplus));
    test::LinkStation text(true);
    text.disk.Put("/base/A.TXT", file);
    EXPECT_EQ(text.comm.DownloadFile("C", "A.TXT"), !c.fails) << c.length;
    EXPECT_TRUE(text.controller.wire == "C\r\n" + sent + (c.fails ? "" : "ENDFILE\r\n")) << c.length;
    EXPECT_EQ(text.Boxes(), c.fails ? "Morvane: DownloadFileTcp-Subscript out of range" : "");

    test::LinkStation binary(true);
    binary.disk.Put("/base/A.TXT", file);
    int sum = 0;
    for (const char byte : sent) sum += byte;
    const std::string line = "C," + std::to_string(c.length) + ',' + std::to_string(sum) + "\r\n";
    EXPECT_EQ(binary.comm.DownloadBinaryFile("C", "A.TXT"), !c.fails) << c.length;
    EXPECT_TRUE(binary.controller.wire == (c.fails ? "" : line + sent)) << c.length;
    EXPECT_EQ(binary.Boxes(), c.fails ? "Morvane: DownloadBinaryFileTcp-Subscript out of range" : "");
    EXPECT_FALSE(binary.waitWindow.shown);
  }
}

TEST(Wire, TheControllerHasTimeToStoreALongFile) {
  test::LinkStation station(true);
  station.disk.Put("/base/A.TXT", Pattern(100001));
  EXPECT_TRUE(station.comm.DownloadFile("C", "A.TXT"));
  // 35 blocks, the drain, the close delay, and 12.5 ms for every 1000 bytes.
  EXPECT_EQ(station.clock.totalSlept, 35 * 50 + 1000 + 1000 + 1250);
  const std::pair<std::int64_t, std::int64_t> end{100001, 100001};
  EXPECT_EQ(station.progress.steps.back(), end);
}

}  // namespace
}  // namespace morvane::link

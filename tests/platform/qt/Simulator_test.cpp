// The operations of the link through the real adapters against the simulated controller.
#include "support/Simulator.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <memory>

#include "common/text/Text.h"
#include "link/modComm.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtSerialPort.h"
#include "platform/qt/QtTcpClient.h"
#include "support/FakePrompts.h"
#include "support/FakeWaitWindow.h"
#include "textjob/transfer/JobTransfer.h"

namespace morvane::test {
namespace {

// Eight times as fast as the system's, so that pauses and time-outs of seconds do not last.
class QuickClock : public platform::Clock {
 public:
  explicit QuickClock(platform::Operations& operations) : clock_(operations) {}
  platform::DateTime Now() const override { return clock_.Now(); }
  double MonotonicSeconds() const override { return clock_.MonotonicSeconds() * kSpeed; }
  void Sleep(int milliseconds) override { clock_.Sleep(milliseconds / kSpeed); }
  void DoEvents() override { clock_.DoEvents(); }

 private:
  static constexpr int kSpeed = 8;
  platform::QtClock clock_;
};

// Further addresses of this process: those of OwnAddress have smaller second numbers.
std::string Address(std::size_t number) {
  const std::string own = OwnAddress();
  return "127." + std::to_string(100 + number) + own.substr(own.find('.', 4));
}

struct Host {
  Host(bool network, const Simulator& simulator, const std::string& address) {
    settings.Apply({{"Settings", "ComPort", network ? "5" : "3"},
                    {"Settings", "IP", address},
                    {"SerialDevices", "COM3", simulator.Line()}});
    files.EnsureTemp();
  }
  std::string Boxes() const {
    std::string text;
    for (const FakePrompts::Box& box : prompts.boxes) text += box.text + '|';
    return text;
  }

  TempFolder folder;
  platform::PosixFileSystem fileSystem;
  common::Files files{fileSystem, folder.Path(), folder.Path()};
  common::Settings settings{files};
  bool abort = false;
  platform::Operations operations{abort};
  QuickClock clock{operations};
  FakePrompts prompts;
  FakeWaitWindow waitWindow;
  FakeProgress progress;
  platform::QtSerialPort serial{settings};
  platform::QtTcpClient tcp;
  link::Comm comm{{files, settings, clock, prompts, waitWindow, progress, serial, tcp, abort}};
};

// What reached the machine, as its log tells it.
std::string Received(const Simulator& simulator) {
  std::string bytes;
  const std::string log = simulator.Log();
  for (std::size_t at = 0, end = 0; at < log.size(); at = end + 1) {
    end = std::min(log.find('\n', at), log.size());
    const std::string line = log.substr(at, end - at);
    const std::size_t sent = line.find(" > ");
    if (sent != std::string::npos) bytes += line.substr(sent + 3);
  }
  return common::ReplaceAll(bytes, "\\r\\n", "|");
}

// "#" stands for the check of the serial line.
TEST(Simulator, LogsTheTransfersOfAllLineTypes) {
  struct LineType {
    const char* text;
    const char* sent;
    bool forRun;
  };
  const LineType types[] = {{"TEXT", "", false},
                            {"1", "", false},
                            {"g.job", "#JOB G|G0 X1|ENDJOB|", true},
                            {"D", "", false},
                            {"", "", false},
                            {"P.PAN", "#QT7250DFILE P.PAN|pan|ENDFILE|", true},
                            {"D.DM", "#QT7250DFILE D.DM|dm|ENDFILE|", true},
                            {"F.FIL", "#QT7250DFILE F.FIL|fil|ENDFILE|", true},
                            {"V", "", false},
                            {"I.JOB", "#JOB I|G0 X2|ENDJOB|", false},
                            {"ONE", "#QT7250DFILE Default.cap|cap|ENDFILE|", false},
                            {"S", "#QT7250DFILE Default.sca|sca|ENDFILE|", false},
                            {"", "", false},
                            {"C.JOB", "#JOB C|G0 X3|ENDJOB|", false},
                            {"R.PRE", "#QT7250DFILE R.PRE|pre|ENDFILE|", false},
                            {"K.JOB", "", false},
                            {"R.RAS", "QT7250DLBIN R.RAS,3,230|RAS", false}};
  const std::pair<const char*, const char*> files[] = {
      {"G.JOB", "G0 X1\r\n"},     {"P.PAN", "pan\r\n"},       {"D.DM", "dm\r\n"},     {"F.FIL", "fil\r\n"},
      {"I.JOB", "G0 X2\r\n"},     {"Default.cap", "cap\r\n"}, {"C.JOB", "G0 X3\r\n"}, {"R.PRE", "pre\r\n"},
      {"Default.sca", "sca\r\n"}, {"K.JOB", "never\r\n"},     {"R.RAS", "RAS"}};
  std::string job = "COMMENT,\r\n";
  std::string wires[2];  // Download, D/L and Run
  for (std::size_t type = 0; type < std::size(types); ++type) {
    job += std::to_string(type) + ",0,0,0,,0,0,0,0," + types[type].text + "@@,1\r\n";
    wires[0] += types[type].sent;
    if (types[type].forRun) wires[1] += types[type].sent;
  }
  for (std::string& wire : wires)
    wire += "#QT7250DFILE A.TJB|" + common::ReplaceAll(job, "\r\n", "|") + "ENDFILE|";
  wires[1] += "QT7250RUN A.TJB|";
  for (const bool network : {false, true}) {
    for (const bool run : {false, true}) {
      Simulator simulator(Address(0));
      ASSERT_TRUE(simulator.ready);
      Host host(network, simulator, Address(0));
      for (const auto& [name, bytes] : files) host.folder.Write(name, bytes);
      host.folder.Write("A.TJB", job);
      common::DialogFolders folders;
      common::FileDialogs dialogs(host.prompts, host.files, folders);
      textjob::TextJob lines;
      textjob::JobDocument document(lines, host.files, host.prompts, dialogs);
      const bool fixture = false;
      textjob::JobTransfer transfer(
          {host.files, host.settings, host.prompts, host.waitWindow, host.comm, lines, document, fixture});
      ASSERT_TRUE(document.Open("A.TJB"));
      ASSERT_TRUE(run ? transfer.DownloadAndRun() : transfer.Download()) << host.Boxes();
      ASSERT_TRUE(
          simulator.WaitFor(run ? "ran A.TJB" : "stored A.TJB, " + std::to_string(job.size()) + " bytes"));
      const char* check = network ? "" : "QT7250FILES COMMAND.COM|";
      EXPECT_EQ(Received(simulator), common::ReplaceAll(wires[run], "#", check));
      EXPECT_EQ(simulator.machine.Read("A.TJB"), job);
    }
  }
}

// One operation that meets a fault of the machine, and the next one, in a thread of its own: nearly all of
// it is waiting.
struct FaultCell {
  const char* fault;
  int operation;
  bool network;
  std::string boxes;  // of an upload, to the letter; "*": as the pieces happen to arrive
  std::unique_ptr<Simulator> simulator;
  std::unique_ptr<QThread> thread;
};

bool Operate(link::Comm& comm, int operation) {
  switch (operation) {
    case 0:
      return comm.UploadFile("QT7250FILE A.TXT", "got");
    case 1:
      return comm.DownloadFile("QT7250DFILE B.TXT", "B.TXT");
    case 2:
      return comm.DownloadBinaryFile("QT7250DLBIN B.RAS", "B.RAS");
    case 3:
      return comm.SendCommand("QT7250RUN A.TXT");
    default:
      return comm.RunWait("A.TXT", 0);
  }
}

// Of the quick clock: the machine sees that the host has left its terminal.
constexpr int kUntilGone = 800;

void Walk(const FaultCell& cell, const std::string& address) {
  SCOPED_TRACE(std::string(cell.fault) + (cell.network ? " tcp " : " serial ") +
               std::to_string(cell.operation));
  Host host(cell.network, *cell.simulator, address);
  host.folder.Write("B.TXT", "one\r\n");
  host.folder.Write("B.RAS", std::string(5000, '\x7F'));
  const bool done = Operate(host.comm, cell.operation);
  if (cell.operation == 0) {
    EXPECT_EQ(done, host.prompts.boxes.empty());
    EXPECT_TRUE(cell.boxes == "*" || host.Boxes() == cell.boxes) << host.Boxes();
  }
  for (const FakePrompts::Box& box : host.prompts.boxes) {
    const auto says = [&](const char* words) { return box.text.find(words) != std::string::npos; };
    EXPECT_TRUE(says("Socket Error: Connection reset by peer") || says("Timeout waiting for controller") ||
                says(" bytes stuck in output buffer") || says("-The serial port is gone") ||
                says("-No such file or directory") || says("-Communication check failed. Check Cable."))
        << box.text;
  }
  // A download over the serial line has two connections; where the first one failed, the fault is still
  // there.
  bool next = false;
  for (int tries = cell.operation == 1 && !cell.network ? 2 : 1; tries > 0 && !next; --tries) {
    host.prompts.boxes.clear();
    host.clock.Sleep(kUntilGone);
    next = host.comm.UploadFile("QT7250FILE A.TXT", "next");
  }
  EXPECT_TRUE(next);
  EXPECT_EQ(host.folder.Read("next"), "one\r\ntwo\r\n");
  EXPECT_EQ(host.Boxes(), "");
}

// Only the first connections meet the fault; the operation behind them works.
TEST(Simulator, EveryFaultMeetsEveryOperation) {
  const std::string kTimeout = "got\r\n\r\nTimeout waiting for controller|";
  const std::string kReset = "Socket Error: Connection reset by peer|" + kTimeout;
  const std::string kGone = "UploadFile-The serial port is gone|";
  struct Case {
    const char* fault;
    std::string serial;  // boxes of an upload; empty: it succeeds
    std::string network;
  };
  const Case cases[] = {{"silent-after=0", kTimeout, kTimeout},
                        {"silent-after=9", kTimeout, kTimeout},
                        {"silent-after=12", kTimeout, kTimeout},
                        {"drop-after=5", kGone, kTimeout},
                        {"drop-after=30", kGone, kTimeout},
                        {"reset-after=5", kGone, kReset},
                        {"reset-after=30", kGone, kReset},
                        {"stop-reading=4", kTimeout, kTimeout},
                        {"split=1", "", "*"},
                        {"split=3", "", "*"},
                        {"slow=40", "", ""},
                        {"double-cr", "", ""},
                        {"no-marker", kTimeout, kTimeout},
                        {"garbage=3000", kTimeout, kTimeout},
                        {"flood=1", "", ""}};
  constexpr std::size_t kAtOnce = 16;
  std::vector<FaultCell> cells;
  for (const Case& c : cases) {
    for (int operation = 0; operation < 5; ++operation) {
      for (const bool network : {false, true})
        cells.push_back({c.fault, operation, network, network ? c.network : c.serial, nullptr, nullptr});
    }
  }
  EXPECT_EQ(cells.size(), 150U);
  for (std::size_t first = 0; first < cells.size(); first += kAtOnce) {
    const std::size_t end = std::min(first + kAtOnce, cells.size());
    for (std::size_t i = first; i < end; ++i) {
      FaultCell& cell = cells[i];
      const std::string address = Address(i - first);
      const bool twice = cell.operation == 1 && !cell.network;
      cell.simulator = std::make_unique<Simulator>(
          address, std::vector<std::string>{cell.fault, twice ? "times=2" : "times=1"});
      ASSERT_TRUE(cell.simulator->ready);
      cell.simulator->machine.Write("A.TXT", "one\r\ntwo\r\n");
      cell.thread.reset(QThread::create([&cell, address] { Walk(cell, address); }));
    }
    for (std::size_t i = first; i < end; ++i) cells[i].thread->start();
    for (std::size_t i = first; i < end; ++i) cells[i].thread->wait();
    for (std::size_t i = first; i < end; ++i) cells[i].simulator.reset();
  }
}

}  // namespace
}  // namespace morvane::test

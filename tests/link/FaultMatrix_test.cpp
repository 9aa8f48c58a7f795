// Every operation, over both transports, with every fault at every place: it ends, says what it may say and
// nothing else, and the next operation works.
#include <gtest/gtest.h>

#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using test::Ending;
using test::LinkStation;

const std::string kReply = "SUCCESS\r\nline two \xE9\r\nENDFILE\r\n";
const std::string kStored = kReply.substr(0, kReply.find("ENDFILE"));
constexpr double kLongest = 60;  // seconds of the fake clock; no operation here takes longer

struct Operation {
  const char* name;
  bool replies;
  bool tellsSilence;  // on the serial line too
  bool (*run)(Comm&);
};

const Operation kOperations[] = {
    {"text", false, false, [](Comm& comm) { return comm.DownloadFile("QT7250DFILE A.TXT", "A.TXT"); }},
    {"job", false, false, [](Comm& comm) { return comm.DownloadFile("JOB A", "A.JOB"); }},
    {"binary", false, false,
     [](Comm& comm) { return comm.DownloadBinaryFile("QT7250DLBIN A.RAS", "A.JOB"); }},
    {"command", false, false, [](Comm& comm) { return comm.SendCommand("QT7250RUN A.TJB"); }},
    {"upload", true, true, [](Comm& comm) { return comm.UploadFile("QT7250FILE A.TXT", "\\Temp\\got"); }},
    {"timed", true, false,
     [](Comm& comm) {
       int seconds = 5;
       return comm.UploadFileTimed("QT7250FILE A.TXT", "\\Temp\\got", seconds);
     }},
    {"run", true, false, [](Comm& comm) { return comm.RunWait("A.TJB", 0); }},
};

struct Cell {
  LinkStation& station;
  std::size_t place;
  int waits = 0;
  double acted = 0;  // when it happened
};

struct Fault {
  const char* name;
  std::vector<std::size_t> places;
  void (*inflict)(Cell&);
  std::vector<std::string> boxes;  // how those begin that it may cause
};

void EveryReply(Cell& cell, void (*change)(test::FakeReply&, std::size_t)) {
  for (auto& [request, reply] : cell.station.controller.replies) change(reply, cell.place);
}
void Cut(Cell& cell, Ending ending) {
  for (auto& [request, reply] : cell.station.controller.replies) {
    reply.bytes.resize(std::min(cell.place, reply.bytes.size()));
    reply.ending = ending;
  }
}
// At the wait of that number.
void Later(Cell& cell, void (*what)(LinkStation&)) {
  cell.station.during = [&cell, what] {
    if (++cell.waits != static_cast<int>(cell.place)) return;
    cell.acted = cell.station.clock.seconds;
    what(cell.station);
  };
}

const std::vector<std::size_t> kCuts = {1, 7, 9, 10, 20, 21, 24, 27, 28};
const std::vector<std::size_t> kSent = {1, 20, 26, 40, 50, 60, 3000};
const std::string kSilence = "Upload: ";
const std::string kReset = "Morvane: Socket Error: Connection reset by peer";
const std::string kStuck = " bytes stuck in output buffer";

using Strings = std::vector<std::string>;
const Strings kLate = {kSilence, "Morvane: DownloadFile-Communication"};
const Strings kLost = {kSilence, kReset, "Morvane: DownloadFile-Communication"};

const Fault kFaults[] = {
    {"silent", kCuts, [](Cell& c) { Cut(c, Ending::Silent); }, kLate},
    {"closed", kCuts, [](Cell& c) { Cut(c, Ending::Closes); }, kLate},
    {"reset in the reply", kCuts, [](Cell& c) { Cut(c, Ending::Resets); }, kLost},
    {"lost while sending",
     kSent,
     [](Cell& c) { c.station.serial.pulledAfter = c.station.tcp.resetAfter = c.place; },
     {kReset, kStuck, kSilence, "-No such device"}},
    {"takes nothing", {1}, [](Cell& c) { c.station.serial.stuck = c.station.tcp.stuck = true; }, {kStuck}},
    {"in pieces",
     {1, 3, 8, 22, 24},
     [](Cell& c) { EveryReply(c, [](test::FakeReply& r, std::size_t n) { r.piece = n, r.gap = 0.1; }); },
     {kSilence}},
    {"slow",
     {1, 4, 9},
     [](Cell& c) { EveryReply(c, [](test::FakeReply& r, std::size_t n) { r.gap = double(n); }); },
     kLate},
    {"noise",
     {100, 5000},
     [](Cell& c) { EveryReply(c, [](test::FakeReply& r, std::size_t n) { r.bytes.assign(n, '\x91'); }); },
     kLate},
    {"without end, until the program closes",
     {10, 500},
     [](Cell& c) {
       for (auto& [request, reply] : c.station.controller.replies) reply = {"line\r\n", 0, 0.0001, true};
       Later(c, [](LinkStation& s) { s.abort = true; });
     },
     {}},
    {"the program closes",
     {1, 2, 3, 6, 12, 40},
     [](Cell& c) { Later(c, [](LinkStation& s) { s.abort = true; }); },
     {}},
    {"a second operation",
     {1, 2, 3, 6, 12, 40},
     [](Cell& c) { Later(c, [](LinkStation& s) { EXPECT_FALSE(s.comm.SendCommand("REBOOT")); }); },
     {"Morvane: The link to the machine is in use"}},
    {"a window of the user that holds up the loop",
     {1, 2, 3, 6, 12, 40},
     [](Cell& c) { Later(c, [](LinkStation& s) { s.clock.seconds += 30; }); },
     {}},
    {"nobody there",
     {1},
     [](Cell& c) {
       c.station.serial.openFailure = "No such file or directory";
       c.station.tcp.answers = false;
     },
     {"-No such file", "Connect: Timeout waiting for controller IP=10.0.0.7"}},
    {"a full disk", {0, 5, 12}, [](Cell& c) { c.station.disk.faults.bytesLeft = c.place; }, {"-Disk full"}},
};

void Heal(LinkStation& station) {
  station.during = nullptr;
  station.abort = false;
  station.serial.openFailure.clear();
  station.serial.pulledAfter.reset();
  station.serial.stuck = station.tcp.stuck = false;
  station.tcp.answers = true;
  station.tcp.resetAfter = 0;
  station.disk.faults = {};
  for (const char* request : {"QT7250FILE ", "QT7250RUNWAIT"}) station.controller.replies[request] = {kReply};
  station.controller.replies["QT7250FILES COMMAND.COM"] = {"COMMAND.COM\r\nENDFILE\r\n"};
}

std::vector<std::string> Names(const LinkStation& station, const std::string& folder) {
  std::vector<std::string> names;
  station.disk.List(folder, names);
  std::sort(names.begin(), names.end());
  return names;
}

void CheckBoxes(const LinkStation& station, const Fault& fault) {
  for (const auto& box : station.prompts.boxes) {
    const std::string text = box.title + ": " + box.text;
    EXPECT_TRUE(std::any_of(fault.boxes.begin(), fault.boxes.end(), [&](const std::string& start) {
      return start[0] == '-' || start == kStuck ? text.find(start) != std::string::npos
                                                : common::StartsWith(text, start);
    })) << text;
  }
}

// What holds of every cell, whatever the fault.
void Check(const Operation& operation, bool network, const Fault& fault, Cell& cell, bool done) {
  LinkStation& station = cell.station;
  CheckBoxes(station, fault);
  EXPECT_LT(station.clock.seconds, kLongest);
  EXPECT_TRUE(!station.abort || station.clock.seconds <= cell.acted + 0.11)
      << "a closing program waits for nothing";
  EXPECT_FALSE(station.serial.IsOpen());
  EXPECT_EQ(station.tcp.State(), platform::TcpState::Closed);
  EXPECT_EQ(station.comm.Owner().Now(), LinkOwner::State::Idle);
  // Left to the caller only where the serial line did nothing wrong, or nothing is to be said.
  EXPECT_FALSE(station.waitWindow.shown && (network || station.abort || (!done && operation.tellsSilence)));
  EXPECT_LE(station.comm.Open().Buffer().Size(), kCommBufferSize);
  EXPECT_EQ(Names(station, "/base"), (std::vector<std::string>{"A.JOB", "A.TXT", "Morvane.ini", "Temp"}));
  EXPECT_EQ(Names(station, "/tmp"), (std::vector<std::string>{"run.ret"}));
  const std::string stored = operation.name == std::string("run") ? "/tmp/run.ret" : "/base/Temp/got";
  EXPECT_TRUE(!done || !operation.replies || station.disk.Get(stored) == kStored);
  // A failure is told, but for the program's end and a timed reply on the serial line.
  const bool untold = station.abort || (operation.replies && !operation.tellsSilence && !network);
  EXPECT_TRUE(done || untold || !station.prompts.boxes.empty());
  Heal(station);
  station.prompts.boxes.clear();
  EXPECT_TRUE(station.comm.UploadFile("QT7250FILE NEXT", "\\Temp\\next"));
  EXPECT_EQ(station.disk.Get("/base/Temp/next"), kStored);
  EXPECT_EQ(station.Boxes(), "");
}

TEST(FaultMatrix, EveryFaultAtEveryPlaceOfEveryOperation) {
  int cells = 0;
  for (const bool network : {false, true}) {
    for (const Operation& operation : kOperations) {
      for (const Fault& fault : kFaults) {
        for (const std::size_t place : fault.places) {
          SCOPED_TRACE(std::string(network ? "tcp " : "serial ") + operation.name + ", " + fault.name +
                       " at " + std::to_string(place));
          LinkStation station(network);
          station.disk.Put("/base/A.TXT", "one\r\ntwo\r\n");
          station.disk.Put("/base/A.JOB", std::string(4000, 'G') + "\r\n");
          Heal(station);
          Cell cell{station, place};
          fault.inflict(cell);
          station.waitWindow.Show(operation.name);
          Check(operation, network, fault, cell, operation.run(station.comm));
          ++cells;
        }
      }
    }
  }
  EXPECT_EQ(cells, 966);
}

}  // namespace
}  // namespace morvane::link

// Which files go with a job, in which order, under which names.
#include "textjob/transfer/JobTransfer.h"

#include <gmock/gmock.h>

#include "support/LinkStation.h"

namespace morvane::textjob {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

const std::string kWait = std::string("\r\n\r\n") + "Please Wait ...";

// What one operation of the link puts on the wire.
struct Sent {
  std::string command;
  std::string file = "";    // its one line, or its bytes
  std::string marker = "";  // empty for a command or a binary file
};

Sent File(const std::string& name) {
  if (!name.ends_with(".JOB")) return {"QT7250DFILE " + name, '<' + name + '>', "ENDFILE"};
  return {"JOB " + name.substr(0, name.size() - 4), '<' + name + '>', "ENDJOB"};
}

const Sent kFixture = File("BASE.FIX");

std::string Wire(bool network, const std::vector<Sent>& all) {
  std::string wire;
  for (const Sent& sent : all) {
    const bool text = !sent.marker.empty();
    if (text && !network) wire += "QT7250FILES COMMAND.COM\r\n";
    wire += sent.command + "\r\n" + sent.file + (text ? "\r\n" + sent.marker + "\r\n" : "");
  }
  return wire;
}

struct Station : test::LinkStation {
  explicit Station(bool network, const std::string& lines = "") : LinkStation(network) {
    Set((network ? "ComPort=5\r\nIP=10.0.0.7\r\n" : "ComPort=2\r\n") + lines);
    for (const char* name : {"G.JOB", "C.JOB", "I.JOB", "P.PAN", "D.DM", "F.FIL", "press.pre", "Default.cap",
                             "Default.sca", "K.JOB", "BASE.FIX"}) {
      disk.Put("/base/" + std::string(name), std::string("<") + name + ">\r\n");
    }
    disk.Put("/base/R.RAS", std::string("\0\1\2", 3));
  }
  // A line of each type, those with files twice.
  std::string AllTypes() {
    std::string lines = "COMMENT,\r\n";
    const char* texts[] = {"text@@", "1@@",     "g.job@@",     "d@@",     "@@",     "P.PAN@@",
                           "D.DM@@", "F.FIL@@", "V@@",         "I.JOB@@", "ONE@@",  "S@@",
                           "@@",     "C.JOB@@", "press.pre@@", "K.JOB@@", "R.RAS@@"};
    for (int round = 0; round < 2; ++round) {
      for (std::size_t type = 0; type < std::size(texts); ++type)
        lines += std::to_string(type) + ",0,0,0,,0,0,0,0," + texts[type] + ",1\r\n";
    }
    lines += "2,0,0,0,,0,0,0,0,@@,1\r\n13,0,0,0,,0,0,0,0,I.JOB@@,1\r\n99,0,0,0,,0,0,0,0,X@@,1\r\n";
    return lines;
  }
  void Open(const std::string& bytes) {
    disk.Put("/base/SUB/A.TJB", bytes);
    ASSERT_TRUE(document.Open("SUB\\A.TJB"));
  }
  JobTransfer Transfer() {
    return JobTransfer({files, settings, prompts, waitWindow, comm, job, document, fixture});
  }

  TextJob job;
  JobDocument document{job, files, prompts, dialogs};
  bool fixture = false;
};

TEST(JobTransfer, SendsWhatEachLineTypeNames) {
  const Sent raster = {"QT7250DLBIN R.RAS,3,3", std::string("\0\1\2", 3), ""};
  struct Case {
    const char* settings;
    bool fixture, run;
    std::vector<Sent> before;
    const char* job;  // command
    std::vector<Sent> after;
  };
  std::vector<Sent> all;
  for (const std::string name :
       {"G.JOB", "P.PAN", "D.DM", "F.FIL", "I.JOB", "Default.cap", "Default.sca", "C.JOB", "press.pre"})
    all.push_back(File(name));
  const std::vector<Sent> four(all.begin(), all.begin() + 4);
  all.push_back(raster);
  // With images left out, I.JOB still goes for its Closed Path line.
  std::vector<Sent> noImages = all;
  std::rotate(noImages.begin() + 4, noImages.begin() + 5, noImages.end());
  std::vector<Sent> fourFixed = four;
  fourFixed.push_back(kFixture);
  const Case cases[] = {
      {"Fixture=BASE.FIX\r\n", false, false, all, "QT7250DFILE A.TJB", {}},
      {"Fixture=BASE.FIX\r\n", true, false, all, "QT7250DFILE A.TJB", {kFixture}},
      {"DownloadAsTJB=1\r\nDontDownloadImages=1\r\n", true, false, noImages, "QT7250DFILE TJB.TJB", {}},
      {"DontDownloadImages=True\r\n", false, true, four, "QT7250DFILE A.TJB", {{"QT7250RUN A.TJB"}}},
      {"DownloadAsTJB=1\r\n", true, true, four, "QT7250DFILE TJB.TJB", {{"QT7250RUN TJB.TJB"}}},
      {"DownloadAsTJB=1\r\nFixture=BASE.FIX\r\n",
       true,
       true,
       fourFixed,
       "QT7250DFILE A.TJB",
       {{"QT7250RUNFIX BASE.FIX,A.TJB"}}},
  };
  for (const Case& c : cases) {
    for (const bool network : {false, true}) {
      Station station(network, c.settings);
      station.fixture = c.fixture;
      station.Open(station.AllTypes());
      station.job.Dirty = true;
      JobTransfer transfer = station.Transfer();
      EXPECT_TRUE(c.run ? transfer.DownloadAndRun() : transfer.Download());
      EXPECT_FALSE(station.job.Dirty);

      std::vector<Sent> sent = c.before;
      const std::string job = station.AllTypes();
      sent.push_back({c.job, job.substr(0, job.size() - 2), "ENDFILE"});
      sent.insert(sent.end(), c.after.begin(), c.after.end());
      EXPECT_EQ(station.controller.wire, Wire(network, sent)) << c.settings;
      EXPECT_EQ(station.Boxes(), c.run ? "Morvane: Download and Run Complete" : "Morvane: Download Complete");
      EXPECT_FALSE(station.waitWindow.shown);
    }
  }
}

TEST(JobTransfer, TellsWhatItDoes) {
  Station station(true, "DownloadAsTJB=1\r\nFixture=BASE.FIX\r\n");
  station.Open(
      "COMMENT,\r\n7,0,0,0,,0,0,0,0,F.FIL@@,1\r\n10,0,0,0,,0,0,0,0,X@@,1\r\n11,0,0,0,,0,0,0,0,X@@,1\r\n");
  EXPECT_TRUE(station.Transfer().Download());
  station.fixture = true;
  EXPECT_TRUE(station.Transfer().DownloadAndRun());
  std::vector<std::string> expected;
  for (const char* what :
       {"Downloading F.FIL", "Downloading Cap File", "Downloading Scale File", "Downloading A.TJB as TJB.TJB",
        "Downloading F.FIL", "Downloading BASE.FIX", "Downloading A.TJB", "Running A.TJB"})
    expected.push_back(what + kWait);
  EXPECT_THAT(station.waitWindow.texts, ElementsAreArray(expected));
}

TEST(JobTransfer, StopsAtTheFirstFailure) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [text, boxes] :
       {Case{"NONE.FIL", "Morvane: DownloadFileTcp-File not found"},
        Case{"..\\ETC\\X", "Morvane: This name leads out of the folder and is refused: ..\\ETC\\X"},
        Case{"C:\\X.FIL", "Morvane: This name leads out of the folder and is refused: C:\\X.FIL"}}) {
    for (const bool run : {false, true}) {
      Station station(true);
      station.Open(std::string("COMMENT,\r\n7,0,0,0,,0,0,0,0,") + text + "@@,1\r\n");
      JobTransfer transfer = station.Transfer();
      EXPECT_FALSE(run ? transfer.DownloadAndRun() : transfer.Download());
      EXPECT_EQ(station.Boxes() + station.controller.wire, boxes);
      EXPECT_FALSE(station.waitWindow.shown);
    }
  }
  Station unsaved(true);
  unsaved.prompts.files = {{}, {}};
  EXPECT_FALSE(unsaved.Transfer().Download());
  EXPECT_FALSE(unsaved.Transfer().DownloadAndRun());
  EXPECT_EQ(unsaved.Boxes(), "");
  EXPECT_TRUE(unsaved.controller.log.empty());
}

TEST(JobTransfer, FetchesAJobAndItsFiles) {
  for (const bool network : {false, true}) {
    for (const bool images : {false, true}) {
      Station station(network, images ? "" : "DontDownloadImages=1\r\n");
      const std::string job = station.AllTypes() + "7,0,0,0,,0,0,0,0,..\\ESCAPE.FIL@@,1\r\n";
      station.controller.replies["QT7250FILES *.TJB"] = {"A.TJB\r\n\r\nNEW.TJB\r\nENDFILE\r\n"};
      station.controller.replies["QT7250FILE NEW.TJB"] = {job + "ENDFILE\r\n"};
      for (const char* name : {"G.JOB", "P.PAN", "F.FIL", "I.JOB", "C.JOB", "press.pre"})
        station.controller.replies[std::string("QT7250FILE ") + name] = {"new\r\nENDFILE\r\n"};
      station.prompts.picks = {{"NEW.TJB"}};
      EXPECT_TRUE(station.Transfer().Upload());

      std::vector<Sent> sent = {{"QT7250FILES *.TJB"}, {"QT7250FILE NEW.TJB"}, {"QT7250FILE G.JOB"},
                                {"QT7250FILE P.PAN"},  {"QT7250FILE D.DM"},    {"QT7250FILE F.FIL"},
                                {"QT7250FILE I.JOB"},  {"QT7250FILE C.JOB"},   {"QT7250FILE press.pre"}};
      if (!images) std::rotate(sent.begin() + 6, sent.begin() + 7, sent.end());
      EXPECT_EQ(station.controller.wire, Wire(network, sent));
      EXPECT_THAT(station.prompts.lists, ElementsAre(ElementsAre("A.TJB", "NEW.TJB")));
      EXPECT_EQ(station.disk.Get("/base/NEW.TJB"), job);
      EXPECT_EQ(station.disk.Get("/base/F.FIL"), "new\r\n");
      EXPECT_EQ(station.document.Name(), "NEW.TJB");
      EXPECT_EQ(station.job.LineCount(), 38U);
      // The Data Matrix did not come, and the last name was not asked for.
      EXPECT_EQ(station.Boxes(),
                std::string("Upload: D.DM\r\n\r\n") + "Timeout waiting for controller" +
                    "; Morvane: This name leads out of the folder and is refused: ..\\ESCAPE.FIL");
      EXPECT_EQ(station.waitWindow.texts.front(), "Uploading NEW.TJB" + kWait);
      EXPECT_FALSE(station.waitWindow.shown);
    }
  }
}

TEST(JobTransfer, FetchesNothingThatWasNotChosen) {
  using Case = std::tuple<std::vector<std::string>, bool, const char*>;
  for (const auto& [pick, dirty, boxes] :
       {Case{{}, false, ""},
        Case{{"..\\UP.TJB"}, false, "Morvane: This name leads out of the folder and is refused: ..\\UP.TJB"},
        Case{{"/etc/x\n"}, false, "Morvane: This name leads out of the folder and is refused: /etc/x?"},
        Case{
            {"B.TJB"},
            true,
            "Morvane: Do you want to save this job?; Upload: B.TJB\r\n\r\nTimeout waiting for controller"}}) {
    Station station(true);
    station.controller.replies["QT7250FILES *.TJB"] = {"x\r\nENDFILE\r\n"};
    station.Open("COMMENT,\r\n");
    station.job.Dirty = dirty;
    station.prompts.picks = {pick};
    if (dirty) station.prompts.answers = {platform::Answer::No};
    EXPECT_FALSE(station.Transfer().Upload());
    EXPECT_EQ(station.Boxes(), boxes);
    EXPECT_EQ(station.controller.wire.find("QT7250FILE ") != std::string::npos, dirty);
    EXPECT_EQ(station.document.Name(), "SUB\\A.TJB");
  }
}

}  // namespace
}  // namespace morvane::textjob

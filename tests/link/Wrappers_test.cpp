// What the menu entries put on the wire and on the disk, and what they say.
#include "link/Wrappers.h"

#include <gtest/gtest.h>

#include "link/MachineClock.h"
#include "link/Verify.h"
#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using Strings = std::vector<std::string>;

const std::string kWait = "\r\n\r\nPlease Wait ...";
const std::string kSilence = "\r\n\r\nTimeout waiting for controller";

struct Station : test::LinkStation {
  Station() : LinkStation(true) {
    disk.Put("/base/A.TJB", "a\r\n");
    disk.Put("/home/b.job", "b\r\n");
    disk.Put("/home/C.RAS", "\1\2");
    controller.replies["QT7250FILES *.TJB"] = {"A.TJB\r\n\r\n \r\nB.TJB\r\n..\\C.TJB\r\nENDFILE\r\n"};
    controller.replies["QT7250JOBS"] = {"ONE\r\nTWO.job\r\nENDFILE\r\n"};
    for (const char* name : {"B.TJB", "ONE.JOB", "TWO.job", "TEXTJOB.JOB", "Default.cap"})
      controller.replies[std::string("QT7250FILE ") + name] = {"new\nENDFILE\r\n"};
  }
  Choose Picks(Strings names) {
    return [this, names](const Names& entries) { return list = entries, names; };
  }
  Names list;
  WrapperSources sources{files, dialogs, prompts, waitWindow, comm};
};

using Operation = bool (*)(Station&);

const Operation kFetchFixed = [](Station& s) {
  return UploadNamedFile(s.sources, "Cap Files|*.cap", "cap", "Default.cap");
};
const Operation kFetchNamed = [](Station& s) {
  return UploadNamedFile(s.sources, "Cap Files|*.cap", "cap", "");
};
const Operation kFetchFiles = [](Station& s) {
  return UploadFiles(s.sources, "*.TJB", s.Picks({"A.TJB", "..\\C.TJB", "B.TJB"})) == Names{"B.TJB"};
};
const Operation kFetchNone = [](Station& s) { return !UploadFiles(s.sources, "*.TJB", s.Picks({})).empty(); };
const Operation kFetchGraphics = [](Station& s) {
  return UploadGraphics(s.sources, s.Picks({"ONE", "TWO.job"})) == Names{"ONE.JOB", "TWO.job"};
};
const Operation kSend = [](Station& s) {
  return DownloadFile(s.sources, "TJB Files|*.TJB", "tjb", "", false);
};
const Operation kSendFixed = [](Station& s) {
  return DownloadFile(s.sources, "Cap Files|*.cap", "cap", "Default.cap", false);
};
const Operation kSendBinary = [](Station& s) {
  return DownloadFile(s.sources, "Raster Files|*.RAS", "RAS", "", true);
};
const Operation kSendGraphic = [](Station& s) { return DownloadGraphic(s.sources); };
const Operation kSetClock = [](Station& s) { return DownloadDateTime(s.sources, s.clock); };
const Operation kFetchTextJob = [](Station& s) { return UploadTextJob(s.sources); };

TEST(Wrappers, SendAndFetchWhatIsChosen) {
  using Case = std::tuple<Operation, Strings, bool, std::string, std::string, Strings>;
  const std::string sent = "Morvane: Download Complete", fetched = "Morvane: Upload Complete";
  const std::string refused = "Morvane: This name leads out of the folder and is refused: ..\\C.TJB; ";
  // What is chosen in the dialog, then the wire, the boxes and the wait window.
  for (const auto& [run, chosen, done, wire, boxes, waits] :
       {Case{kSend,
             {"/base/A.TJB"},
             true,
             "QT7250DFILE A.TJB\r\na\r\nENDFILE\r\n",
             sent,
             {"Downloading A.TJB"}},
        Case{kSend,
             {"/home/b.job", "/home/none", "/home/b.job"},
             false,
             "QT7250DFILE b.job\r\nb\r\nENDJOB\r\n",
             "Morvane: DownloadFileTcp-File not found",
             {"Downloading b.job", "Downloading none"}},
        Case{kSend, {}, false, "", "", {}},
        Case{kSendFixed,
             {"/base/A.TJB"},
             true,
             "QT7250DFILE Default.cap\r\na\r\nENDFILE\r\n",
             sent,
             {"Downloading A.TJB"}},
        Case{
            kSendBinary, {"/home/C.RAS"}, true, "QT7250DLBIN C.RAS,2,3\r\n\1\2", sent, {"Downloading C.RAS"}},
        Case{kSendGraphic, {"/home/b.job"}, true, "JOB b\r\nb\r\nENDJOB\r\n", sent, {"Downloading b.job"}},
        Case{kFetchFixed,
             {"/base/My.cap"},
             true,
             "QT7250FILE Default.cap\r\n",
             fetched,
             {"Uploading Default.cap"}},
        Case{kFetchNamed,
             {"/base/My.cap"},
             false,
             "QT7250FILE My.cap\r\n",
             "Upload: My.cap" + kSilence + "; " + fetched,
             {"Uploading My.cap"}},
        Case{kFetchNamed, {}, false, "", "", {}},
        Case{kFetchFiles,
             {},
             true,
             "QT7250FILES *.TJB\r\nQT7250FILE A.TJB\r\nQT7250FILE B.TJB\r\n",
             "Upload: A.TJB" + kSilence + "; " + refused + fetched,
             {"Uploading A.TJB", "Uploading B.TJB"}},
        Case{kFetchNone, {}, false, "QT7250FILES *.TJB\r\n", "", {}},
        Case{kFetchGraphics,
             {},
             true,
             "QT7250JOBS\r\nQT7250FILE ONE.JOB\r\nQT7250FILE TWO.job\r\n",
             fetched,
             {"Uploading ONE.JOB", "Uploading TWO.job"}},
        Case{kSetClock,
             {},
             true,
             "QT7250DATE 03/05/24 14:07:09\r\n",
             "Morvane: Download Date/Time Complete",
             {"Downloading Date/Time"}},
        Case{kFetchTextJob, {}, true, "QT7250FILE TEXTJOB.JOB\r\n", "", {"Uploading TEXTJOB.JOB"}}}) {
    Station station;
    station.prompts.files = {chosen};
    EXPECT_EQ(run(station), done) << wire;
    EXPECT_EQ(station.controller.wire, wire);
    EXPECT_EQ(station.Boxes(), boxes) << wire;
    Strings texts = waits;
    for (std::string& text : texts) text += kWait;
    EXPECT_EQ(station.waitWindow.texts, texts);
    EXPECT_FALSE(station.waitWindow.shown);
    EXPECT_TRUE(run != kFetchFixed || station.disk.Get("/base/My.cap") == "new\r\n");
    EXPECT_TRUE(run != kFetchFiles || station.list == Strings({"A.TJB", "B.TJB", "..\\C.TJB"}));
    EXPECT_TRUE(run != kSendGraphic || station.prompts.requests[0].filter == "Job Files|*.JOB|All Files|*.*");
  }
}

TEST(Verify, TellsTheFirstDifference) {
  using Case = std::pair<const char*, std::string>;
  const std::string differs = "A.TJB differs in line ";
  for (const auto& [remote, box] :
       {Case{"one\ntwo\r\nENDFILE\r\n", "A.TJB verified"},
        Case{"one\r\n", "Upload: \\Temp\\verify.tmp" + kSilence},
        Case{"one\r\nTWO\r\nENDFILE\r\n", differs + "2\r\n\r\nHere: two\r\nMachine: TWO"},
        Case{"one\r\nENDFILE\r\n", differs + "2\r\n\r\nHere: two\r\nMachine: <end of file>"},
        Case{"one\r\ntwo\r\n\r\nENDFILE\r\n", differs + "3\r\n\r\nHere: <end of file>\r\nMachine: "}}) {
    Station station;
    station.disk.Put("/base/A.TJB", "one\r\ntwo");
    station.controller.replies["QT7250FILE A.TJB"] = {remote};
    station.prompts.files = {{"/base/A.TJB"}};
    const bool same = VerifyFiles(station.sources, "TJB Files|*.TJB", "tjb");
    EXPECT_EQ(same, box == "A.TJB verified");
    EXPECT_EQ(station.prompts.requests.at(0).title, "Verify File(s)");
    EXPECT_EQ(station.Boxes(), (box[0] == 'U' ? "" : "Morvane: ") + box);
    EXPECT_EQ(station.waitWindow.texts.front(), "Verifying A.TJB" + kWait);
  }
  // One byte of a block stands behind a long file that came over the network.
  for (const auto& [surplus, verified] : {std::pair{"x", true}, {"", true}, {"y", false}}) {
    Station station;
    const std::string file(3000, 'x');
    station.disk.Put("/base/A.TJB", file);
    station.controller.replies["QT7250FILE A.TJB"] = {file + surplus + "\r\nENDFILE\r\n"};
    EXPECT_EQ(VerifyFile(station.sources, "A.TJB", "A.TJB"), verified) << surplus;
  }
  Station station;
  EXPECT_FALSE(VerifyFile(station.sources, "NONE.TJB", "B.TJB"));
  EXPECT_EQ(station.Boxes(), "Morvane: VerifyFile-File not found");
}

}  // namespace
}  // namespace morvane::link

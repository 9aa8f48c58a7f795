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
  common::DialogFolders folders;
  common::FileDialogs dialogs{prompts, files, folders};
  Names list;
  WrapperSources sources{files, dialogs, prompts, waitWindow, comm};
};

bool Send(Station& s) {
  return DownloadFile(s.sources, "TJB Files|*.TJB", "tjb", "", false);
}
bool SendFixed(Station& s) {
  return DownloadFile(s.sources, "Cap Files|*.cap", "cap", "Default.cap", false);
}
bool SendBinary(Station& s) {
  return DownloadFile(s.sources, "Raster Files|*.RAS", "RAS", "", true);
}
bool SendGraphic(Station& s) {
  return DownloadGraphic(s.sources);
}
bool FetchFixed(Station& s) {
  return UploadNamedFile(s.sources, "Cap Files|*.cap", "cap", "Default.cap");
}
bool FetchNamed(Station& s) {
  return UploadNamedFile(s.sources, "Cap Files|*.cap", "cap", "");
}
bool FetchFiles(Station& s) {
  return UploadFiles(s.sources, "*.TJB", s.Picks({"A.TJB", "..\\C.TJB", "B.TJB"})) == Names{"B.TJB"};
}
bool FetchNone(Station& s) {
  return !UploadFiles(s.sources, "*.TJB", s.Picks({})).empty();
}
bool FetchGraphics(Station& s) {
  return UploadGraphics(s.sources, s.Picks({"ONE", "TWO.job"})) == Names{"ONE.JOB", "TWO.job"};
}
bool SetClock(Station& s) {
  return DownloadDateTime(s.sources, s.clock);
}
bool FetchTextJob(Station& s) {
  return UploadTextJob(s.sources);
}

TEST(Wrappers, SendAndFetchWhatIsChosen) {
  struct Case {
    bool (*run)(Station&);
    Strings chosen;  // in the dialog
    bool done;
    std::string wire;
    std::string boxes;
    Strings waits;
  };
  const std::string sent = "Morvane: Download Complete";
  const std::string fetched = "Morvane: Upload Complete";
  const std::string refused = "Morvane: This name leads out of the folder and is refused: ..\\C.TJB; ";
  const Case cases[] = {
      {Send, {"/base/A.TJB"}, true, "QT7250DFILE A.TJB\r\na\r\nENDFILE\r\n", sent, {"Downloading A.TJB"}},
      {Send,
       {"/home/b.job", "/home/none", "/home/b.job"},
       false,
       "QT7250DFILE b.job\r\nb\r\nENDJOB\r\n",
       "Morvane: DownloadFileTcp-File not found",
       {"Downloading b.job", "Downloading none"}},
      {Send, {}, false, "", "", {}},
      {SendFixed,
       {"/base/A.TJB"},
       true,
       "QT7250DFILE Default.cap\r\na\r\nENDFILE\r\n",
       sent,
       {"Downloading A.TJB"}},
      {SendBinary, {"/home/C.RAS"}, true, "QT7250DLBIN C.RAS,2,3\r\n\1\2", sent, {"Downloading C.RAS"}},
      {SendGraphic, {"/home/b.job"}, true, "JOB b\r\nb\r\nENDJOB\r\n", sent, {"Downloading b.job"}},
      {SendGraphic, {}, false, "", "", {}},
      {FetchFixed, {"/base/My.cap"}, true, "QT7250FILE Default.cap\r\n", fetched, {"Uploading Default.cap"}},
      {FetchNamed,
       {"/base/My.cap"},
       false,
       "QT7250FILE My.cap\r\n",
       "Upload: My.cap" + kSilence + "; " + fetched,
       {"Uploading My.cap"}},
      {FetchNamed, {}, false, "", "", {}},
      {FetchFiles,
       {},
       true,
       "QT7250FILES *.TJB\r\nQT7250FILE A.TJB\r\nQT7250FILE B.TJB\r\n",
       "Upload: A.TJB" + kSilence + "; " + refused + fetched,
       {"Uploading A.TJB", "Uploading B.TJB"}},
      {FetchNone, {}, false, "QT7250FILES *.TJB\r\n", "", {}},
      {FetchGraphics,
       {},
       true,
       "QT7250JOBS\r\nQT7250FILE ONE.JOB\r\nQT7250FILE TWO.job\r\n",
       fetched,
       {"Uploading ONE.JOB", "Uploading TWO.job"}},
      {SetClock,
       {},
       true,
       "QT7250DATE 03/05/24 14:07:09\r\n",
       "Morvane: Download Date/Time Complete",
       {"Downloading Date/Time"}},
      {FetchTextJob, {}, true, "QT7250FILE TEXTJOB.JOB\r\n", "", {"Uploading TEXTJOB.JOB"}},
  };
  for (const Case& c : cases) {
    Station station;
    station.prompts.files = {c.chosen};
    EXPECT_EQ(c.run(station), c.done) << c.wire;
    EXPECT_EQ(station.controller.wire, c.wire);
    EXPECT_EQ(station.Boxes(), c.boxes) << c.wire;
    Strings waits = c.waits;
    for (std::string& text : waits) text += kWait;
    EXPECT_EQ(station.waitWindow.texts, waits);
    EXPECT_FALSE(station.waitWindow.shown);
    EXPECT_TRUE(c.run != FetchFixed || station.disk.Get("/base/My.cap") == "new\r\n");
    EXPECT_TRUE(c.run != FetchFiles || station.list == Strings({"A.TJB", "B.TJB", "..\\C.TJB"}));
    EXPECT_TRUE(c.run != SendGraphic ||
                station.prompts.requests[0].filter == "Job Files|*.JOB|All Files|*.*");
  }
}

TEST(Verify, TellsTheFirstDifference) {
  struct Case {
    const char* remote;
    std::string box;
  };
  const Case cases[] = {
      {"one\ntwo\r\nENDFILE\r\n", "A.TJB verified"},
      {"one\r\n", "Upload: \\Temp\\verify.tmp" + kSilence},
      {"one\r\nTWO\r\nENDFILE\r\n",
       std::string("A.TJB differs in line 2") + "\r\n\r\nHere: two\r\nMachine: TWO"},
      {"one\r\nENDFILE\r\n",
       std::string("A.TJB differs in line 2") + "\r\n\r\nHere: two\r\nMachine: <end of file>"},
      {"one\r\ntwo\r\n\r\nENDFILE\r\n",
       std::string("A.TJB differs in line 3") + "\r\n\r\nHere: <end of file>\r\nMachine: "},
  };
  for (const Case& c : cases) {
    Station station;
    station.disk.Put("/base/A.TJB", "one\r\ntwo");
    station.controller.replies["QT7250FILE A.TJB"] = {c.remote};
    station.prompts.files = {{"/base/A.TJB"}};
    const bool same = VerifyFiles(station.sources, "TJB Files|*.TJB", "tjb");
    EXPECT_EQ(same, c.box == "A.TJB verified");
    EXPECT_EQ(station.Boxes(), (c.box[0] == 'U' ? "" : "Morvane: ") + c.box);
    EXPECT_EQ(station.waitWindow.texts.front(), "Verifying A.TJB" + kWait);
  }
  Station station;
  EXPECT_FALSE(VerifyFile(station.sources, "NONE.TJB", "B.TJB"));
  EXPECT_EQ(station.Boxes(), "Morvane: VerifyFile-File not found");
}

}  // namespace
}  // namespace morvane::link

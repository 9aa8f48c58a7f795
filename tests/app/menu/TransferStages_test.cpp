// The user does something else at every stage of every transfer: while the line is opened, during the
// sending, the draining, the waiting for a reply and the closing, over both transports.
#include "app/menu/MenuTable.h"
#include "gcode/ui/frmGraphic.h"
#include "link/LinkOwner.h"
#include "support/qt_WindowStation.h"
#include "textjob/ui/frmEdit.h"

namespace morvane::test {
namespace {

const std::string kInUse = link::kLinkInUse;
constexpr int kStages[] = {1, 2, 4, 9, 20, 60};

struct Operation {
  const char* starter;  // a button of the editor or a menu entry
  const char* end;      // what it says at its end; empty: nothing
};
constexpr Operation kOperations[] = {{"cmdDownload", "Download Complete"},
                                     {"cmdDownloadRun", "Download and Run Complete"},
                                     {"cmdUpload", ""},
                                     {"mnuFileDownload", "Download Complete"},
                                     {"mnuFileUpload", "Upload Complete"},
                                     {"mnuCapUpload", "Upload Complete"},
                                     {"mnuFileVerify", "A.TJB verified"}};

struct Scene {
  explicit Scene(bool network) {
    station.Set("ComPort", network ? "5" : "3");
    station.Set("IP", "10.0.0.7");
    station.folder.Write("A.TJB", kJob);
    station.folder.Write("A.FIL", "fill\r\n");
    FakeReply& reply = station.controller.replies["QT7250FILE "];
    reply.bytes = kJob + std::string("ENDFILE\r\n");
    reply.piece = 13;  // of the 39 bytes before the marker, which is not to be split
    reply.gap = 0.05;
    station.controller.replies["QT7250FILES"] = {"B.TJB\r\nENDFILE\r\n"};
    station.Load();
    station.windows.OpenFile(station.folder / "A.TJB");
    closer.callOnTimeout([] {
      if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) modal->reject();
    });
    closer.start(0);
  }
  void Start(const Operation& operation) {
    const std::string starter = operation.starter;
    station.prompts.picks = {{"B.TJB"}};
    const std::string chosen = station.folder / (starter == "mnuCapUpload" ? "B.TJB" : "A.TJB");
    station.prompts.files.assign(1, {chosen});
    if (starter.starts_with("cmd")) {
      Find<QPushButton>(station.Active<textjob::frmEdit>(), operation.starter).click();
    } else {
      station.Entry(operation.starter).trigger();
    }
    WindowStation::Pump();
  }
  // Does it at the wait of that number; false once the operation has no such wait.
  void At(int stage, std::function<void()> act) {
    station.clock.onWait = [this, stage, act = std::move(act)](int ms) {
      if (++waits == stage) act();
      usual(ms);
    };
  }
  void Rewind() {
    station.windows.OpenFile(station.folder / "A.TJB");
    station.prompts.boxes.clear();
    station.clock.onWait = usual;
    waits = 0;
  }
  void CheckIdle() {
    EXPECT_EQ(station.comm.Owner().Now(), link::LinkOwner::State::Idle);
    EXPECT_FALSE(station.waitWindow.shown);
    EXPECT_FALSE(station.serial.IsOpen());
    EXPECT_FALSE(station.operations.Running());
    EXPECT_EQ(station.tcp.State(), platform::TcpState::Closed);
  }
  void CheckNextWorks() {
    CheckIdle();
    EXPECT_FALSE(station.abort);
    for (auto* viewer : station.Frame().findChildren<gcode::frmGraphic*>()) viewer->parentWidget()->close();
    Rewind();
    Start(kOperations[0]);
    EXPECT_EQ(station.prompts.Texts(), std::vector<std::string>{"Download Complete"});
    EXPECT_TRUE(Find<QPushButton>(station.Active<textjob::frmEdit>(), "cmdDownload").isEnabled());
    EXPECT_EQ(station.folder.Read("A.TJB"), kJob);
  }

  static constexpr const char* kJob = "COMMENT,1\r\n7,1,1,1,,0,0,0,0,A.FIL@@,1\r\n";
  WindowStation station;
  std::function<void(int)> usual = station.clock.onWait;
  QTimer closer;  // cancels every dialog
  int waits = 0;
};

// Runs the check for every operation, transport and stage that there is, in one program after the other
// while it lasts.
void ForEachStage(const std::function<void(Scene&, const Operation&, int)>& check) {
  for (const bool network : {false, true}) {
    std::unique_ptr<Scene> scene;
    for (const Operation& operation : kOperations) {
      for (const int stage : kStages) {
        SCOPED_TRACE(std::string(network ? "tcp " : "serial ") + operation.starter + " at " +
                     std::to_string(stage));
        if (!scene || !scene->station.Frame().isVisible()) scene = std::make_unique<Scene>(network);
        scene->Rewind();
        check(*scene, operation, stage);
      }
    }
  }
}

TEST(TransferStages, EveryEntryOfTheMenusWaitsOrLeavesItAlone) {
  ForEachStage([](Scene& scene, const Operation& operation, int stage) {
    WindowStation& station = scene.station;
    scene.At(stage, [&] {
      station.prompts.files.assign(20, {});
      for (const app::MenuEntry& entry : app::MenuEntries()) {
        const std::string_view name = entry.name;
        if (entry.click != nullptr && name != "mnuFileExit" && name != "mnuFileClose") {
          station.Entry(entry.name).trigger();
        }
      }
      for (auto* editor : station.Frame().findChildren<textjob::frmEdit*>()) {
        EXPECT_EQ(Find<QPushButton>(*editor, "cmdDownload").isEnabled(), operation.starter[0] == 'm');
      }
    });
    scene.Start(operation);
    std::vector<std::string> texts = station.prompts.Texts();
    std::erase_if(texts, [](const std::string& text) { return text == kInUse; });
    const std::string end = operation.end;
    EXPECT_EQ(texts, end.empty() ? std::vector<std::string>() : std::vector<std::string>{end});
    scene.CheckNextWorks();
  });
}

TEST(TransferStages, TheEditorClosesAndEndsOnlyWhatItBegan) {
  ForEachStage([](Scene& scene, const Operation& operation, int stage) {
    WindowStation& station = scene.station;
    scene.At(stage, [&] { station.Entry("mnuFileClose").trigger(); });
    scene.Start(operation);
    const bool cut = scene.waits >= stage && operation.starter[0] == 'c';
    const std::string end = cut ? "" : operation.end;
    EXPECT_EQ(station.prompts.Texts(),
              end.empty() ? std::vector<std::string>() : std::vector<std::string>{end});
    scene.CheckNextWorks();
  });
}

TEST(TransferStages, TheProgramLeavesAtOnce) {
  ForEachStage([](Scene& scene, const Operation& operation, int stage) {
    WindowStation& station = scene.station;
    double asked = 0;
    scene.At(stage, [&] {
      asked = station.clock.seconds;
      station.Entry("mnuFileExit").trigger();
    });
    scene.Start(operation);
    if (scene.waits < stage) return;
    EXPECT_FALSE(station.Frame().isVisible());
    EXPECT_TRUE(station.prompts.boxes.empty());
    EXPECT_LE(station.clock.seconds, asked + 0.11);
    scene.CheckIdle();
  });
}

}  // namespace
}  // namespace morvane::test

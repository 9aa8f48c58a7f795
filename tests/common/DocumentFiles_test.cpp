#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "recipes/modFixture.h"
#include "support/FakeFileSystem.h"
#include "textjob/LockImages.h"

namespace morvane {
namespace {

using common::Files;
using common::RunTimeError;

TEST(DocumentFiles, AreWrittenWholeOrNotAtAll) {
  const struct {
    const char* path;
    void (*write)(const Files&);
    void (*read)(const Files&);  // throws when the file is not there
  } cases[] = {
      {"/base/RING.FIX", [](const Files& f) { recipes::WriteFixture(f, "RING.FIX", {}); },
       [](const Files& f) { recipes::ReadFixture(f, "ring.fix"); }},
      {"/base/DOOR.PAN", [](const Files& f) { gcode::panel::WritePanel(f, "DOOR.PAN", {}); },
       [](const Files& f) {
         if (!gcode::panel::ReadPanel(f, "door.pan")) throw RunTimeError(common::kFileNotFound);
       }},
      {"/base/LOT.DM", [](const Files& f) { datamatrix::WriteDataMatrix(f, "LOT.DM", {}); },
       [](const Files& f) { datamatrix::ReadDataMatrix(f, "lot.dm", datamatrix::MissingMarker::Empties); }},
      {"/base/LockImages.txt",
       [](const Files& f) {
         textjob::WriteLockRecord(f, {"A.TJB", "", 0, 0, 0, 0}, false);
       },
       [](const Files& f) {
         textjob::LockRecord record{"A.TJB", "", 0, 0, 0, 0};
         if (!textjob::FindLockRecord(f, record)) throw RunTimeError(common::kFileNotFound);
       }}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.path);
    test::FakeFileSystem fileSystem("/base");
    const Files files(fileSystem, "/base");
    EXPECT_THROW(c.read(files), RunTimeError);
    c.write(files);
    EXPECT_NO_THROW(c.read(files));
    fileSystem.Put(c.path, "old");
    fileSystem.faults.bytesLeft = 10;
    EXPECT_THROW(c.write(files), RunTimeError);
    EXPECT_EQ(fileSystem.Get(c.path), "old");
  }
}

}  // namespace
}  // namespace morvane

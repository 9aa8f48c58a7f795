#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "datamatrix/modDataMatrix.h"
#include "gcode/panel/modPanel.h"
#include "recipes/modFixture.h"
#include "support/FakeFileSystem.h"
#include "textjob/job/LockImages.h"

namespace morvane {
namespace {

TEST(DocumentFiles, AreWrittenWholeOrNotAtAll) {
  using common::Files;
  using Case = std::pair<const char*, void (*)(const Files&)>;
  for (const auto& [path, write] :
       {Case{"/base/RING.FIX", [](const Files& files) { recipes::WriteFixture(files, "RING.FIX", {}); }},
        Case{"/base/DOOR.PAN", [](const Files& files) { gcode::panel::WritePanel(files, "DOOR.PAN", {}); }},
        Case{"/base/LOT.DM", [](const Files& files) { datamatrix::WriteDataMatrix(files, "LOT.DM", {}); }},
        Case{"/base/LockImages.txt", [](const Files& files) {
               textjob::WriteLockRecord(files, {"A.TJB", "", 0, 0, 0, 0}, false);
             }}}) {
    SCOPED_TRACE(path);
    test::FakeFileSystem fileSystem("/base");
    const Files files(fileSystem, "/base");
    write(files);
    EXPECT_TRUE(fileSystem.Has(path));
    fileSystem.Put(path, "old");
    fileSystem.faults.bytesLeft = 10;
    EXPECT_THROW(write(files), common::RunTimeError);
    EXPECT_EQ(fileSystem.Get(path), "old");
  }
}

}  // namespace
}  // namespace morvane

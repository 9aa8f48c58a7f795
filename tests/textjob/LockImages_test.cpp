#include "textjob/LockImages.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/FakeFileSystem.h"

namespace morvane::textjob {
namespace {

const std::string kList = "/base/LockImages.txt";
const std::string kLines = "A.TJB,A.BMP,1,2.5,3,4\r\nDIR\\b.tjb,,0,0,2,2\r\nC.TJB,C.BMP,0.125,-1,1E+10,4\r\n";

class LockImages : public ::testing::Test {
 protected:
  test::FakeFileSystem fileSystem_{"/base"};
  common::Files files_{fileSystem_, "/base"};
};

TEST_F(LockImages, FindsAJobByItsNameAlone) {
  fileSystem_.Put(kList, "\r\n" + kLines + "D.TJB\r\nA.TJB,SECOND.BMP,9,9,9,9");
  const struct {
    const char* job;
    bool found;
    const char* image;
    float x, y, width, height;
  } cases[] = {{"A.TJB", true, "A.BMP", 1, 2.5F, 3, 4},
               {"/home/jobs/B.TJB", true, "", 0, 0, 2, 2},
               {"SUB\\c.tjb", true, "C.BMP", 0.125F, -1, 1e10F, 4},
               {"D.TJB", true, "", 0, 0, 0, 0},
               {"E.TJB", false, "kept", 7, 7, 7, 7}};
  for (const auto& c : cases) {
    LockRecord r{c.job, "kept", 7, 7, 7, 7};
    EXPECT_EQ(FindLockRecord(files_, r), c.found) << c.job;
    EXPECT_EQ(r.Image, c.image) << c.job;
    EXPECT_EQ((std::vector<float>{r.X, r.Y, r.Width, r.Height}),
              (std::vector<float>{c.x, c.y, c.width, c.height}))
        << c.job;
  }
}

TEST_F(LockImages, WritesTheRecordAndDropsTheLaterOnes) {
  const struct {
    const char* job;
    bool remove;
    std::string list;
  } cases[] = {{"b.tjb", false, "A.TJB,A.BMP,1,2.5,3,4\r\nb.tjb,NEW.BMP,0.5,-1,2,1E+10\r\n"},
               {"B.TJB", true, "A.TJB,A.BMP,1,2.5,3,4\r\n"},
               {"A.TJB", true, ""},
               {"E.TJB", false, kLines + "E.TJB,NEW.BMP,0.5,-1,2,1E+10\r\n"},
               {"E.TJB", true, kLines}};
  for (const auto& c : cases) {
    fileSystem_.Put(kList, kLines);
    WriteLockRecord(files_, {c.job, "NEW.BMP", 0.5F, -1, 2, 1e10F}, c.remove);
    EXPECT_EQ(fileSystem_.Get(kList), c.list) << c.job;
  }
}

TEST_F(LockImages, AMissingListIsCreated) {
  LockRecord record{"A.TJB", "", 0, 0, 0, 0};
  EXPECT_FALSE(FindLockRecord(files_, record));
  WriteLockRecord(files_, {"A.TJB", "A.BMP", 1, 2.5F, 3, 4}, false);
  EXPECT_EQ(fileSystem_.Get(kList), "A.TJB,A.BMP,1,2.5,3,4\r\n");
}

TEST_F(LockImages, AListThatCannotBeReadIsNotWrittenAnew) {
  fileSystem_.Put(kList, kLines);
  fileSystem_.faults.read = platform::Error::DeviceError;
  LockRecord record{"A.TJB", "", 0, 0, 0, 0};
  EXPECT_FALSE(FindLockRecord(files_, record));
  EXPECT_THROW(WriteLockRecord(files_, record, false), common::RunTimeError);
  EXPECT_EQ(fileSystem_.Get(kList), kLines);
}

}  // namespace
}  // namespace morvane::textjob

#include "textjob/job/LockImages.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/BaseStation.h"

namespace morvane::textjob {
namespace {

const std::string kList = "/base/LockImages.txt";
const std::string kLines = "A.TJB,A.BMP,1,2.5,3,4\r\nDIR\\b.tjb,,0,0,2,2\r\nC.TJB,C.BMP,0.125,-1,1E+10,4\r\n";

class LockImages : public testing::Test, public test::BaseStation {
 protected:
};

TEST_F(LockImages, FindsAJobByItsNameAlone) {
  disk.Put(kList, "\r\n" + kLines + "D.TJB\r\nA.TJB,SECOND.BMP,9,9,9,9");
  using Case = std::tuple<const char*, bool, const char*, std::vector<float>>;
  for (const auto& [job, found, image, place] :
       {Case{"A.TJB", true, "A.BMP", {1, 2.5F, 3, 4}}, Case{"/home/jobs/B.TJB", true, "", {0, 0, 2, 2}},
        Case{"SUB\\c.tjb", true, "C.BMP", {0.125F, -1, 1e10F, 4}}, Case{"D.TJB", true, "", {0, 0, 0, 0}},
        Case{"E.TJB", false, "kept", {7, 7, 7, 7}}}) {
    LockRecord r{job, "kept", 7, 7, 7, 7};
    EXPECT_EQ(FindLockRecord(files, r), found) << job;
    EXPECT_EQ(r.Image, image) << job;
    EXPECT_EQ((std::vector<float>{r.X, r.Y, r.Width, r.Height}), place) << job;
  }
}

TEST_F(LockImages, WritesTheRecordAndDropsTheLaterOnes) {
  WriteLockRecord(files, {"A.TJB", "A.BMP", 1, 2.5F, 3, 4}, false);
  const std::string first = "A.TJB,A.BMP,1,2.5,3,4\r\n";
  EXPECT_EQ(disk.Get(kList), first) << "a missing list is created";
  const std::string rest = ",NEW.BMP,0.5,-1,2,1E+10\r\n";
  using Case = std::tuple<const char*, bool, std::string>;
  for (const auto& [job, remove, list] :
       {Case{"b.tjb", false, first + "b.tjb" + rest}, Case{"B.TJB", true, first}, Case{"A.TJB", true, ""},
        Case{"E.TJB", false, kLines + "E.TJB" + rest}, Case{"E.TJB", true, kLines}}) {
    disk.Put(kList, kLines);
    WriteLockRecord(files, {job, "NEW.BMP", 0.5F, -1, 2, 1e10F}, remove);
    EXPECT_EQ(disk.Get(kList), list) << job;
  }
}

TEST_F(LockImages, AListThatCannotBeReadIsNotWrittenAnew) {
  disk.Put(kList, kLines);
  disk.faults.read = platform::Error::DeviceError;
  LockRecord record{"A.TJB", "", 0, 0, 0, 0};
  EXPECT_FALSE(FindLockRecord(files, record));
  EXPECT_THROW(WriteLockRecord(files, record, false), common::RunTimeError);
  EXPECT_EQ(disk.Get(kList), kLines);
}

}  // namespace
}  // namespace morvane::textjob

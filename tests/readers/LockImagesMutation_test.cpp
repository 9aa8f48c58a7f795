#include <gtest/gtest.h>

#include "support/FakeFileSystem.h"
#include "support/Mutator.h"
#include "textjob/LockImages.h"

namespace morvane::textjob {
namespace {

// A record that was written is found again whatever else the list holds.
void Read(const std::string& bytes) {
  test::FakeFileSystem fileSystem("/base");
  const common::Files files(fileSystem, "/base");
  fileSystem.Put("/base/LockImages.txt", bytes);
  LockRecord record{"B.TJB", "", 0, 0, 0, 0};
  FindLockRecord(files, record);
  WriteLockRecord(files, {"B.TJB", "B.BMP", 1, 2, 3, 4}, false);
  ASSERT_TRUE(FindLockRecord(files, record));
  ASSERT_EQ(record.Image, "B.BMP");
  ASSERT_EQ(record.Height, 4.0F);
}

TEST(LockImagesMutation, AnyBytes) {
  test::RunMutations({"A.TJB,A.BMP,1,2.5,3,4\r\nDIR\\b.tjb,,0,0,2,2\r\nC.TJB,C.BMP,0.125,-1,1E+10,4\r\n"},
                     Read);
}

TEST(LockImagesMutation, HugeLines) {
  test::RunHugeLine("A.TJB,", "9", Read);
  test::RunHugeLine("", "\\", Read);
}

}  // namespace
}  // namespace morvane::textjob

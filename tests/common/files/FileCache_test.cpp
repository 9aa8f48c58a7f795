#include "common/files/FileCache.h"

#include <gtest/gtest.h>

#include "common/RunTimeError.h"
#include "support/BaseStation.h"

namespace morvane::common {
namespace {

std::string Doubled(const std::string& bytes) {
  return bytes.empty() ? throw RunTimeError(kTypeMismatch) : bytes + bytes;
}
std::size_t Length(const std::string& bytes) {
  return bytes.size();
}

class FileCacheTest : public testing::Test, public test::BaseStation {
 protected:
  FileCacheTest() { disk.Put("/base/A", "a"); }
  int Reads() const { return disk.reads["/base/A"]; }
};

TEST_F(FileCacheTest, ReadsAndParsesAgainOnlyWhatChanged) {
  const auto first = files.ReadAs<Doubled>("A");
  EXPECT_EQ(files.ReadInsideAs<Doubled>("a"), first);
  EXPECT_EQ(*files.ReadAs<Length>("A"), 1U);
  EXPECT_EQ(*files.ReadKept("A"), "a");
  EXPECT_EQ(Reads(), 1);
  disk.Put("/base/A", "b");  // another time
  EXPECT_EQ(*files.ReadAs<Doubled>("A"), "bb");
  disk.Put("/base/A", "longer");
  disk.SetModified("/base/A", 0);
  EXPECT_EQ(*files.ReadKept("A"), "longer");
  files.Save("A", "");  // by ourselves: even within one tick of the clock
  EXPECT_THROW(files.ReadAs<Doubled>("A"), RunTimeError);
  EXPECT_EQ(*first, "aa");
  disk.Remove("/base/A");
  EXPECT_THROW(files.ReadKept("A"), RunTimeError);
}

TEST_F(FileCacheTest, DropsWhatWasUsedLongestAgo) {
  FileCache cache(disk, 5000);
  disk.Put("/base/B", std::string(2000, 'b'));
  disk.Put("/base/C", std::string(4000, 'c'));
  disk.Put("/base/HUGE", std::string(9000, 'h'));
  const auto touch = [&](const std::string& path) { return cache.Bytes(path)->size(); };
  touch("/base/B");
  touch("/base/A");
  touch("/base/C");  // B goes
  touch("/base/A");
  EXPECT_EQ(Reads(), 1);
  touch("/base/B");
  EXPECT_EQ(disk.reads["/base/B"], 2);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(touch("/base/HUGE"), 9000U);
  EXPECT_EQ(disk.reads["/base/HUGE"], 2);
}

}  // namespace
}  // namespace morvane::common

// Replies: how they are taken from the link and stored.
#include <gtest/gtest.h>

#include "link/LineEnds.h"
#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using test::Ending;
using test::FakeReply;

TEST(Replies, EndAtTheMarkerOrInSilence) {
  const std::string kTimeout = std::string("Upload: A.TXT\r\n\r\n") + "Timeout waiting for controller";
  const std::string longLine(1020, 'x');
  struct Case {
    const char* name;
    bool network;
    FakeReply reply;
    std::string stored;
    bool done;
    bool timed = false;  // UploadFileTimed
    std::string box = {};
  };
  const Case cases[] = {
      {"lines", false, {"a\nb\r\r\n\r\nENDFILE\r\nno more\r\n"}, "a\r\nb\r\n\r\n", true},
      {"marker begins its line", false, {"a\r\nENDFILES.TXT\r\n"}, "a\r\n", true},
      {"glued marker", false, {"ENDFILEXYZENDFI\r\n"}, "", true},
      {"glued marker", false, {"a\r\nXENDFILEYZENDFILE\r\n"}, "a\r\nXYZ\r\n", true},
      {"glued marker, timed", false, {"XYZENDFILE\r\nENDFILE\r\n"}, "XYZENDFILE\r\n", true, true},
      {"byte by byte", false, {"ab\r\nc\r\nENDFILE\r\n", 1, 0.3}, "ab\r\nc\r\n", true},
      {"no line end", false, {"a\r\nENDFILE"}, "a\r\n", false, false, kTimeout},
      {"silence, timed", false, {"a\r\n"}, "a\r\n", false, true},
      {"pauses", false, {"a\r\n1234\r\nENDFILE\r\n", 9, 9}, "a\r\n1234\r\n", true},
      {"lines count, not bytes", false, {"abcdefgh", 1, 9}, "", false, false, kTimeout},
      {"whole",
       true,
       {"a\nb\r\nc\r\r\nd\r\r\r\ne\r\r\r\r\nENDFILE\r\n"},
       "a\r\nb\r\nc\r\nd\r\ne\r\r\n",
       true},
      {"in mid-line", true, {"a\r\nXENDFILEY\r\nb"}, "a\r\nX", true},
      {"split by the chunks",
       true,
       {longLine + "ENDFILE\r\n"},
       longLine + "ENDFILE\r\n",
       false,
       false,
       kTimeout},
      {"just whole in its chunk", true, {longLine.substr(3) + "ENDFILE\r\n"}, longLine.substr(3), true},
      {"split by the arrivals", true, {"abENDFILE\r\n", 5, 1}, "abENDFILE\r\n", false, false, kTimeout},
      {"pauses", true, {"abcdefghiENDFILE", 9, 9}, "abcdefghi", true},
      {"pieces count", true, {"abENDFILE", 1, 9}, "abENDFILE", false, false, kTimeout},
      {"silence", true, {"a\nb", 0, 0}, "a\nb", false, true, kTimeout},
      {"closed in good order", true, {"a\n", 0, 0, false, Ending::Closes}, "a\n", false, false, kTimeout},
      {"closed behind the marker", true, {"a\nENDFILE", 0, 0, false, Ending::Closes}, "a\r\n", true},
      {"reset",
       true,
       {"a\n", 0, 0, false, Ending::Resets},
       "a\n",
       false,
       false,
       "Morvane: Socket Error: Connection reset by peer; " + kTimeout},
      {"", true, {}, "", false, false, kTimeout},
      {"", false, {}, "", false, false, kTimeout},
  };
  for (const Case& c : cases) {
    test::LinkStation station(c.network);
    station.disk.Put("/base/A.TXT", "what was there before");
    station.controller.replies["QT7250FILE A.TXT"] = c.reply;
    station.waitWindow.Show("Uploading");
    int timeout = 0;
    const bool done = c.timed ? station.comm.UploadFileTimed("QT7250FILE A.TXT", "A.TXT", timeout)
                              : station.comm.UploadFile("QT7250FILE A.TXT", "A.TXT");
    EXPECT_EQ(done, c.done) << c.name;
    EXPECT_EQ(station.disk.Get("/base/A.TXT"), c.stored) << c.name;
    EXPECT_EQ(station.Boxes(), c.box) << c.name;
    EXPECT_EQ(station.controller.wire, "QT7250FILE A.TXT\r\n");
    EXPECT_EQ(timeout, c.timed ? 10 : 0);
    EXPECT_EQ(station.waitWindow.shown, !c.network && c.box.empty()) << c.name;
  }
}

TEST(Replies, TimeOutAfterWholeSecondsOfSilence) {
  for (const bool network : {false, true}) {
    test::LinkStation station(network);
    station.controller.replies["GET"] = {"line\r\n", 0, 5.5};
    int timeout = 3;
    EXPECT_FALSE(station.comm.UploadFileTimed("GET", "A.TXT", timeout));
    EXPECT_NEAR(station.clock.seconds, 5, 0.1);  // 3 seconds are over in the fourth, and the close delay
    station.clock.seconds = 0;
    EXPECT_FALSE(station.comm.UploadFile("GET", "A.TXT"));
    EXPECT_NEAR(station.clock.seconds, 5 + 11 + 1, 0.1);  // from the line at 5.5
  }
}

TEST(Replies, WithoutEndStayInBoundedMemoryAndEndWithTheProgram) {
  struct Case {
    bool network;
    const char* bytes;
    std::size_t stored;  // at least
  };
  for (const Case& c : {Case{false, "no line end", 0}, {false, "line\r\n", 50000}, {true, "flood", 50000}}) {
    test::LinkStation station(c.network);
    std::string block;
    while (block.size() < 4096) block += c.bytes;
    station.controller.replies["GET"] = {block, 0, 0, true};
    int waits = 0;
    station.during = [&] {
      EXPECT_LE(station.comm.Open().Buffer().Size(), kCommBufferSize);
      station.abort = ++waits > 9000;
    };
    EXPECT_FALSE(station.comm.UploadFile("GET", "A.TXT"));
    EXPECT_GE(station.disk.Get("/base/A.TXT").size(), c.stored);
    EXPECT_EQ(station.Boxes(), "");
    EXPECT_EQ(station.comm.Owner().Now(), LinkOwner::State::Idle);
  }
}

TEST(Replies, OfARun) {
  struct Case {
    const char* reply;
    bool done;
  };
  for (const Case& c : {Case{"SUCCESS\r\nENDFILE\r\n", true},
                        {"SUCCESS 1\r\nENDFILE\r\n", false},
                        {"ENDFILE\r\n", false},
                        {"SUCCESS\r\n", false}}) {
    test::LinkStation station(false);
    station.controller.replies["QT7250RUNWAIT A.TJB"] = {c.reply, 0, 9};
    EXPECT_EQ(station.comm.RunWait("A.TJB", 0), c.done) << c.reply;
    EXPECT_EQ(station.Boxes(), "");
    EXPECT_EQ(station.disk.Get("/tmp/run.ret").substr(0, 3),
              std::string(c.reply) == "ENDFILE\r\n" ? "" : "SUC");
  }
}

TEST(CommBuffer, GivesLinesAndChunks) {
  CommBuffer buffer;
  buffer.Append("no end");
  EXPECT_EQ(buffer.TakeLine(), "");
  buffer.Append(" yet\r\nsecond\n\nrest");
  EXPECT_EQ(buffer.TakeLine(), "no end yet\r\n");
  EXPECT_EQ(buffer.TakeLine(), "second\n");
  EXPECT_EQ(buffer.TakeLine(), "\n");
  EXPECT_EQ(buffer.TakeLine(), "");
  EXPECT_EQ(buffer.TakeChunk(), "rest");
  // Many times its size goes through it, and lines are found across what was taken.
  for (int i = 0; i < 3000; ++i) {
    buffer.Append(std::string(1500, static_cast<char>('a' + i % 26)) + '\n');
    ASSERT_EQ(buffer.TakeChunk(), std::string(1024, static_cast<char>('a' + i % 26)));
    ASSERT_EQ(buffer.TakeLine().size(), 477U);
  }
}

TEST(LineEnds, AreStrippedAndMadeWhole) {
  EXPECT_EQ(StripLineEnds("\r\na\rb\n\nc\r\n"), "abc");
  struct Case {
    const char* given;
    const char* whole;
  };
  const Case cases[] = {{"a\nb", "a\r\nb"},
                        {"\r\n", "\r\n"},
                        {"\r\r\n", "\r\n"},
                        {"\r\r\r\n", "\r\n"},
                        {"\r\r\r\r\n", "\r\r\n"},
                        {"a\rb\r", "a\rb\r"},
                        {"\n\r\n", "\r\n\r\n"},
                        {"", ""},
                        {"\r\r\n\r\n\n", "\r\n\r\n\r\n"}};
  for (const Case& c : cases) {
    test::LinkStation station(true);
    station.disk.Put("/base/A.TXT", c.given);
    NormalizeLineEnds(station.files, "A.TXT");
    EXPECT_EQ(station.disk.Get("/base/A.TXT"), c.whole);
  }
}

}  // namespace
}  // namespace morvane::link

// Replies: how they are taken from the link and stored.
#include <gtest/gtest.h>

#include "link/wire/LineEnds.h"
#include "support/LinkStation.h"

namespace morvane::link {
namespace {

using test::Ending;
using test::FakeReply;

TEST(Replies, EndAtTheMarkerOrInSilence) {
  const std::string kTimeout = std::string("Upload: A.TXT\r\n\r\n") + "Timeout waiting for controller";
  const std::string longLine(1020, 'x');
  struct Case {
    bool network;
    FakeReply reply;
    std::string stored;
    bool done, timed = false;  // UploadFileTimed
    std::string box = {};
  };
  const auto untold = [&](bool network, const FakeReply& reply, const char* stored) {
    return Case{network, reply, stored, false, false, kTimeout};
  };
  for (const Case& c :
       {Case{false, {"a\nb\r\r\n\r\nENDFILE\r\nno more\r\n"}, "a\r\nb\r\n\r\n", true},
        // A marker at the beginning of its line, and in it; byte by byte; with pauses.
        Case{false, {"a\r\nENDFILES.TXT\r\n"}, "a\r\n", true},
        Case{false, {"a\r\nXENDFILEYZENDFILE\r\n"}, "a\r\nXYZ\r\n", true},
        Case{false, {"XYZENDFILE\r\nENDFILE\r\n"}, "XYZENDFILE\r\n", true, true},
        Case{false, {"ab\r\nc\r\nENDFILE\r\n", 1, 0.3}, "ab\r\nc\r\n", true},
        Case{false, {"a\r\n1234\r\nENDFILE\r\n", 9, 9}, "a\r\n1234\r\n", true},
        untold(false, {"a\r\nENDFILE"}, "a\r\n"), Case{false, {"a\r\n"}, "a\r\n", false, true},
        untold(false, {"abcdefgh", 1, 9}, ""), untold(false, {}, ""),
        // The network: in mid-line, split by its chunks and by the arrivals, closed and reset.
        Case{true, {"a\nb\r\nc\r\r\nd\r\r\r\nENDFILE\r\n"}, "a\r\nb\r\nc\r\nd\r\n", true},
        Case{true, {"a\r\nXENDFILEY\r\nb"}, "a\r\nX", true},
        untold(true, {longLine + "ENDFILE\r\n"}, (longLine + "ENDFILE\r\n").c_str()),
        Case{true, {longLine.substr(3) + "ENDFILE\r\n"}, longLine.substr(3), true},
        untold(true, {"abENDFILE\r\n", 5, 1}, "abENDFILE\r\n"),
        Case{true, {"abcdefghiENDFILE", 9, 9}, "abcdefghi", true},
        untold(true, {"abENDFILE", 1, 9}, "abENDFILE"), Case{true, {"a\nb"}, "a\nb", false, true, kTimeout},
        untold(true, {"a\n", 0, 0, false, Ending::Closes}, "a\n"),
        Case{true, {"a\nENDFILE", 0, 0, false, Ending::Closes}, "a\r\n", true}, untold(true, {}, ""),
        Case{true,
             {"a\n", 0, 0, false, Ending::Resets},
             "a\n",
             false,
             false,
             "Morvane: Socket Error: Connection reset by peer; " + kTimeout}}) {
    SCOPED_TRACE(c.reply.bytes);
    test::LinkStation station(c.network);
    station.disk.Put("/base/A.TXT", "what was there before");
    station.controller.replies["QT7250FILE A.TXT"] = c.reply;
    station.waitWindow.Show("Uploading");
    int timeout = 0;
    const bool done = c.timed ? station.comm.UploadFileTimed("QT7250FILE A.TXT", "A.TXT", timeout)
                              : station.comm.UploadFile("QT7250FILE A.TXT", "A.TXT");
    EXPECT_EQ(done, c.done);
    EXPECT_EQ(station.disk.Get("/base/A.TXT"), c.stored);
    EXPECT_EQ(station.Boxes(), c.box);
    EXPECT_EQ(station.controller.wire, "QT7250FILE A.TXT\r\n");
    EXPECT_EQ(timeout, c.timed ? 10 : 0);
    EXPECT_EQ(station.waitWindow.shown, !c.network && c.box.empty());
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
  using Case = std::pair<const char*, bool>;
  for (const auto& [reply, done] :
       {Case{"SUCCESS\r\nENDFILE\r\n", true}, Case{"SUCCESS 1\r\nENDFILE\r\n", false},
        Case{"ENDFILE\r\n", false}, Case{"SUCCESS\r\n", false}}) {
    test::LinkStation station(false);
    station.controller.replies["QT7250RUNWAIT A.TJB"] = {reply, 0, 9};
    EXPECT_EQ(station.comm.RunWait("A.TJB", 0), done) << reply;
    EXPECT_EQ(station.Boxes(), "");
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
  using Case = std::pair<const char*, const char*>;
  for (const auto& [given, whole] :
       {Case{"a\nb", "a\r\nb"}, Case{"\r\r\r\n", "\r\n"}, Case{"\r\r\r\r\n", "\r\r\n"},
        Case{"a\rb\r", "a\rb\r"}, Case{"\n\r\n", "\r\n\r\n"}, Case{"", ""},
        Case{"\r\r\n\r\n\n", "\r\n\r\n\r\n"}}) {
    test::LinkStation station(true);
    station.disk.Put("/base/A.TXT", given);
    NormalizeLineEnds(station.files, "A.TXT");
    EXPECT_EQ(station.disk.Get("/base/A.TXT"), whole);
  }
}

}  // namespace
}  // namespace morvane::link

#include <gmock/gmock.h>

#include <cctype>

#include "common/text/Text.h"
#include "house/Tree.h"

namespace morvane::house {
namespace {

// The line in small letters and with 0 for every digit; then its words with one blank around each, as they
// are and in small letters.
std::string Forms(const std::string& line) {
  std::string lower;
  std::string words = " ";
  std::string lowerWords = " ";
  for (const char c : line + ' ') {
    const auto byte = static_cast<unsigned char>(c);
    const char kept = std::isalnum(byte) || c == '_' ? c : ' ';
    lower += std::isdigit(byte) ? '0' : static_cast<char>(std::tolower(byte));
    if (kept == ' ' && words.back() == ' ') continue;
    words += kept;
    lowerWords += kept == ' ' ? kept : lower.back();
  }
  return lower + words + lowerWords;
}

// Words stand between bars; "%" keeps them from standing in this file and is taken out of them.
Strings Matches(std::string words, bool (*scope)(const TreeFile&)) {
  std::erase(words, '%');
  const Strings forbidden = TreeFile{"", common::ReplaceAll(words, "|", "\n")}.Lines();
  Strings found;
  for (const TreeFile& file : ReadTree()) {
    if (!scope(file)) continue;
    for (const std::string& line : file.Lines()) {
      const std::string forms = Forms(line);
      for (const std::string& word : forbidden) {
        if (forms.find(word) != std::string::npos) found.push_back(file.path + ": " + line);
      }
    }
  }
  return found;
}

// Other places and programs, folders of one machine, unfinished work, and headers that one compiler lacks.
TEST(Words, ThatStandNowhere) {
  const char* const forbidden =
      "pa%rt 0.0|pa%rt 00.0| spec%ification| the sp%ec | sp%ec md | se%ed document| orig%inal program|"
      " orig%inal system| orig%inal software| orig%inal code| po%rt of |/wo%rk/|/ro%ot/|/tmp/st%udio| TO%DO |"
      " FIX%ME | XX%X | HA%CK |#include <ra%nges>|#include <for%mat>";
  EXPECT_THAT(Matches(forbidden, [](const TreeFile&) { return true; }), testing::IsEmpty());
}

// One module reads and writes numbers; everything else goes through it, whatever the locale.
TEST(Words, OfNumberFormattingStandInOnePlace) {
  const char* const forbidden =
      " stof | stod | stold | stoi | stol | stoll | stoul | stoull | strto| atof |scanf | toDouble | toFloat "
      "|"
      "printf | setf | setprecision | setw | setfill |istringstream |ostringstream| from_chars | to_chars ";
  const auto scope = [](const TreeFile& file) {
    return file.IsCode() && file.Under("src/") && !file.Under("src/common/text/Number");
  };
  EXPECT_THAT(Matches(forbidden, scope), testing::IsEmpty());
}

// A form tells a failure through common/Attempt, or lets it go through it.
TEST(Words, OfCaughtFailuresStandInNoForm) {
  const auto scope = [](const TreeFile& file) {
    const bool form = file.path.find("/ui/") != std::string::npos || file.path.find("/frm") != std::string::npos;
    // Waits for the file cache, which tells what is missing.
    return file.IsCode() && file.Under("src/") && form && file.path != "src/gcode/ui/JobView.cpp";
  };
  EXPECT_THAT(Matches(" cat%ch ", scope), testing::IsEmpty());
}

TEST(Words, AreFoundInTheirForms) {
  EXPECT_GT(ReadTree().size(), 200U);
  EXPECT_EQ(Forms("// A Big-one: 4.12"), "// a big-one: 0.00  A Big one 4 12  a big one 0 00 ");
}

}  // namespace
}  // namespace morvane::house

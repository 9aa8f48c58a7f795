#include <gmock/gmock.h>

#include <algorithm>
#include <regex>

#include "house/Tree.h"

namespace morvane::house {
namespace {

// Expressions are put together from pieces, so that this file doesn't match them. Each is looked for only
// on lines that hold its key, a part that every match has.
struct Rule {
  const char* name;
  std::string key;
  std::string expression;
};

using Files = std::vector<TreeFile>;

std::vector<std::string> Matches(const Files& files, const std::vector<Rule>& rules,
                                 std::regex::flag_type flags = std::regex::ECMAScript) {
  std::vector<std::string> found;
  for (const Rule& rule : rules) {
    const std::regex expression(rule.expression, flags);
    for (const TreeFile& file : files) {
      for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        const auto same = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
        const auto key = std::search(line.begin(), line.end(), rule.key.begin(), rule.key.end(), same);
        if (key == line.end() || !std::regex_search(line, expression)) continue;
        found.push_back(file.path + ':' + std::to_string(i + 1) + ": " + rule.name);
      }
    }
  }
  return found;
}

TEST(Words, OfOtherPlacesStandNowhere) {
  const std::string spec = "spec";
  const std::vector<Rule> rules = {
      {"a numbered chapter", "part ", "\\bPart [0-9]+\\.[0-9]+"},
      {"a document", spec, "\\b" + spec + "ification|\\bthe " + spec + "\\b|\\b" + spec + "\\.md"},
      {"a document", "seed",
       "\\bseed do"
       "cument"},
      {"another program", "original", "\\boriginal (program|system|software|code)"},
      {"another program", " of",
       "\\bport"
       " of\\b"},
      {"a folder of one machine", "/",
       "/wo"
       "rk/|/ro"
       "ot/|/tmp/stu"
       "dio"},
  };
  const Files tree = ReadTree();
  ASSERT_GT(tree.size(), 200U);
  EXPECT_THAT(Matches(tree, rules, std::regex::ECMAScript | std::regex::icase), testing::IsEmpty());
}

TEST(Words, OfUnfinishedWorkStandNowhere) {
  std::vector<Rule> rules;
  for (const std::string word : {"TO"
                                 "DO",
                                 "FIX"
                                 "ME",
                                 "XX"
                                 "X",
                                 "HA"
                                 "CK"}) {
    rules.push_back({"unfinished", word, "\\b" + word + "\\b"});
  }
  EXPECT_THAT(Matches(ReadTree(), rules), testing::IsEmpty());
}

// One module reads and writes numbers; everything else goes through it, whatever the locale.
TEST(Words, OfNumberFormattingStandInOnePlace) {
  Files files = ReadProduct();
  std::erase_if(files,
                [](const TreeFile& file) { return !file.Under("src/") || file.Under("src/common/Number"); });
  EXPECT_THAT(Matches(files, {{"reads a number", "st",
                               "\\b(sto(f|d|ld|i|l|ll|ul|ull)|strto(f|d|ld|l|ll|ul|ull)|istringstream)\\b"},
                              {"reads a number", "f", "\\b(atof|[sf]?scanf)\\b"},
                              {"reads a number", "to", "\\bto(Double|Float)\\b"},
                              {"writes a number", "f", "\\bv?[sf]?n?printf\\b|\\bsetf\\b|\\basprintf\\b"},
                              {"writes a number", "set", "\\bset(precision|w|fill)\\b"},
                              {"writes a number", "ostringstream", "ostringstream"},
                              {"either", "_chars", "\\b(from|to)_chars\\b"}}),
              testing::IsEmpty());
}

TEST(Words, OfHeadersThatOneCompilerLacksStandNowhere) {
  Files files = ReadTree();
  std::erase_if(files, [](const TreeFile& file) { return !file.IsCode(); });
  EXPECT_THAT(Matches(files, {{"lacking", "#include", "#include <(ranges|format)>"}}), testing::IsEmpty());
}

}  // namespace
}  // namespace morvane::house

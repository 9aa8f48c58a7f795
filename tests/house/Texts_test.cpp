// docs/texts.md lists what the program says beside the tests that provoke it; here it is held to that.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <set>
#include <sstream>

#include "common/text/Text.h"
#include "house/Tree.h"

namespace morvane::house {
namespace {

bool IsLetter(const std::string& text, std::size_t at) {
  return at < text.size() && std::isalnum(static_cast<unsigned char>(text[at])) != 0;
}

// The strings of a source, joined as the compiler joins them. Escapes lose their backslash.
Strings StringsOf(const TreeFile& file) {
  const std::string& bytes = file.text;
  if (file.Is(".ui")) return Between(common::ReplaceAll(bytes, "&amp;", "&"), "<string>", "</string>");
  Strings found;
  bool joins = false;  // only blanks since the last string
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const char c = bytes[at];
    if (c == '"') {
      if (!joins) found.emplace_back();
      for (++at; at < bytes.size() && bytes[at] != '"'; ++at) {
        if (bytes[at] == '\\') ++at;
        found.back() += bytes[at];
      }
    } else if (bytes.compare(at, 2, "//") == 0) {
      at = bytes.find('\n', at);
    } else if (c == '\'' && (at == 0 || !IsLetter(bytes, at - 1))) {
      at += bytes[at + 1] == '\\' ? 3 : 2;
    }
    joins = c == '"' || (joins && (c == ' ' || c == '\n'));
  }
  return found;
}

// The parts of a text around what changes: "<word>" in the list, "%1" in the program.
Strings FixedParts(const std::string& text) {
  Strings parts(1);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = text[at] == '%' ? at + 1 : text[at] == '<' ? text.find('>', at) : text.size();
    if (end < text.size() && IsLetter(text, at + 1) && (text[at] == '%' || !std::isupper(text[at + 1]))) {
      at = end;
      parts.emplace_back();
    } else {
      parts.back() += text[at];
    }
  }
  return parts;
}

// The parts stand in a test's string in their order, and not inside a longer word.
bool IsSaidIn(const std::string& text, const std::string& string) {
  const Strings parts = FixedParts(text);
  std::size_t at = string.find(parts[0]);
  if (IsLetter(parts[0], 0) && at > 0 && IsLetter(string, at - 1)) return false;
  for (const std::string& part : parts) {
    at = string.find(part, at);
    if (at == std::string::npos) return false;
    at += part.size();
  }
  return !IsLetter(parts.back(), parts.back().size() - 1) || !IsLetter(string, at);
}

class Texts : public testing::Test {
 protected:
  Texts() {
    for (const TreeFile& file : ReadTree()) {
      if (file.path == "docs/texts.md") ReadRows(file);
      if (file.Under("src/")) ReadSource(file);
      if (file.Under("tests/") && file.Is("_test.cpp")) ReadTests(file);
    }
  }

  void ReadRows(const TreeFile& file) {
    for (const std::string& line : file.Lines()) {
      if (!line.starts_with("| `")) continue;
      std::istringstream row(common::ReplaceAll(line.substr(1), "\\|", "\x01"));
      rows_.emplace_back();
      for (Strings& spans : rows_.back()) {
        std::string cell;
        std::getline(row, cell, '|');
        spans = Between(common::ReplaceAll(cell, "\x01", "|"), "`", "`");
      }
    }
  }

  // Captions count with and without their mnemonic, procedures with the sign that ends them in a box.
  void ReadSource(const TreeFile& file) {
    std::set<std::string>& parts = parts_[file.path];
    for (const std::string& string : StringsOf(file)) {
      for (const std::string& part : FixedParts(string))
        parts.insert({part, common::ReplaceAll(part, "&", ""), part + '-'});
    }
    parts.insert("");
    for (const std::string& text : Between(file.text, "MsgBox(\"", "\""))
      boxes_.push_back(common::ReplaceAll(text, "\\\\", "\\"));
    for (const std::string& procedure : Between(file.text, "Attempt(", ")")) {
      const Strings names = Between(procedure, "\"", "\"");
      if (names.empty()) continue;
      boxes_.push_back(names[0] + '-');
    }
  }

  void ReadTests(const TreeFile& file) {
    const Strings strings = StringsOf(file);
    for (const char* head : {"\nTEST(", "\nTEST_F("}) {
      for (const std::string& name : Between(file.text, head, ")")) {
        said_[common::ReplaceAll(common::ReplaceAll(common::ReplaceAll(name, "\n", ""), " ", ""), ",", ".")] =
            strings;
      }
    }
  }

  std::vector<std::array<Strings, 3>> rows_;            // texts, the paths of sources, "Suite.Name" of tests
  Strings boxes_;                                       // how the texts of message boxes begin
  std::map<std::string, std::set<std::string>> parts_;  // of each source
  std::map<std::string, Strings> said_;                 // in the file of each test
};

TEST_F(Texts, StandInTheProgramAndInTheirTest) {
  ASSERT_GT(rows_.size(), 50U);
  Strings wrong;
  for (const auto& [texts, sources, tests] : rows_) {
    if (sources.empty() || tests.empty()) wrong.push_back(texts[0] + " lacks its source or test");
    for (const std::string& text : texts) {
      const Strings parts = FixedParts(text);
      for (const std::string& source : sources) {
        const auto stands = [&](const auto& part) { return parts_[source].count(part) > 0; };
        if (!std::all_of(parts.begin(), parts.end(), stands)) wrong.push_back(source + " lacks: " + text);
      }
      for (const std::string& test : tests) {
        const auto says = [&](const auto& string) { return IsSaidIn(text, string); };
        const Strings& strings = said_[test];
        if (std::none_of(strings.begin(), strings.end(), says))
          wrong.push_back(test + " is no test or does not say: " + text);
      }
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST_F(Texts, OfEveryMessageBoxAreListed) {
  ASSERT_GT(boxes_.size(), 5U);
  Strings listed;
  for (const auto& row : rows_) listed.insert(listed.end(), row[0].begin(), row[0].end());
  for (const std::string& box : boxes_) {
    const auto begins = [&](const std::string& text) { return text.starts_with(box); };
    EXPECT_TRUE(std::any_of(listed.begin(), listed.end(), begins)) << box;
  }
}

}  // namespace
}  // namespace morvane::house

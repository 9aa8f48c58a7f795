// docs/texts.md lists what the program says beside the tests that provoke it; here it is held to that.
#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <sstream>

#include "house/Tree.h"

namespace morvane::house {
namespace {

using Strings = std::vector<std::string>;

// What stands between the marks, every time.
Strings Between(const std::string& text, const std::string& open, const std::string& close) {
  Strings found;
  for (std::size_t at = text.find(open), end; at != std::string::npos; at = text.find(open, end)) {
    at += open.size();
    end = std::min(text.find(close, at), text.size());
    found.push_back(text.substr(at, end - at));
    end = std::min(end + close.size(), text.size());
  }
  return found;
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
    text.replace(at, what.size(), by);
  return text;
}

bool IsLetter(const std::string& text, std::size_t at) {
  return at < text.size() && std::isalnum(static_cast<unsigned char>(text[at])) != 0;
}

std::string Joined(const TreeFile& file) {
  std::string bytes;
  for (const std::string& line : file.lines) bytes += line + '\n';
  return bytes;
}

// The strings of a source, joined as the compiler joins them. Escapes lose their backslash.
Strings StringsOf(const TreeFile& file) {
  const std::string bytes = Joined(file);
  if (file.Is(".ui")) return Between(Replaced(bytes, "&amp;", "&"), "<string>", "</string>");
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
    const std::size_t end = text.find('>', at);
    const bool word =
        text[at] == '<' && IsLetter(text, at + 1) && !std::isupper(text[at + 1]) && end < text.size();
    if (!word && !(text[at] == '%' && IsLetter(text, at + 1))) {
      parts.back() += text[at];
    } else {
      at = word ? end : at + 1;
      parts.emplace_back();
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
  return parts.back().empty() || !IsLetter(parts.back(), parts.back().size() - 1) || !IsLetter(string, at);
}

struct Row {
  Strings texts;
  Strings sources;  // paths
  Strings tests;    // "Suite.Name"
};

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
    for (const std::string& line : file.lines) {
      if (!line.starts_with("| `")) continue;
      std::istringstream row(Replaced(line.substr(1), "\\|", "\x01"));
      Strings cells[3];
      for (std::string cell; Strings & spans : cells) {
        std::getline(row, cell, '|');
        spans = Between(Replaced(cell, "\x01", "|"), "`", "`");
      }
      rows_.push_back({cells[0], cells[1], cells[2]});
    }
  }

  // Captions count with and without their mnemonic.
  void ReadSource(const TreeFile& file) {
    for (const std::string& string : StringsOf(file)) {
      for (const std::string& part : FixedParts(string))
        parts_[file.path].insert({part, Replaced(part, "&", "")});
    }
    for (const std::string& text : Between(Joined(file), "MsgBox(\"", "\""))
      boxes_.push_back(Replaced(text, "\\\\", "\\"));
  }

  void ReadTests(const TreeFile& file) {
    for (const char* head : {"\nTEST(", "\nTEST_F("}) {
      for (const std::string& name : Between(Joined(file), head, ")")) {
        const std::string test = Replaced(Replaced(Replaced(name, "\n", ""), " ", ""), ",", ".");
        for (const std::string& string : StringsOf(file)) said_[test].push_back(string);
      }
    }
  }

  bool Stands(const std::string& text, const std::string& source) {
    const Strings parts = FixedParts(text);
    return std::all_of(parts.begin(), parts.end(), [&](const std::string& part) {
      return part.empty() || parts_[source].count(part) > 0;
    });
  }

  bool Says(const std::string& test, const std::string& text) {
    const Strings& strings = said_[test];
    return std::any_of(strings.begin(), strings.end(), [&](const auto& s) { return IsSaidIn(text, s); });
  }

  std::vector<Row> rows_;
  Strings boxes_;                                       // how the texts of message boxes begin
  std::map<std::string, std::set<std::string>> parts_;  // of each source
  std::map<std::string, Strings> said_;                 // in the file of each test
};

TEST_F(Texts, StandInTheProgramAndInTheirTest) {
  ASSERT_GT(rows_.size(), 50U);
  Strings wrong;
  for (const Row& row : rows_) {
    if (row.sources.empty() || row.tests.empty()) wrong.push_back(row.texts[0] + " lacks its source or test");
    for (const std::string& text : row.texts) {
      for (const std::string& source : row.sources) {
        if (!Stands(text, source)) wrong.push_back(source + " does not hold: " + text);
      }
      for (const std::string& test : row.tests) {
        if (!Says(test, text)) wrong.push_back(test + " is no test or does not say: " + text);
      }
    }
  }
  EXPECT_THAT(wrong, testing::IsEmpty());
}

TEST_F(Texts, OfEveryMessageBoxAreListed) {
  ASSERT_GT(boxes_.size(), 5U);
  for (const std::string& box : boxes_) {
    EXPECT_TRUE(std::any_of(rows_.begin(), rows_.end(), [&](const Row& row) {
      return std::any_of(row.texts.begin(), row.texts.end(),
                         [&](const auto& t) { return t.starts_with(box); });
    })) << box;
  }
}

}  // namespace
}  // namespace morvane::house

#include "textjob/edit/RowEditors.h"

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Lines.h"
#include "common/text/Text.h"
#include "common/text/Tokenizer.h"
#include "textjob/edit/PropertyRules.h"

namespace morvane::textjob {
namespace {

using Choices = std::vector<std::string>;

void AddFiles(const common::Files& files, std::string_view extension, Choices& choices) try {
  for (const std::string& name : files.List("*" + std::string(extension))) {
    choices.push_back(common::ToUpper(common::FileBaseName(name)));
  }
} catch (const common::RunTimeError&) {
  // There is nothing to choose from.
}

// The names of a recipe table: the first field of each line.
void AddRecordNames(const common::Files& files, std::string_view table, Choices& choices) try {
  const std::string bytes = files.Read(table);
  common::Lines lines(bytes);
  std::string_view line;
  while (lines.Next(line)) {
    const std::string_view name = common::TokenScan(line).Next(",");
    if (!name.empty()) choices.emplace_back(name);
  }
} catch (const common::RunTimeError&) {
  // No table, no names.
}

}  // namespace

RowEditor RowEditorOf(std::string_view label, const common::Files& files) {
  const PropertyRule* rule = FindRule(label);
  if (rule == nullptr || rule->format == RowFormat::Dots) return {RowEditorKind::None, {}};
  if (rule->choice == RowChoice::Nothing) return {};
  RowEditor editor{RowEditorKind::List, {}};
  if (rule->blank) editor.choices.emplace_back();
  switch (rule->choice) {
    case RowChoice::GcodeFiles:
      editor.kind = RowEditorKind::GcodeFile;
      AddFiles(files, rule->extension, editor.choices);
      break;
    case RowChoice::Caps:
      AddRecordNames(files, "Default.cap", editor.choices);
      break;
    case RowChoice::Scales:
      AddRecordNames(files, "Default.sca", editor.choices);
      break;
    case RowChoice::Word:
      for (const std::string_view word : rule->words()) editor.choices.emplace_back(word);
      break;
    default:
      AddFiles(files, rule->extension, editor.choices);
      break;
  }
  return editor;
}

}  // namespace morvane::textjob

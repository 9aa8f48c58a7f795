// Which editor a row of the property grid gets, and the choices that it offers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/files/Files.h"

namespace morvane::textjob {

enum class RowEditorKind {
  None,       // can't be edited
  Text,       // free text
  List,       // one of fixed choices
  GcodeFile,  // one of the G-code files, with a button that opens it
};

struct RowEditor {
  RowEditorKind kind = RowEditorKind::Text;
  std::vector<std::string> choices;
};

// By the row's label. Lists of files come fresh from the base directory, without extension and in
// capitals; what cannot be read offers nothing.
RowEditor RowEditorOf(std::string_view label, const common::Files& files);

}  // namespace morvane::textjob

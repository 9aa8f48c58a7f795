#include "controller/Store.h"

#include <algorithm>

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Text.h"

namespace morvane::controller {
namespace {

bool IsPlain(std::string_view name) {
  std::string ignored;
  const bool printable = std::none_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) <= ' ' ||
           std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
  });
  return printable && !name.empty() && name[0] != '.' && common::CheckFileName(name, ignored);
}

}  // namespace

bool Store::Put(std::string_view name, std::string_view bytes) const {
  if (!IsPlain(name)) return false;
  try {
    files_.ResolveInside(name);
    files_.WriteStraight(common::ToUpper(name), bytes);
    return true;
  } catch (const common::RunTimeError&) {
    return false;
  }
}

std::optional<std::string> Store::Get(std::string_view name) const {
  if (!IsPlain(name)) return std::nullopt;
  try {
    return files_.ReadInside(name);
  } catch (const common::RunTimeError&) {
    return std::nullopt;
  }
}

bool Store::Has(std::string_view name) const {
  return IsPlain(name) && files_.FileExists(name);
}

bool Store::Remove(std::string_view name) const {
  if (!Has(name)) return false;
  files_.RemoveQuietly(name);
  return !Has(name);
}

std::vector<std::string> Store::List(std::string_view pattern) const {
  std::vector<std::string> names;
  for (const std::string& name : files_.List(pattern)) {
    if (IsPlain(name)) names.push_back(common::ToUpper(name));
  }
  return names;
}

}  // namespace morvane::controller

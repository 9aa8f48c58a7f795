#include "textjob/job/LockImages.h"

#include "common/RunTimeError.h"
#include "common/files/FileNames.h"
#include "common/text/Lines.h"
#include "common/text/Numbers.h"
#include "common/text/OneLine.h"
#include "common/text/Text.h"
#include "common/text/Tokenizer.h"

namespace morvane::textjob {
namespace {

constexpr std::string_view kList = "LockImages.txt";

bool IsLineOf(std::string_view line, std::string_view job) {
  common::TokenScan scan(line);
  return common::EqualIgnoringCase(common::PathFileName(scan.Next(",")), common::PathFileName(job));
}

std::string FormatLockRecord(const LockRecord& record) {
  std::string line = common::OneLine(record.Job) + ',' + common::OneLine(record.Image);
  for (float number : {record.X, record.Y, record.Width, record.Height}) {
    line += ',' + common::PlainNumber(number);
  }
  return line + "\r\n";
}

// A list that does not exist yet is empty. One that is there but cannot be read must not be written
// anew, so that failure is thrown.
std::string ReadList(const common::Files& files) {
  try {
    return files.Read(kList);
  } catch (const common::RunTimeError& error) {
    if (error.number() != common::kFileNotFound) throw;
    return {};
  }
}

}  // namespace

bool FindLockRecord(const common::Files& files, LockRecord& record) try {
  if (!files.FileExists(kList)) return false;
  const common::SharedBytes bytes = files.ReadKept(kList);
  common::Lines lines(*bytes);
  std::string_view line;
  while (lines.Next(line)) {
    if (!IsLineOf(line, record.Job)) continue;
    common::TokenScan scan(line);
    scan.Next(",");
    record.Image = scan.Next(",");
    for (float* number : {&record.X, &record.Y, &record.Width, &record.Height}) {
      *number = common::ParseSingle(scan.Next(","));
    }
    return true;
  }
  return false;
} catch (const common::RunTimeError&) {
  return false;
}

void WriteLockRecord(const common::Files& files, const LockRecord& record, bool remove) {
  // No quoting: a name with a comma would be read as another record.
  if (!remove && (record.Job + record.Image).find(',') != std::string::npos) {
    throw common::RunTimeError(common::kPathFileAccessError);
  }
  const std::string bytes = ReadList(files);
  common::Lines lines(bytes);
  std::string list;
  std::string_view line;
  while (lines.Next(line) && !IsLineOf(line, record.Job)) list.append(line).append("\r\n");
  // Reached at the job's line and at the end of the list alike: nothing behind the job's line is kept.
  if (!remove) list += FormatLockRecord(record);
  files.Save(kList, list);
}

}  // namespace morvane::textjob

#include "textjob/job/JobFile.h"

#include "common/Attempt.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {

bool LoadTjbFile(TextJob& job, const std::string& name, const common::Files& files,
                 platform::Prompts& prompts) {
  job.Lines.clear();
  job.Selection.clear();
  job.Dirty = false;
  if (name == kNewJob) return true;
  // A file without a comment line has no comment; it does not inherit the last job's.
  job.Comment.clear();
  return common::AttemptTold(prompts, "Load(" + name + ") ", [&] { ReadTjb(files.Read(name), job); });
}

bool SaveTjbFile(TextJob& job, const std::string& name, const common::Files& files,
                 platform::Prompts& prompts) {
  return common::AttemptTold(prompts, "Save(" + name + ") ", [&] {
    files.Save(name, WriteTjb(job));
    job.Dirty = false;
  });
}

std::vector<std::string> JobList(const common::Files& files, const std::string& wanted,
                                 std::size_t& selected) {
  std::vector<std::string> entries = {kNewJob};
  for (std::string& name : files.List("*.TJB")) entries.push_back(std::move(name));
  for (selected = 0; selected < entries.size(); ++selected) {
    if (common::EqualIgnoringCase(entries[selected], wanted)) return entries;
  }
  entries.push_back(wanted);
  return entries;
}

std::string NewJobLine(TextJob& job, const std::string& name, const common::SettingsSnapshot& settings,
                       const platform::Clock& clock, const platform::Locale& locale) {
  if (job.Comment.empty() && name == kNewJob && job.Lines.empty()) {
    const std::string date = locale.ShortDate(clock.Now());
    job.Comment = std::string("Job created by ") + platform::kApplicationTitle + " on " + date + ".";
  }
  const float size = common::ParseSingle(settings.Get(common::kSettingsSection, "DefaultTextSize", ".125"));
  return "0,0,0," + common::PlainNumber(size) + ",FONT1.fnt,0,0,0,0,New@@,1";
}

}  // namespace morvane::textjob

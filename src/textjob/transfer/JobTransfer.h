// What the buttons Download, D/L and Run and Upload do: a job and the files that its lines name go to the
// controller, or come back.
#pragma once

#include <string>

#include "link/modComm.h"
#include "textjob/job/JobDocument.h"
#include "textjob/transfer/TransferRules.h"

namespace morvane::textjob {

struct TransferSources {
  const common::Files& files;
  const common::Settings& settings;
  platform::Prompts& prompts;
  platform::WaitWindow& waitWindow;
  link::Comm& comm;
  const TextJob& job;
  JobDocument& document;
  const bool& viewFixture;  // the check mark of the View menu
};

class JobTransfer {
 public:
  // Reads the settings once; an object serves one operation.
  explicit JobTransfer(const TransferSources& sources);

  // Each answers whether it came to its end; failures were told, but for a dialog that was cancelled.
  // The first two save the job before anything else, and ask for the name of a new one.
  bool Download();
  bool DownloadAndRun();
  // Asks which job of the controller it is to be. The document then holds that job.
  bool Upload();

 private:
  bool Save();
  bool SendLines(bool forRun);
  bool SendLine(const TextJobLine& line, Send send);
  bool SendFile(const char* command, const std::string& name);
  bool SendGcode(const std::string& name);
  bool SendShared(const char* mark, const char* caption, const char* name);
  bool SendJob(const std::string& target);
  bool SendFixture();
  bool Run(const std::string& name, const std::string& command);
  bool FetchJob(const std::string& name);
  void FetchFiles();
  std::string Target() const;
  bool WithFixture() const { return sources_.viewFixture && !fixture_.empty(); }
  void ShowWait(const std::string& what);
  bool Finish(const char* message);
  bool Aborted() const { return sources_.comm.Open().Aborted(); }

  TransferSources sources_;
  bool images_ = true;
  bool asTjb_ = false;
  std::string name_;  // the job under way
  std::string fixture_;
  SentList sent_;
};

}  // namespace morvane::textjob

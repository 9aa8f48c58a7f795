// Undo and redo for every change of the text job: each step keeps what differs, not the job.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "textjob/job/BesideChange.h"
#include "textjob/job/LineDifference.h"
#include "textjob/job/TextJob.h"

namespace morvane::textjob {

// Steps kept at most. Beyond the steps kept in any case, the oldest go when the memory is used up.
inline constexpr std::size_t kMostSteps = 5000;
inline constexpr std::size_t kSureSteps = 1000;
inline constexpr std::size_t kHistoryBytes = 64U << 20;

class JobHistory {
 public:
  // The job was loaded, or put in place of another one: there is nothing to undo. A job that is marked
  // changed counts as not saved.
  void Reset(const TextJob& job);

  // Call after each change, and when the selection changes. What differs from the last call becomes a step;
  // it joins the last step when `visit` is the same as last time and not empty, and a visit that changed
  // nothing in the end leaves no step. `beside` tells what else this change moved.
  void Note(const TextJob& job, std::string_view visit = {}, const BesideChange& beside = {});
  // The job, as it stands now, lies in its file. Ends the visit.
  void MarkSaved(const TextJob& job);

  bool CanUndo() const { return position_ > 0; }
  bool CanRedo() const { return position_ < steps_.size(); }
  // True when nothing differs from the saved job by these steps.
  bool AtSaved() const { return saved_ == position_; }

  // Puts lines, comment, selection and changed mark of the job back to what they were before the last step,
  // or after the next one. What comes back must be applied beside it. Nothing when there is no such step. A
  // change that was not noted is noted first, so that none gets lost.
  std::optional<BesideValues> Undo(TextJob& job);
  std::optional<BesideValues> Redo(TextJob& job);

 private:
  struct TextPair {
    std::string before, after;
  };
  struct Step {
    LineDifference lines, comment;
    TextPair selection;
    BesideChange beside;

    bool Empty() const { return lines.Empty() && comment.Empty() && beside.before == beside.after; }
    std::size_t Bytes() const;
  };

  bool IsOpen() const { return !visit_.empty(); }
  void CloseVisit();
  void CloseStep();
  void Compare(const TextJob& job, Step& step) const;
  void Push(Step step, std::string_view visit);
  void Settle(TextJob& job, const std::string& selection);

  // The job before the open step, and as of the last call when no step is open. Note compares with it.
  std::vector<std::string> baseLines_;
  std::vector<std::string> baseComment_{1};  // one entry
  std::string selection_;                    // as of the last call
  std::string visit_;                        // of the open step, which is the last one; empty: none is open
  std::deque<Step> steps_;
  std::size_t position_ = 0;          // steps done; those behind it are undone
  std::optional<std::size_t> saved_;  // the position at which the job equals its file
  std::size_t bytes_ = 0;             // of the closed steps
};

}  // namespace morvane::textjob

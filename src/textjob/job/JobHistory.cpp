#include "textjob/job/JobHistory.h"

#include <algorithm>
#include <utility>

namespace morvane::textjob {
namespace {

// The values before both stand, and the values after the second.
void Join(BesideChange& first, const BesideChange& second) {
  for (std::size_t i = 0; i < second.after.settings.size(); ++i) {
    const common::SettingChange& setting = second.after.settings[i];
    auto& known = first.after.settings;
    const auto same = std::find_if(known.begin(), known.end(), [&](const common::SettingChange& each) {
      return each.section == setting.section && each.key == setting.key;
    });
    if (same != known.end()) {
      *same = setting;
    } else {
      known.push_back(setting);
      first.before.settings.push_back(second.before.settings[i]);
    }
  }
  if (!first.before.lock) first.before.lock = second.before.lock;
  if (second.after.lock) first.after.lock = second.after.lock;
}

}  // namespace

std::size_t JobHistory::Step::Bytes() const {
  return sizeof(Step) + lines.Bytes() + comment.Bytes() + selection.before.capacity() +
         selection.after.capacity();
}

void JobHistory::Reset(const TextJob& job) {
  *this = {};
  baseLines_ = job.Lines;
  baseComment_ = {job.Comment};
  selection_ = job.Selection;
  if (!job.Dirty) saved_ = 0;
}

void JobHistory::Note(const TextJob& job, std::string_view visit, const BesideChange& beside) {
  if (visit != visit_) CloseVisit();
  if (IsOpen()) {
    Step& step = steps_.back();
    Join(step.beside, beside);
    Compare(job, step);
    if (step.Empty()) {
      steps_.pop_back();
      --position_;
      visit_.clear();
    }
  } else {
    Step step;
    step.selection.before = selection_;
    step.beside = beside;
    Compare(job, step);
    if (!step.Empty()) Push(std::move(step), visit);
  }
  selection_ = job.Selection;
}

void JobHistory::Compare(const TextJob& job, Step& step) const {
  step.lines = LineDifference(baseLines_, job.Lines);
  step.comment = LineDifference(baseComment_, {job.Comment});
  step.selection.after = job.Selection;
}

void JobHistory::Push(Step step, std::string_view visit) {
  for (; steps_.size() > position_; steps_.pop_back()) bytes_ -= steps_.back().Bytes();
  if (saved_ > position_) saved_.reset();
  steps_.push_back(std::move(step));
  ++position_;
  visit_ = visit;
  if (visit_.empty()) CloseStep();
}

void JobHistory::CloseStep() {
  Step& step = steps_.back();
  step.lines.Redo(baseLines_);
  step.comment.Redo(baseComment_);
  bytes_ += step.Bytes();
  while (steps_.size() > kMostSteps || (steps_.size() > kSureSteps && bytes_ > kHistoryBytes)) {
    bytes_ -= steps_.front().Bytes();
    steps_.pop_front();
    --position_;
    // The saved state of the dropped step's start is out of reach.
    saved_ = saved_.value_or(0) == 0 ? std::nullopt : std::optional(*saved_ - 1);
  }
}

void JobHistory::CloseVisit() {
  if (IsOpen()) CloseStep();
  visit_.clear();
}

void JobHistory::MarkSaved(const TextJob& job) {
  Note(job, std::string(visit_));
  CloseVisit();
  saved_ = position_;
}

std::optional<BesideValues> JobHistory::Undo(TextJob& job) {
  Note(job, std::string(visit_));
  CloseVisit();
  if (!CanUndo()) return std::nullopt;
  const Step& step = steps_[--position_];
  for (auto* lines : {&job.Lines, &baseLines_}) step.lines.Undo(*lines);
  step.comment.Undo(baseComment_);
  Settle(job, step.selection.before);
  return step.beside.before;
}

std::optional<BesideValues> JobHistory::Redo(TextJob& job) {
  Note(job, std::string(visit_));
  CloseVisit();
  if (!CanRedo()) return std::nullopt;
  const Step& step = steps_[position_++];
  for (auto* lines : {&job.Lines, &baseLines_}) step.lines.Redo(*lines);
  step.comment.Redo(baseComment_);
  Settle(job, step.selection.after);
  return step.beside.after;
}

void JobHistory::Settle(TextJob& job, const std::string& selection) {
  job.Comment = baseComment_[0];
  job.Selection = selection_ = selection;
  job.Dirty = !AtSaved();
}

}  // namespace morvane::textjob

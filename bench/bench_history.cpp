// One noted key press in a job of 1001 lines, at its start, its middle and its end, and an undone offset.
#include <benchmark/benchmark.h>

#include "textjob/job/JobHistory.h"

namespace morvane::bench {
namespace {

textjob::TextJob FullJob() {
  textjob::TextJob job;
  for (std::size_t i = 0; i < textjob::kMaxLines; ++i) {
    job.Lines.push_back("0,1.5," + std::to_string(i) +
                        ",0.125,FONT1.fnt,0,0,0,0,LINE OF TEXT 1234567@@,1,1,1,0.000,0,@@,0,0,0,0,0,0,0,0,0");
  }
  return job;
}

void BM_NoteAKey(benchmark::State& state) {
  textjob::TextJob job = FullJob();
  textjob::JobHistory history;
  history.Reset(job);
  std::string& line = job.Lines[static_cast<std::size_t>(state.range(0))];
  for (auto _ : state) {
    line.back() = line.back() == '0' ? '1' : '0';
    history.Note(job);
  }
}
BENCHMARK(BM_NoteAKey)->Unit(benchmark::kMicrosecond)->Arg(0)->Arg(500)->Arg(1000);

void BM_NoteAndUndoAnOffset(benchmark::State& state) {
  textjob::TextJob job = FullJob();
  textjob::JobHistory history;
  history.Reset(job);
  for (auto _ : state) {
    for (std::string& line : job.Lines) line.insert(2, "1");
    history.Note(job);
    history.Undo(job);
  }
}
BENCHMARK(BM_NoteAndUndoAnOffset)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace morvane::bench

BENCHMARK_MAIN();

// Damaged inputs for readers of files: a fixed seed makes the same ones on each run.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace morvane::test {

using Reader = std::function<void(const std::string& bytes)>;

// Gives the reader the empty text, every seed, every truncation of the seeds (up to 4 KB each) and 20,000
// mutations: a seed with one to eight damages, at most 64 KB. Fails the test when one input takes longer than
// five seconds, when an exception other than a run-time error leaves the reader, or when memory grows beyond
// 512 MB.
void RunMutations(const std::vector<std::string>& seeds, const Reader& reader);

// Gives the reader one line of 100 MB that begins with `start`, filled with `fill` (repeated), and fails
// the test when that takes longer than 20 seconds or the peak of memory grows by more than 2 GB.
void RunHugeLine(const std::string& start, const std::string& fill, const Reader& reader);

}  // namespace morvane::test

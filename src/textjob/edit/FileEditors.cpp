#include "textjob/edit/FileEditors.h"

#include "textjob/job/Selection.h"
#include "textjob/job/modTjb.h"

namespace morvane::textjob {

bool HasFileEditor(const TextJob& job) {
  const std::vector<std::size_t> selected = SelectedIndices(job);
  if (selected.size() != 1) return false;
  constexpr TypeSet kTypes = {kFill,       kCap,     kScale, kPressure,   kPanel,
                              kDataMatrix, kGraphic, kImage, kClosedPath, kParkPath};
  return kTypes.Holds(ParseTjbLine(job, selected[0]).Type);
}

}  // namespace morvane::textjob

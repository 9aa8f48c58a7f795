// The settings of one Data Matrix symbol, as a .DM file keeps them.
#pragma once

#include <string>

namespace morvane::datamatrix {

// Texts stay as typed; only the preview turns the spacing into a number.
struct DataMatrixFile {
  std::string Density = "Automatic";  // or rows "x" columns
  bool Reverse = false;               // which character of a row is a dark module
  std::string Spacing = ".01";        // size of one module in the job's units
  std::string Delay = "1";            // for the controller
  std::string Content;                // with date codes, %% sections and \x escapes
};

}  // namespace morvane::datamatrix

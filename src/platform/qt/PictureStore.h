// Pictures that drawings name, loaded once for each state of their file.
#pragma once

#include <QImage>
#include <string>

namespace morvane::common {
class Files;
}

namespace morvane::platform {

// From its resolution. Throws "Invalid picture" for one that could not be loaded.
QSizeF SizeInInches(const QImage& picture);

class PictureStore {
 public:
  explicit PictureStore(const common::Files& files) : files_(files) {}
  // By program name. The kind is told by the file's content (bmp with its run-length form, jpg, gif,
  // ico), not by its name. A null image when it cannot be loaded.
  QImage Get(const std::string& name) const;

 private:
  const common::Files& files_;
};

}  // namespace morvane::platform

// The application object that every test of windows needs, for the whole run.
#include <gtest/gtest.h>

#include <QStyleFactory>

#include "app/Application.h"

namespace morvane::test {
namespace {

class QtEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[8] = "tests";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<app::Application> application_ = std::make_unique<app::Application>(count_, arguments_);
};

const ::testing::Environment* const kEnvironment = ::testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
}  // namespace morvane::test

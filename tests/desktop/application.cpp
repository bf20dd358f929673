// The toolkit for all tests of this program, without a display.
#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>
#include <memory>

#include "desktop/alsa_errors.h"

namespace sonotik {
namespace {

class Toolkit : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    std::setlocale(LC_NUMERIC, "C");
    SilenceAlsaErrors();
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[8] = "sonotik";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

}  // namespace
}  // namespace sonotik

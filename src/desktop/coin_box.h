// The coin intake on a text box in the jukebox's folder.
#ifndef SONOTIK_DESKTOP_COIN_BOX_H_
#define SONOTIK_DESKTOP_COIN_BOX_H_

#include <QSocketNotifier>
#include <memory>
#include <string>

#include "files/text_box.h"
#include "platform/coin_intake.h"

namespace sonotik {

class CoinBox : public CoinIntake {
 public:
  void Open(const std::string& folder, std::function<void(const std::string&)> on_text) override;
  bool CloseFeeder() override;

 private:
  std::string folder_;
  TextBox box_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_COIN_BOX_H_

#include "desktop/coin_box.h"

#include <iostream>

namespace sonotik {

void CoinBox::Open(const std::string& folder, std::function<void(const std::string&)> on_text) {
  folder_ = folder;
  if (!box_.Open(folder, kCoinBox)) {
    std::cerr << "sonotik: the coin box can't be opened; no coins are taken" << std::endl;
    return;
  }
  notifier_ = std::make_unique<QSocketNotifier>(box_.descriptor(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this, on_text] {
    while (const auto text = box_.Take()) on_text(*text);
  });
}

bool CoinBox::CloseFeeder() {
  // Not waited for: a feeder that is stopped must not hold the program's end.
  return PutIntoTextBox(folder_, kCreditModuleBox, "close", false) != BoxAnswer::kGone;
}

}  // namespace sonotik

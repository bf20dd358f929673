// Where coins arrive: whatever text another program hands over counts as placed in the box.
#ifndef SONOTIK_PLATFORM_COIN_INTAKE_H_
#define SONOTIK_PLATFORM_COIN_INTAKE_H_

#include <functional>
#include <string>

namespace sonotik {

class CoinIntake {
 public:
  virtual ~CoinIntake() = default;
  // Opens the box of this folder (a program path); from then on each text comes from the event
  // loop, whole and alone. A box that can't be opened takes nothing.
  virtual void Open(const std::string& folder, std::function<void(const std::string&)> on_text) = 0;
  // Asks the program that feeds the box to end. False if it was there and can't be asked any more.
  virtual bool CloseFeeder() = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_COIN_INTAKE_H_

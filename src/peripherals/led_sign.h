// The LED message sign on a serial line: what plays, or a fact about it.
#ifndef SONOTIK_PERIPHERALS_LED_SIGN_H_
#define SONOTIK_PERIPHERALS_LED_SIGN_H_

#include <string>
#include <string_view>

#include "peripherals/sign_settings.h"
#include "platform/serial_port.h"

namespace sonotik {

class LedSign {
 public:
  LedSign(const SignSettings& settings, SerialPort& port) : settings_(settings), port_(port) {}

  // Hands settings and number to the port, which keeps its own until then. Throws RuntimeFailure
  // for settings that no port has.
  void CommitChanges();

  // Names as captions have them. All three do nothing while the sign is off.
  void ShowTrack(std::string_view artist, std::string_view title);
  void ShowFact(const std::string& fact);
  void Clear();

  // One message, whatever "Enable LED Sign" says. Throws RuntimeFailure if the port can't be
  // opened.
  void SendSignMessage(std::string_view line1, std::string_view line2);

 private:
  const SignSettings& settings_;
  SerialPort& port_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_LED_SIGN_H_

// betabrite.ini: which LED sign stands on which port.
#ifndef SONOTIK_PERIPHERALS_SIGN_SETTINGS_H_
#define SONOTIK_PERIPHERALS_SIGN_SETTINGS_H_

#include <string>

namespace sonotik {

class SignSettings {
 public:
  explicit SignSettings(const std::string& app_path) : app_path_(app_path) {}

  std::string port_settings = "9600,n,8,1";  // baud rate, parity, data bits, stop bits
  int port = 0;                              // in the list of ports; "COM 1" is the first
  int model = 0;
  bool enabled = false;

  // Without the file nothing changes. Throws RuntimeFailure for a file cut short.
  void LoadSign();
  void SaveSign() const;

 private:
  const std::string& app_path_;
};

}  // namespace sonotik

#endif  // SONOTIK_PERIPHERALS_SIGN_SETTINGS_H_

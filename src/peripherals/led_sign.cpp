#include "peripherals/led_sign.h"

#include "text/code_page.h"
#include "text/text.h"

namespace sonotik {
namespace {

using namespace std::string_view_literals;

// The third, "Name Badge", can be chosen and kept, and nothing is ever sent to it; that is meant.
enum SignModel { kBetabrite, kBigBoard };

// Open for one message: the port belongs to other programs in between, which is meant.
class OpenPort {
 public:
  explicit OpenPort(SerialPort& port) : port_(port) { port_.Open(); }
  ~OpenPort() { port_.Close(); }
  OpenPort(const OpenPort&) = delete;
  OpenPort& operator=(const OpenPort&) = delete;

 private:
  SerialPort& port_;
};

void SendToBetabrite(SerialPort& port, const std::string& line) {
  // It has one line; whoever has a second one sends it in vain, and that is meant.
  const OpenPort open(port);
  port.Output(
      "\x01\x01\x01\x01\x01?00\x02"
      "A0" +
      line + '\x04');
}

void SendToBigBoard(SerialPort& port, const std::string& line1, const std::string& line2) {
  const OpenPort open(port);
  port.Discard();
  port.Output("\x00\xFF\xFF\x00\x0B"sv);
  port.Output("\x00"sv);
  for (int code = 0x01; code <= 0x7F; ++code) port.Output(std::string(1, static_cast<char>(code)));
  port.Output("\xFF\x01\x30\x31\xEF\xB7\xEF\xA2"sv);
  port.Output(line1);
  port.Output("\xEF\xB1\xEF\xA0\xFF\xEF\xB0\xEF\xA2"sv);
  port.Output(line2);
  port.Output("\xEF\xB1\xEF\xA0\xFF\xFF\x00"sv);
}

}  // namespace

void LedSign::CommitChanges() {
  port_.SetCommPort(settings_.port + 1);
  port_.SetSettings(settings_.port_settings);
}

void LedSign::ShowTrack(std::string_view artist, std::string_view title) {
  if (!settings_.enabled) return;
  // A sign is no caption: what is doubled there is single here.
  const std::string by = SingleAmpersands(artist);
  const std::string name = SingleAmpersands(title);
  if (settings_.model == kBetabrite) {
    SendSignMessage(by + " - " + name, "");
  } else {
    SendSignMessage(by, name);
  }
}

void LedSign::ShowFact(const std::string& fact) {
  // On the first line alone, also where there are two; that is meant.
  if (settings_.enabled) SendSignMessage(fact, "");
}

void LedSign::Clear() {
  if (settings_.enabled) SendSignMessage("", "");
}

void LedSign::SendSignMessage(std::string_view line1, std::string_view line2) {
  switch (settings_.model) {
    case kBetabrite:
      return SendToBetabrite(port_, InCodePage(line1));
    case kBigBoard:
      return SendToBigBoard(port_, InCodePage(line1), InCodePage(line2));
    default:
      return;
  }
}

}  // namespace sonotik

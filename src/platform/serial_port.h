// The serial line of the message sign. A machine has one; it is open for the length of a message.
#ifndef SONOTIK_PLATFORM_SERIAL_PORT_H_
#define SONOTIK_PLATFORM_SERIAL_PORT_H_

#include <string>
#include <string_view>

namespace sonotik {

class SerialPort {
 public:
  virtual ~SerialPort() = default;
  // Baud rate, parity, data bits, stop bits: "9600,N,8,1", which is also what holds at first.
  // Throws RuntimeFailure for a text that is none of these, and then the settings stay.
  virtual void SetSettings(const std::string& settings) = 0;
  // 1 to 4.
  virtual void SetCommPort(int number) = 0;
  // Throws RuntimeFailure if there is no such port. A port whose device doesn't answer is no
  // failure: what is sent to it is lost.
  virtual void Open() = 0;
  // Drops what is still on its way, in both directions.
  virtual void Discard() = 0;
  // One write. Returns at once; the bytes go out by themselves.
  virtual void Output(std::string_view bytes) = 0;
  // What was put out still goes out.
  virtual void Close() = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_SERIAL_PORT_H_

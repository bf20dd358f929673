// The sign's serial line on a terminal device. Messages go out by themselves, through the event
// loop: a slow sign, or one that isn't there, never holds the jukebox.
#ifndef SONOTIK_DESKTOP_SERIAL_LINE_H_
#define SONOTIK_DESKTOP_SERIAL_LINE_H_

#include <termios.h>

#include <QTimer>
#include <optional>
#include <string>
#include <string_view>

#include "platform/serial_port.h"

namespace sonotik {

// Puts "9600,N,8,1" into a line's mode (termios(3)): baud rate, parity N, E, O, M or S, 5 to 8 data
// bits, 1 or 2 stop bits, with 5 data bits 1.5 instead of 2. Nothing for any other text.
std::optional<termios> WithLineSettings(termios mode, std::string_view settings);

class SerialLine : public SerialPort {
 public:
  // A program path; the folder's file ports.txt names the device of "COM 1" in its first line, of
  // "COM 2" in its second and so on. What it doesn't name is /dev/ttyS0 to /dev/ttyS3. At the end
  // of the program a last message gets `most_ms_at_end` to go out.
  explicit SerialLine(std::string app_path, int most_ms_at_end = 1000);
  ~SerialLine() override;
  SerialLine(const SerialLine&) = delete;
  SerialLine& operator=(const SerialLine&) = delete;

  void SetSettings(const std::string& settings) override;
  void SetCommPort(int number) override { number_ = number; }
  // Throws RuntimeFailure for a name that is no serial device. One that is busy or unplugged is
  // told of on standard error, once until it answers again.
  void Open() override;
  void Discard() override;
  // More than kMost bytes wait for no sign: it doesn't take them, and they are dropped.
  void Output(std::string_view bytes) override;
  void Close() override;

  static constexpr size_t kMost = 65536;

 private:
  std::string DevicePath() const;
  bool OpenDevice(const std::string& path);
  bool Send();
  bool StillSending() const;
  void GoOn();
  void CloseDevice();
  void GiveUp(const std::string& why);

  std::string app_path_;
  int most_ms_at_end_;
  std::string settings_ = "9600,N,8,1";
  int number_ = 1;
  int device_ = -1;
  // Of the device that is open, or was tried last.
  std::string path_;
  std::string open_settings_;
  std::string waiting_;
  bool message_ended_ = true;
  bool told_ = false;
  // Looks again: a device's own buffer empties without a word.
  QTimer again_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_SERIAL_LINE_H_

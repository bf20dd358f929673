#include "desktop/serial_line.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <array>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <utility>

#include "files/files.h"
#include "files/line_format.h"
#include "files/posix_failure.h"
#include "files/runtime_failure.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kLookAgainMs = 20;

template <typename Value>
struct Word {
  std::string_view text;
  Value value;
};

constexpr Word<speed_t> kRates[] = {{"110", B110},     {"300", B300},       {"600", B600},
                                    {"1200", B1200},   {"2400", B2400},     {"4800", B4800},
                                    {"9600", B9600},   {"19200", B19200},   {"38400", B38400},
                                    {"57600", B57600}, {"115200", B115200}, {"230400", B230400}};
constexpr Word<tcflag_t> kParities[] = {{"N", 0},
                                        {"E", PARENB},
                                        {"O", PARENB | PARODD},
                                        {"M", PARENB | PARODD | CMSPAR},
                                        {"S", PARENB | CMSPAR}};
constexpr Word<tcflag_t> kDataBits[] = {{"5", CS5}, {"6", CS6}, {"7", CS7}, {"8", CS8}};
// The hardware makes one and a half of the second where there are 5 data bits.
constexpr Word<tcflag_t> kStopBits[] = {{"1", 0}, {"2", CSTOPB}};
constexpr Word<tcflag_t> kStopBitsOfFive[] = {{"1", 0}, {"1.5", CSTOPB}};

template <typename Value, size_t kCount>
std::optional<Value> Find(const Word<Value> (&words)[kCount], std::string_view text) {
  for (const Word<Value>& word : words) {
    if (EqualsIgnoringCase(word.text, text)) return word.value;
  }
  return {};
}

}  // namespace

std::optional<termios> WithLineSettings(termios mode, std::string_view settings) {
  std::array<std::string_view, 4> fields;
  for (size_t i = 0; i < fields.size(); ++i) {
    const size_t end = i + 1 < fields.size() ? settings.find(',') : settings.size();
    if (end == std::string_view::npos) return {};
    fields[i] = TrimBlanks(settings.substr(0, end));
    settings.remove_prefix(std::min(end + 1, settings.size()));
  }
  const auto rate = Find(kRates, fields[0]);
  const auto parity = Find(kParities, fields[1]);
  const auto data = Find(kDataBits, fields[2]);
  const auto stop = data == CS5 ? Find(kStopBitsOfFive, fields[3]) : Find(kStopBits, fields[3]);
  if (!rate || !parity || !data || !stop) return {};
  cfmakeraw(&mode);
  mode.c_cflag &= ~static_cast<tcflag_t>(CSIZE | PARENB | PARODD | CMSPAR | CSTOPB | CRTSCTS);
  // Without CLOCAL a line whose sign has no modem wires never takes a byte.
  mode.c_cflag |= *parity | *data | *stop | CREAD | CLOCAL;
  cfsetispeed(&mode, *rate);
  cfsetospeed(&mode, *rate);
  return mode;
}

SerialLine::SerialLine(std::string app_path, int most_ms_at_end)
    : app_path_(std::move(app_path)), most_ms_at_end_(most_ms_at_end) {
  again_.setSingleShot(true);
  again_.setInterval(kLookAgainMs);
  QObject::connect(&again_, &QTimer::timeout, [this] { GoOn(); });
}

SerialLine::~SerialLine() {
  QElapsedTimer time;
  time.start();
  while (device_ >= 0 && StillSending() && time.elapsed() < most_ms_at_end_) {
    pollfd line{device_, static_cast<short>(waiting_.empty() ? 0 : POLLOUT), 0};
    ::poll(&line, 1, kLookAgainMs);
    if (!Send()) break;
  }
  CloseDevice();
}

void SerialLine::SetSettings(const std::string& settings) {
  if (!WithLineSettings({}, settings)) {
    throw RuntimeFailure("no serial line has the settings \"" + settings + "\"");
  }
  settings_ = settings;
}

std::string SerialLine::DevicePath() const {
  if (number_ < 1 || number_ > 4) {
    throw RuntimeFailure("there is no port COM " + std::to_string(number_));
  }
  const std::string names = app_path_ + "\\ports.txt";
  if (FileExists(names)) {
    LineReader reader(ReadWholeFile(names));
    std::string line;
    for (int i = 0; i < number_ && !reader.AtEnd(); ++i) {
      line = reader.Next();
      if (i + 1 == number_ && !TrimBlanks(line).empty()) return std::string(TrimBlanks(line));
    }
  }
  return "/dev/ttyS" + std::to_string(number_ - 1);
}

void SerialLine::Open() {
  const std::string path = DevicePath();
  message_ended_ = false;
  // The message before is still on its way; this one goes behind it.
  if (device_ >= 0 && path_ == path && open_settings_ == settings_) return;
  CloseDevice();
  path_ = path;
  if (OpenDevice(path)) return;
  if (errno == ENOTTY || errno == EISDIR || errno == ENOTDIR) {
    FailWithErrno("no serial line:", path);
  }
  GiveUp(std::strerror(errno));
}

bool SerialLine::OpenDevice(const std::string& path) {
  // Without waiting for a carrier, and never as the program's own terminal.
  device_ = ::open(path.c_str(), O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (device_ < 0) return false;
  open_settings_ = settings_;
  termios mode{};
  if (::tcgetattr(device_, &mode) == 0) {
    const auto wanted = WithLineSettings(mode, settings_);
    // A device that lacks one of them takes the others, and refuses when no other is left to
    // change.
    if (wanted && (::tcsetattr(device_, TCSANOW, &*wanted) == 0 || errno == EINVAL)) return true;
  }
  const int error = errno;
  CloseDevice();
  errno = error;
  return false;
}

void SerialLine::Discard() {
  if (device_ < 0) return;
  waiting_.clear();
  ::tcflush(device_, TCIOFLUSH);
}

void SerialLine::Output(std::string_view bytes) {
  if (device_ < 0) return;
  waiting_ += bytes;
  if (!Send()) return GiveUp(std::strerror(errno));
  if (waiting_.size() > kMost) GiveUp("it takes no bytes");
}

void SerialLine::Close() {
  message_ended_ = true;
  GoOn();
}

bool SerialLine::Send() {
  while (!waiting_.empty()) {
    const ssize_t written = ::write(device_, waiting_.data(), waiting_.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno == EAGAIN;
    waiting_.erase(0, static_cast<size_t>(written));
  }
  return true;
}

bool SerialLine::StillSending() const {
  int in_device = 0;
  return !waiting_.empty() || (::ioctl(device_, TIOCOUTQ, &in_device) == 0 && in_device > 0);
}

void SerialLine::GoOn() {
  if (device_ < 0) return;
  if (!Send()) return GiveUp(std::strerror(errno));
  if (StillSending()) return again_.start();
  if (!message_ended_) return;
  CloseDevice();
  told_ = false;
}

void SerialLine::CloseDevice() {
  if (device_ < 0) return;
  again_.stop();
  // Closing waits for what the device still holds, half a minute for one that stands still.
  if (StillSending()) ::tcflush(device_, TCOFLUSH);
  waiting_.clear();
  ::close(device_);
  device_ = -1;
}

void SerialLine::GiveUp(const std::string& why) {
  CloseDevice();
  if (std::exchange(told_, true)) return;
  std::cerr << "sonotik: the sign on " << path_ << " gets nothing: " << why << std::endl;
}

}  // namespace sonotik

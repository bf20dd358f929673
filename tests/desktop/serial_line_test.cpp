// The sign's line, read at its other end through a pseudo-terminal.
#include "desktop/serial_line.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>

#include "desktop/event_loop.h"
#include "files/runtime_failure.h"
#include "peripherals/led_sign.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

using namespace std::string_literals;

TEST(SerialLines, SettingsAreTheTerminalsAndEverythingElseIsRefused) {
  constexpr tcflag_t kAll = CSIZE | PARENB | PARODD | CMSPAR | CSTOPB;
  const struct {
    const char* settings;
    speed_t rate;
    tcflag_t mode;
  } good[] = {
      {"9600,N,8,1", B9600, CS8},
      {" 4800 , e , 7 , 1 ", B4800, CS7 | PARENB},
      {"1200,o,8,2", B1200, CS8 | PARENB | PARODD | CSTOPB},
      {"115200,M,6,1", B115200, CS6 | PARENB | PARODD | CMSPAR},
      {"300,S,5,1.5", B300, CS5 | PARENB | CMSPAR | CSTOPB},
  };
  termios before{};
  before.c_cflag = CS6 | PARENB | CSTOPB | CRTSCTS;
  before.c_lflag = ECHO | ICANON;
  for (const auto& each : good) {
    const auto mode = WithLineSettings(before, each.settings);
    ASSERT_TRUE(mode) << each.settings;
    EXPECT_EQ(cfgetospeed(&*mode), each.rate) << each.settings;
    EXPECT_EQ(mode->c_cflag & kAll, each.mode) << each.settings;
    EXPECT_EQ(mode->c_cflag & (CLOCAL | CRTSCTS), static_cast<tcflag_t>(CLOCAL));
    EXPECT_EQ(mode->c_lflag & (ECHO | ICANON), 0U);
  }
  for (const char* bad : {"", ",", ",,,", "9600", "9600,N,8", "9600,N,8,1,", "9600,N,8,1.5",
                          "9600,N,5,2", "9600,N,9,1", "9600,X,8,1", "-9600,N,8,1", "0,N,8,1",
                          "9601,N,8,1", "99999999999999999999,N,8,1", "N,8,1,9600"}) {
    EXPECT_FALSE(WithLineSettings(before, bad)) << bad;
    EXPECT_THROW(SerialLine("\\gone").SetSettings(bad), RuntimeFailure) << bad;
  }
}

class SerialLineTest : public testing::Test {
 protected:
  SerialLineTest() {
    std::array<char, 128> name{};
    // The pseudo-terminal's line echoes and changes bytes until somebody sets it.
    EXPECT_EQ(::openpty(&sign, &keep_alive, name.data(), nullptr, nullptr), 0);
    ::fcntl(sign, F_SETFL, O_NONBLOCK);
    device = name.data();
    folder.Write("ports.txt", "\n" + device + "\r\n");
  }
  ~SerialLineTest() override {
    if (sign >= 0) ::close(sign);
    ::close(keep_alive);
  }
  static void Send(SerialLine& line, const std::string& text) {
    line.Open();
    line.Output(text);
    line.Close();
  }
  // Everything that arrives until this many bytes are there.
  std::string Read(size_t bytes) const {
    std::string text;
    Becomes([&] {
      std::array<char, 4096> block;
      const ssize_t count = ::read(sign, block.data(), block.size());
      if (count > 0) text.append(block.data(), static_cast<size_t>(count));
      return text.size() >= bytes;
    });
    return text;
  }

  TempFolder folder;
  std::string app_path = folder.path();
  std::string device;
  int sign = -1;
  int keep_alive = -1;
};

TEST_F(SerialLineTest, EveryByteOfEachFrameArrivesAsWrittenAlsoWhereTheLineKnowsNoParity) {
  SignSettings settings(app_path);
  settings.port_settings = "4800,E,7,1";
  settings.port = settings.model = 1;
  settings.enabled = true;
  std::string expected = "\x00\xFF\xFF\x00\x0B\x00"s;
  for (int code = 1; code <= 127; ++code) expected += static_cast<char>(code);
  expected +=
      "\xFF\x01\x30\x31\xEF\xB7\xEF\xA2\r\n\x03\x11\xFF\xEF\xB1\xEF\xA0\xFF\xEF\xB0\xEF\xA2"
      "\x13 \x04\xEF\xB1\xEF\xA0\xFF\xFF\x00"s;
  // The second one finds the line as the first has set it.
  for (int message = 1; message <= 2; ++message) {
    SerialLine line(app_path);
    LedSign led(settings, line);
    led.CommitChanges();
    led.ShowTrack("\r\n\x03\x11\xFF", "\x13 \x04");
    EXPECT_EQ(Read(expected.size()), expected) << message;
  }
}

TEST_F(SerialLineTest, MoreThanTheLineHoldsGoesOutByItselfInPiecesAndTheLastWhenTheProgramEnds) {
  auto line = std::make_unique<SerialLine>(app_path);
  line->SetCommPort(2);
  std::string long_text;
  for (int i = 0; long_text.size() < 60000; ++i) long_text += std::to_string(i) + ' ';
  Send(*line, long_text);
  // The next message goes behind what is still on its way.
  Send(*line, "end");
  EXPECT_EQ(Read(long_text.size() + 3), long_text + "end");
  Send(*line, "bye");
  line.reset();
  EXPECT_EQ(Read(3), "bye");
}

TEST_F(SerialLineTest, ASignThatNeverTakesAByteOrIsGoneCostsOneLineAndNoTime) {
  testing::internal::CaptureStderr();
  {
    SerialLine line(app_path, 0);
    line.SetCommPort(2);
    // Nobody reads: what is too much is dropped.
    line.Open();
    for (int i = 0; i < 300; ++i) line.Output(std::string(1000, 'x'));
    line.Close();
    // It is tried again, and vanishes in the middle of a frame.
    line.Open();
    line.Output("begun");
    ::close(std::exchange(sign, -1));
    line.Output("more");
    line.Output("and more");
    line.Close();
    QCoreApplication::processEvents();
    // Unplugged: the device's name is gone as well.
    folder.Write("ports.txt", "/dev/serial/by-id/gone\n");
    line.SetCommPort(1);
    for (int i = 0; i < 3; ++i) Send(line, "lost");
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "sonotik: the sign on " + device + " gets nothing: it takes no bytes\n");
}

TEST_F(SerialLineTest, ANameThatIsNoSerialLineIsAFailure) {
  folder.Write("ports.txt", "/dev/null\r\n/\r\n" + (folder.native() / "ports.txt").string() + "\n");
  SerialLine line(app_path);
  for (const int number : {0, 1, 2, 3, 5}) {
    line.SetCommPort(number);
    EXPECT_THROW(line.Open(), RuntimeFailure) << number;
    line.Output("nothing");
    line.Close();
  }
}

}  // namespace
}  // namespace sonotik

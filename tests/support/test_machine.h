// A machine that a test moves by hand: its clock, its player, its keys.
#ifndef SONOTIK_TESTS_SUPPORT_TEST_MACHINE_H_
#define SONOTIK_TESTS_SUPPORT_TEST_MACHINE_H_

#include <chrono>
#include <cmath>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "files/runtime_failure.h"
#include "platform/machine.h"

namespace sonotik {

// A day in winter, so that no summer time interferes; moved only by Advance.
class TestClock : public Clock {
 public:
  DateTime Now() const override {
    using std::chrono::floor;
    const std::chrono::seconds time{start_of_day_ + ms_ / 1000};
    const auto days = floor<std::chrono::days>(time);
    const std::chrono::year_month_day day =
        std::chrono::sys_days{std::chrono::year{date.year} / date.month / date.day} + days;
    const auto seconds = static_cast<int>((time - days).count());
    return {{int{day.year()}, static_cast<int>(unsigned{day.month()}),
             static_cast<int>(unsigned{day.day()})},
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60};
  }
  int64_t Milliseconds() const override { return ms_; }
  void Add(int64_t ms) { ms_ += ms; }
  // As somebody sets the wall clock; the other one runs on.
  void Set(Date today, int hour, int minute) {
    date = today;
    start_of_day_ = hour * 3600 + minute * 60 - ms_ / 1000;
  }

  Date date{2024, 1, 15};

 private:
  int64_t start_of_day_ = 12 * 3600;
  int64_t ms_ = 0;
};

class TestRandom : public RandomSource {
 public:
  double Next() override { return std::uniform_real_distribution<double>(0, 1)(engine_); }
  void Seed(uint64_t seed) override { engine_.seed(seed); }

 private:
  std::mt19937_64 engine_{1};
};

// Plays nothing, and keeps book. A file's length comes from `lengths` by its path, 30 s if it isn't
// there; a length below 0 makes a file that can't be rendered.
class TestPlayer : public Player {
 public:
  std::map<std::string, double> lengths;
  std::optional<VideoSize> native_size;
  std::vector<std::string> calls;
  std::string file;
  int volume = 0;
  VideoPlacement placement;

  bool playing() const { return running_; }
  void Add(double seconds) {
    if (running_) position_ = std::min(length_, position_ + seconds);
  }

  void Shorten(double length) { length_ = length; }

  bool RenderFile(const std::string& path) override {
    calls.push_back("RenderFile " + path);
    file = path;
    position_ = 0;
    running_ = false;
    const auto known = lengths.find(path);
    length_ = known == lengths.end() ? 30 : known->second;
    open_ = length_ >= 0;
    return open_;
  }
  bool Run() override { return Note("Run") && (running_ = open_); }
  bool Pause() override { return Note("Pause") && !(running_ = false) && open_; }
  bool Stop() override { return Note("Stop") && !(running_ = false) && open_; }
  void Close() override {
    Note("Close");
    open_ = running_ = false;
  }
  std::optional<double> Position() override {
    return open_ ? std::optional(position_) : std::nullopt;
  }
  bool SetPosition(double seconds) override {
    Note("SetPosition");
    if (open_) position_ = seconds;
    return open_;
  }
  std::optional<double> Length() override { return open_ ? std::optional(length_) : std::nullopt; }
  bool SetRate(double) override { return open_; }
  std::optional<double> Rate() override { return open_ ? std::optional(1.0) : std::nullopt; }
  bool SetVolume(int hundredths) override {
    Note("SetVolume " + std::to_string(hundredths));
    volume = hundredths;
    return open_;
  }
  bool SetBalance(int) override { return open_; }
  std::optional<VideoSize> NativeSize() override { return native_size; }
  bool PlaceVideo(const VideoPlacement& at) override {
    placement = at;
    return native_size.has_value();
  }

 private:
  bool Note(const std::string& call) {
    calls.push_back(call);
    return true;
  }

  bool open_ = false;
  bool running_ = false;
  double position_ = 0;
  double length_ = 0;
};

class TestEvents : public EventLoop {
 public:
  // Runs at each pump: what a guest does while a handler lets events run.
  std::function<void()> on_pump = [] {};
  // Runs when the screen is painted inside a handler.
  std::function<void()> on_paint = [] {};
  int pumps = 0;
  int waited = 0;  // milliseconds
  bool left = false;

  void PumpEvents() override {
    ++pumps;
    on_pump();
  }
  void PaintNow() override { on_paint(); }
  void WaitForEvents(int milliseconds) override {
    waited += milliseconds;
    PumpEvents();
  }
  void Leave(int) override { left = true; }
};

class TestKeys : public KeyState {
 public:
  std::set<int> down;
  std::set<int> asked;
  bool IsDown(int virtual_key) override {
    asked.insert(virtual_key);
    return down.contains(virtual_key);
  }
};

class TestDisplays : public Displays {
 public:
  std::vector<Monitor> monitors{{.whole = {0, 0, 1280, 800}, .primary = true}};
  WindowStyle style{};
  MonitorArea second_area;
  bool second_shown = false;
  bool pointer = true;
  bool full_screen = false;
  std::vector<std::string> calls;
  std::vector<Monitor> Monitors() override { return monitors; }
  DisplayMode CurrentMode() override { return {1280, 800, 24, 60}; }
  WindowStyle Style() override { return style; }
  void SetStyle(const WindowStyle& flags) override { style = flags; }
  void SetMousePointerVisible(bool visible) override { pointer = visible; }
  void SetWindowSize(int width, int height) override { Note("SetWindowSize", width, height); }
  void SetWindowPosition(int left, int top) override { Note("SetWindowPosition", left, top); }
  void FitWindow(bool on_top) override { Note("FitWindow", on_top, 0); }
  void ChangeResolution(int width, int height) override { Note("ChangeResolution", width, height); }
  void RestoreResolution() override { Note("RestoreResolution", 0, 0); }
  void SetTaskbarVisible(bool visible) override {
    full_screen = !visible;
    Note("SetTaskbarVisible", visible, 0);
  }
  void PlaceSecondWindow(const MonitorArea& area) override { second_area = area; }
  void ShowSecondWindow(bool visible) override { second_shown = visible; }

 private:
  void Note(const std::string& call, int a, int b) {
    calls.push_back(call + ' ' + std::to_string(a) + ' ' + std::to_string(b));
  }
};

class TestProcesses : public Processes {
 public:
  std::vector<std::string> started;
  void StartProgram(const std::string& path, WindowState) override { started.push_back(path); }
  void StartCommand(const std::string& command, WindowState) override {
    started.push_back(command);
  }
};

class TestMessages : public MessageBox {
 public:
  std::vector<std::string> shown;
  // What happens while the message stands.
  std::function<void()> on_show = [] {};
  void Show(const std::string& text) override {
    shown.push_back(text);
    on_show();
  }
};

class TestCoins : public CoinIntake {
 public:
  std::function<void(const std::string&)> put = [](const std::string&) {};
  bool feeder_closed = false;
  void Open(const std::string&, std::function<void(const std::string&)> on_text) override {
    put = std::move(on_text);
  }
  bool CloseFeeder() override {
    feeder_closed = true;
    return feeder_answers;
  }
  bool feeder_answers = true;
};

class TestSession : public Session {
 public:
  std::vector<SessionEnd> ends;
  std::function<void()> on_end = [] {};
  void End(SessionEnd how) override {
    ends.push_back(how);
    on_end();
  }
};

// A sign's line that keeps book: "open", each write's bytes, "close".
class TestSerialPort : public SerialPort {
 public:
  std::vector<std::string> calls;
  std::string settings = "9600,N,8,1";
  int number = 1;
  bool there = true;
  void SetSettings(const std::string& text) override { settings = text; }
  void SetCommPort(int comm_port) override { number = comm_port; }
  void Open() override {
    if (!there) throw RuntimeFailure("there is no such port");
    calls.push_back("open");
  }
  void Discard() override { calls.push_back("discard"); }
  void Output(std::string_view bytes) override { calls.emplace_back(bytes); }
  void Close() override { calls.push_back("close"); }
};

class TestMixer : public Mixer {
 public:
  std::vector<std::string> calls;
  bool SetMute(MixerLine line, bool mute) override {
    calls.push_back((line == MixerLine::kLineIn ? "line " : "mic ") + std::to_string(mute));
    return false;
  }
};

class TestVisualiser : public Visualiser {
 public:
  std::vector<std::string> calls;
  bool running = false;
  void Start(const std::string& command) override {
    calls.push_back(command);
    running = true;
  }
  bool IsRunning() override { return running; }
  void AskToClose() override {
    calls.push_back("close");
    running = false;
  }
};

struct TestMachine {
  TestClock clock;
  TestRandom random;
  TestEvents events;
  Timers timers{clock};
  TestKeys keys;
  TestPlayer player;
  TestDisplays displays;
  TestProcesses processes;
  TestMessages messages;
  TestCoins coins;
  TestSession session;
  TestSerialPort sign_port;
  TestMixer mixer;
  TestVisualiser visualiser;
  Machine machine{clock,     random,   events, timers,  keys,      player, displays,
                  processes, messages, coins,  session, sign_port, mixer,  visualiser};
};

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_TEST_MACHINE_H_

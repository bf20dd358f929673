// The ways out of the program.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class ShutdownTest : public JukeboxTest {};

TEST_F(ShutdownTest, EndsTheSessionByTheChoiceWithLogOffAndRebootCrossed) {
  const std::pair<bool Settings::*, std::vector<SessionEnd>> cases[] = {
      {&Settings::power_shutdown, {SessionEnd::kShutdown}},
      {&Settings::power_reboot, {SessionEnd::kLogOff}},
      {&Settings::power_log_off, {SessionEnd::kReboot}},
      {&Settings::power_down_atx, {SessionEnd::kPowerOff}},
      {&Settings::power_exit, {}}};
  for (const auto& [choice, ends] : cases) {
    settings.power_exit = false;
    settings.*choice = true;
    Start();
    jukebox->shutdown.power_down();
    EXPECT_EQ(machine.session.ends, ends);
    EXPECT_TRUE(machine.events.left && jukebox->MayClose());
    settings.*choice = false;
    machine.session.ends.clear();
    machine.events.left = false;
  }
}

TEST_F(ShutdownTest, SavesBeforeTheSessionEndsAndOnlyOnce) {
  settings.save_queue_on_shutdown = true;
  settings.shutdown_command = "/bin/sync";
  settings.power_exit = false;
  settings.power_down_atx = true;
  Start();
  house().settings.save_carousel_on_shutdown = true;
  house().queue.Append("\\m\\1.wav", "");
  std::vector<std::string> steps;
  house().tracks.hooks.close_visualisation = [&] { steps.push_back("player"); };
  ShutdownHooks& hooks = jukebox->shutdown.hooks;
  hooks.send_closing_text = [&] {
    steps.push_back("sign");
    throw RuntimeFailure("no sign");
  };
  hooks.save_random = [&] { steps.push_back(folder.Has("queue.dat") ? "random" : "too early"); };
  machine.session.on_end = [&] {
    steps.push_back(machine.processes.started.empty() ? "too early" : "session");
    EXPECT_FALSE(machine.coins.feeder_closed);
    jukebox->shutdown.power_down();
  };
  jukebox->shutdown.power_down();
  jukebox->LeaveInOrder();
  EXPECT_EQ(steps, (std::vector<std::string>{"player", "sign", "random", "session"}));
  EXPECT_TRUE(machine.coins.feeder_closed);
  EXPECT_EQ(machine.processes.started.size(), 1u);
}

TEST_F(ShutdownTest, TheTimedExitLeavesPlayerSignCarouselAndSessionAlone) {
  settings.power_exit = false;
  settings.power_shutdown = true;
  folder.Write("queue.dat", " 1 \r\n\\m\\old.wav\r\n\r\n\r\n\r\n");
  Start();
  house().settings.save_carousel_on_shutdown = true;
  const auto never = [] { FAIL(); };
  house().tracks.hooks.close_visualisation = never;
  jukebox->shutdown.hooks.send_closing_text = never;
  jukebox->shutdown.hooks.save_random = never;
  machine.coins.feeder_answers = false;
  jukebox->LeaveInOrder();
  EXPECT_TRUE(machine.session.ends.empty());
  EXPECT_TRUE(machine.events.left);
  // Not asked to save, the queue of the end before returns.
  EXPECT_NE(folder.Read("queue.dat").find("old.wav"), std::string::npos);
  EXPECT_EQ(machine.messages.shown,
            std::vector<std::string>{"EndTask: cannot terminate Credit Module task"});
}

}  // namespace
}  // namespace sonotik

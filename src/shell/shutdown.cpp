#include "shell/shutdown.h"

#include "files/text_box.h"
#include "shell/clsExitWindows.h"

namespace sonotik {

void Shutdown::power_down() {
  if (house_.state.shutting_down) return;
  // What fails on the way must not keep the cabinet running.
  const auto step = [this](const char* name, const std::function<void()>& run) {
    house_.boundary.Run(name, run);
  };
  step("player beside", house_.tracks.hooks.close_visualisation);
  step("sign", hooks.send_closing_text);
  displays_.GiveBack();
  SaveQueue();
  if (house_.settings.save_carousel_on_shutdown) step("random.dat", hooks.save_random);
  RunCommand();
  house_.state.shutting_down = true;
  EndSession();
  Unload();
}

void Shutdown::TimedExit() {
  if (house_.state.shutting_down) return;
  displays_.GiveBack();
  SaveQueue();
  RunCommand();
  house_.state.shutting_down = true;
  Unload();
}

void Shutdown::SaveQueue() {
  // Unsaved, the queue of an earlier end stays and returns at the next start; that is meant. A
  // queue that was never read is not this run's to replace.
  if (!house_.settings.save_queue_on_shutdown || !house_.queue.loaded()) return;
  house_.boundary.Run("queue.dat", [this] { house_.queue.Save(); });
}

void Shutdown::RunCommand() {
  if (house_.settings.shutdown_command.empty()) return;
  house_.machine.processes.StartCommand(house_.settings.shutdown_command, WindowState::kNormal);
}

void Shutdown::EndSession() {
  const Settings& settings = house_.settings;
  // "Reboot" logs off and "Log Off" reboots: crossed, and meant to stay so.
  const struct {
    bool chosen;
    int16_t how;
  } choices[] = {{settings.power_shutdown, 1},
                 {settings.power_reboot, 0},
                 {settings.power_log_off, 2},
                 {settings.power_down_atx, 8}};
  for (const auto& choice : choices) {
    if (!choice.chosen) continue;
    clsExitWindows(house_.machine.session).ExitWindows(choice.how);
    return;
  }
}

void Shutdown::Unload() {
  // First: nothing that pending events bring may start anew.
  house_.timer1.Retire();
  house_.state_timer.Retire();
  if (!house_.machine.coins.CloseFeeder()) {
    house_.machine.messages.Show(std::string("EndTask: cannot terminate ") + kCreditModuleBox +
                                 " task");
  }
  house_.machine.events.PumpEvents();
  house_.machine.events.Leave(0);
}

}  // namespace sonotik

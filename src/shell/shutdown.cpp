#include "shell/shutdown.h"

namespace sonotik {

void Shutdown::TimedExit() {
  if (house_.state.shutting_down) return;
  hooks.ShowTaskbar();
  hooks.RestoreResolution();
  // What can't be saved must not keep the cabinet running; a queue that was never read is not this
  // run's to replace.
  if (house_.settings.save_queue_on_shutdown && house_.state.queue_loaded) {
    house_.boundary.Run("queue.dat", [this] { house_.queue.Save(); });
  }
  if (!house_.settings.shutdown_command.empty()) {
    house_.machine.processes.StartCommand(house_.settings.shutdown_command, WindowState::kNormal);
  }
  house_.state.shutting_down = true;
  house_.machine.coins.CloseFeeder();
  house_.timer1.Retire();
  house_.state_timer.Retire();
  house_.machine.events.Leave(0);
}

}  // namespace sonotik

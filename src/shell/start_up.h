// The start-up of the program: one fixed order, with a milestone in debug.log after each stage.
#ifndef SONOTIK_SHELL_START_UP_H_
#define SONOTIK_SHELL_START_UP_H_

#include <functional>

#include "files/files.h"
#include "shell/assembly.h"
#include "shell/settings_effects.h"

namespace sonotik {

// What other rooms do while the program starts. Each stands at its place in the order and does
// nothing until its owner fills it in.
struct StartUpHooks {
  std::function<void(bool visible)> show_splash = [](bool) {};
  std::function<void()> genre_scroll_show = [] {};
  std::function<void()> clear_search = [] {};
  std::function<void()> read_window_style = [] {};
  std::function<void()> ApplySkin = [] {};
  std::function<void()> load_sign = [] {};
  std::function<void(const std::string& path)> load_history_chart = [](const std::string&) {};
  std::function<void()> apply_window_style = [] {};
  std::function<void()> update_skinlist = [] {};
};

enum class StartUpResult {
  kRunning,
  kSecondInstance,
  kNoCatalogue,
  kLeft,  // asked to end while it started
};

class StartUp {
 public:
  StartUp(Assembly& house, SettingsEffects& effects) : house_(house), effects_(effects) {}

  StartUpHooks hooks;

  // Throws RuntimeFailure only where no settings at all can be read: without them there is no
  // jukebox. Any other file that can't be read costs what it holds, and the start goes on.
  StartUpResult Form_Load();

 private:
  void PlaySafe();
  void SetUpScreens();
  void SetUpYearButtons();
  void LoadDataFiles();
  void ShowFirstPage();
  void PlayStartSound();
  // A step of its own: what fails in it costs what it holds, and the start goes on.
  void Run(const char* name, const std::function<void()>& step);
  void Load(const char* name, const char* milestone, const std::function<void()>& load);
  void Milestone(const char* text);

  Assembly& house_;
  SettingsEffects& effects_;
  FolderLock instance_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_START_UP_H_

#include "shell/start_up.h"

#include "config/version.h"
#include "peripherals/clsScreens.h"
#include "peripherals/clsStyle.h"
#include "playback/genre_lists.h"

namespace sonotik {
namespace {

// The one that the delivered settings name.
constexpr char kDeliveredSkin[] = "Neon";

}  // namespace

StartUpResult StartUp::Form_Load() {
  const std::string& app_path = house_.app_path;
  if (!instance_.Take(app_path)) return StartUpResult::kSecondInstance;
  // What a run that was killed has left. Not before: a second start is to change nothing of the first.
  house_.machine.displays.RestoreResolution();
  house_.state_timer.SetEnabled(false);
  house_.timer1.SetEnabled(false);

  // The skin is not known yet; its picture shows where one lies in the skins folder itself.
  const std::string picture =
      app_path + "\\skins\\" + house_.settings.current_skin + "\\splash.bmp";
  house_.splash.title.SetCaption(kProgramTitle);
  house_.splash.version.SetCaption(kVersionCaption);
  if (FileExists(picture)) house_.splash.picture.SetPicture(picture);
  hooks.show_splash(true);
  Run("coin intake", [&] {
    house_.machine.coins.Open(app_path,
                              [&](const std::string& text) { house_.credits.Receive(text); });
  });

  house_.lists.FillFixed(clsScreens(house_.machine.displays).Count());
  Run("load_facts", [&] { house_.facts.load_facts(); });
  ListGenres(app_path, house_.lists);
  Run("genre_scroll_show", hooks.genre_scroll_show);
  Milestone("Genres Check Complete");
  house_.settings.double_click_action = 0;
  Milestone("Combo Buttons Set Up");
  house_.decades.SetToday();
  Milestone("History Set Up");
  Milestone("Keyboard Shortcuts Loaded");
  ChangeWorkingFolder(app_path);
  Milestone("Set app Path");
  SetUpYearButtons();
  Milestone("Year Buttons Set Up");
  Run("search screen", hooks.clear_search);
  SetUpScreens();
  Run("window style", hooks.read_window_style);
  house_.state.saved_mode = house_.machine.displays.CurrentMode();
  Milestone("Start UP Complete");

  effects_.LoadConfig();
  Run("safe.txt", [&] { PlaySafe(); });
  Milestone("INI File load Complete");
  Load("ApplySkin", "Skin Load Complete", hooks.ApplySkin);
  Run("show_next", [&] { house_.queue_view.show_next(); });

  if (!house_.catalogue.HasTrackFile()) {
    house_.machine.messages.Show(
        "You don't have any databases created, Click OK to run the CONFIG");
    hooks.show_splash(false);
    effects_.displays.GiveBack();
    if (house_.state.shutting_down) return StartUpResult::kLeft;
    house_.machine.processes.StartProgram(app_path + "\\Config 3.exe", WindowState::kNormal);
    return StartUpResult::kNoCatalogue;
  }
  LoadDataFiles();
  ShowFirstPage();
  Run("startup.mp3", [&] { PlayStartSound(); });
  hooks.show_splash(false);
  if (house_.state.shutting_down) {
    // The skin may have come in behind the request to leave.
    effects_.displays.GiveBack();
    return StartUpResult::kLeft;
  }
  constexpr StyleFlag kOnTop = StyleFlag::TopMost;
  if (house_.form2.style[static_cast<size_t>(kOnTop)].value) {
    clsStyle(house_.machine.displays).Set(kOnTop, true);
  }
  // The start sound has switched the first one on already, so it may have ticked before.
  house_.state_timer.SetEnabled(true);
  house_.timer1.SetEnabled(true);
  return StartUpResult::kRunning;
}

void StartUp::Run(const char* name, const std::function<void()>& step) {
  house_.boundary.Run(name, step);
}

void StartUp::Milestone(const char* text) {
  // A full disk takes the log, not the jukebox.
  Run("debug.log", [&] { house_.log.LogMilestone(text); });
}

// Whoever restarts the program after failures in a row leaves the file: for this one start it wears
// the delivered skin, in a window, whatever the settings say.
void StartUp::PlaySafe() {
  const std::string wish = house_.app_path + "\\safe.txt";
  if (!FileExists(wish)) return;
  house_.settings.current_skin = kDeliveredSkin;
  house_.settings.full_screen = false;
  DeleteFileIfThere(wish);
}

void StartUp::SetUpYearButtons() {
  auto& buttons = house_.form1.decades.year_buttons;
  for (size_t i = 0; i < buttons.size(); ++i) {
    const int year = kFirstChartYear + static_cast<int>(i);
    if (year > house_.decades.year() + 1) {
      buttons[i].SetVisible(false);
    } else {
      buttons[i].SetCaption(std::to_string(year));
    }
  }
}

void StartUp::SetUpScreens() {
  Form1& form = house_.form1;
  form.decades.month_picker.SetVisible(false);
  form.decades.year_picker.SetVisible(false);
  form.paused.SetVisible(false);
  const std::string forum = house_.app_path + "\\New forum.bmp";
  if (FileExists(forum)) house_.form2.forum_picture.SetPicture(forum);
  form.pin_screen.SetVisible(false);
  form.options.version.SetCaption(kVersionCaption);
}

void StartUp::Load(const char* name, const char* milestone, const std::function<void()>& load) {
  // A file that can't be read costs what it holds; debug.log lacks its milestone then.
  Run(name, [&] {
    load();
    house_.log.LogMilestone(milestone);
  });
}

void StartUp::LoadDataFiles() {
  Load("queue.dat", "QUEUE Load Complete", [&] {
    house_.queue_view.CLear_queue();
    house_.queue.Load();
  });
  Load("keyboard.dat", "Key Load Complete", [&] { house_.key_map.LoadKeyMap(); });
  Load("permissions.ini", "Permissions Load Complete",
       [&] { house_.permissions.LoadPermissions(); });
  Load("cost.dat", "CostLoad Complete", [&] { house_.credits.LoadCost(); });
  Load("betabrite.ini", "BETABRITE Settings Load Complete", hooks.load_sign);
  Load("terminal.ini", "Teminal/Master Load Complete", [&] {
    house_.network.LoadTerminal();
    // A Terminal plays nothing, so it can't choose by itself.
    house_.playback.random_play_available = !house_.network.terminal();
  });
  Load("load_history_chart", "History CHART Load Complete",
       [&] { hooks.load_history_chart(house_.decades.chart_path()); });
  Run("window style", hooks.apply_window_style);
  Load("random.dat", "Random PLAY Load Complete",
       [&] { LoadGenreLists(house_.app_path, house_.lists); });
}

void StartUp::ShowFirstPage() {
  if (house_.settings.update_skins_on_load) {
    Run("update_skinlist", hooks.update_skinlist);
  }
  house_.pages.SetPageValid(true);
  Run("read_albums3", [&] { house_.pages.read_albums3(); });
  house_.credits.ShowCreditMode();
  Run("LoadMostPlayed", [&] { house_.history.LoadMostPlayed(); });
}

void StartUp::PlayStartSound() {
  const std::string sound = house_.app_path + "\\startup.mp3";
  if (!FileExists(sound) || house_.network.terminal()) return;
  // Set for the length of the call only: left set, every later selection would be free.
  const struct Clear {
    PlaybackState& state;
    ~Clear() {
      state.random_in_progress = false;
      state.play_now_flag = 0;
    }
  } clear{house_.playback};
  house_.playback.random_in_progress = true;
  house_.playback.play_now_flag = 1;
  house_.tracks.Play_track3(sound);
}

}  // namespace sonotik

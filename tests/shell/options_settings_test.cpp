// Each setting of sonotik.ini: from its control to its line and, through a restart, back and to
// what it does.
#include "support/options_test.h"

namespace sonotik {
namespace {

struct SettingCase {
  size_t section;
  const char* frame;
  const char* caption;
  K kind;
  int row;       // of sonotik.ini
  size_t value;  // in the row
  // What is to be seen of it; nothing if nothing is, which is meant then.
  std::function<std::string()> seen;
};

// What a setting changes is read off a house that runs.
class SettingsTest : public OptionsTest {
 protected:
  SettingsTest() {
    settings.random_from_karaoke = true;
    settings.jingle_path = settings.attract_path = folder.path() + "\\beside";
    for (const char* file :
         {"Cover.jpg", "7", "a.jpg", "1.cdg", "../../beside/2.mp3", "../../1.mp3",
          "../../beside/2.jpg", "../../1.jpg", "../../skins/New/skin.ini"}) {
      folder.Write(std::string("music/Day/") + file, "x");
    }
    for (const char* layout : {"a", "b"}) {
      std::string text = "label\n" + std::to_string(layout[0] - 'a' + 3) + "\n0\n1\n";
      for (int i = 0; i < 4 * 24; ++i) text += std::to_string(i) + "\n";
      folder.Write("skins/Plain/" + std::string(layout) + ".cov", text);
    }
    std::string tracks;
    for (int i = 1; i < 9; ++i) {
      const std::string name = std::to_string(i) + ".wav";
      songs.push_back(WriteTrack("Day", name, "Ada" + std::to_string(i % 2), name));
      tracks += TrackBytes(songs.back(), name);
    }
    folder.Write("music/Day/9.wav", "no tag");
    clip = WriteTrack("Night", "1.mpg");
    folder.Write("Records.rec", tracks);
    folder.Write("videos.rec", TrackBytes(clip, "x"));
    folder.Write("karaoke.rec", TrackBytes(WriteTrack("Sung", "1.wav"), "x"));
    folder.Write("random.dat", " 0 \r\n\r\n 1 \r\nJazz\r\n\r\n");
    WriteAlbums({{"Night", "Eve"}}, "genres/Jazz.cvr");
    WriteAlbums({{"Night", "Eve"}}, "videos.cvr");
    WriteAlbums({{"Day", "Ada", "01/14/2024"}, {"Sung", "Ada"}});
    machine.displays.monitors.back().whole.left = 1280;
  }

  Settings& now() { return house().settings; }
  static std::string Look(const Control& control) { return control.visible() ? "shown" : "hidden"; }
  static std::string Joined(const std::vector<std::string>& calls) {
    std::string text;
    for (const std::string& call : calls) text += call + " ";
    return text;
  }
  std::string Screens() {
    std::string shown = form().pin_screen.visible() ? "pin " : "";
    for (const Panel& panel : form().panels) shown += panel.visible() ? '1' : '0';
    return shown + Look(form().attract_picture);
  }
  TrackListScreen& Album() {
    house().track_list.Open(AlbumPath("Day"));
    return form().track_list;
  }
  TrackListScreen& Row() {
    Album();
    house().track_list.SelectRow(0);
    return form().track_list;
  }
  std::string Heard() { return Joined(Queued()) + Playing(); }
  std::string Off() {
    house().queue.Append(songs[0], "");
    machine.session.ends.clear();
    machine.processes.started.clear();
    jukebox->menu.hooks.power_down();
    std::string seen = folder.Has("queue.dat") ? folder.Read("queue.dat") : "";
    for (const SessionEnd end : machine.session.ends) seen += std::to_string(static_cast<int>(end));
    return seen + Joined(machine.processes.started);
  }
  std::string Pin() {
    now().prompt_for_pin = true;
    OpenPages();
    Click(form().pin.keys[7]);
    Click(form().pin.keys[0]);
    return Screens();
  }
  // What the machine picks by itself, at one and the same moment and at others.
  std::string Picks() {
    std::string files;
    for (int i = 0; i < 24; ++i) {
      machine.clock.Add(i % 3 * 7);
      house().random_play.Random_Play();
      files += Playing() + "\n";
    }
    return files;
  }
  std::string DeadAir(double seconds, int songs_before = 0) {
    now().enable_random_play = house().playback.random_mode_on = true;
    house().state.jingle_song_count = songs_before;
    Advance(seconds);
    return machine.player.file;
  }
  template <typename Action>
  std::string Animation(const Control& target, Action action) {
    std::string seen;
    machine.events.waited = 0;
    machine.events.on_pump = [&] {
      seen += '|';
      for (const Rect& part : target.region().value_or(Region{})) {
        seen += std::to_string(part.left) + "+" + std::to_string(part.width);
      }
    };
    action();
    machine.events.on_pump = [] {};
    return seen + std::to_string(machine.events.waited);
  }
  std::string Covers() {
    now().use_animated_covers = true;
    return Animation(form().panel(screen::kAlbum), [&] { house().pages.read_albums3(); });
  }
  std::string Attraction() {
    return Animation(form().attract_picture, [&] {
      house().state.idle_seconds = 61;
      house().attract.Change();
    });
  }
  std::string Idle(double seconds) {
    Choose(songs[0]);
    Advance(seconds);
    return Screens();
  }
  std::string TouchTwice() {
    Album().rows[1].title.on_double_click();
    return Heard() + Screens();
  }
  CoverPosition& Cover() { return form().album.covers[0]; }

  std::vector<std::string> songs;
  std::string clip;

  // Neither the digits of a keypad nor the order of the attract pictures does anything; that is
  // meant.
  const std::vector<SettingCase> cases = {
    {kGeneral, "Play Options...", "Shuffle Queue Each Play", K::kCheck, 6, 0, [this] { for (const std::string& song : songs) house().queue.Append(song, ""); Advance(1); return Heard(); }},
    {kGeneral, "Play Options...", "Mute LINE IN on Play", K::kCheck, 31, 0, [this] { machine.mixer.calls.clear(); Choose(songs[0]); return Joined(machine.mixer.calls); }},
    {kGeneral, "Play Options...", "Enable MIC on Videos", K::kCheck, 78, 0, [this] { machine.mixer.calls.clear(); Choose(clip); return Joined(machine.mixer.calls); }},
    {kGeneral, "Play Options...", "Allow duplicates in queue", K::kCheck, 23, 0, [this] { house().queue.Append(songs[0], ""); Click(Album().rows[0].title); return Look(form().play_options.play_now); }},
    {kGeneral, "Track List Options...", "Auto Back On Selection...", K::kCheck, 54, 0, [this] { Click(Row().add_to_queue); return Screens(); }},
    {kGeneral, "Track List Options...", "Enable Double Click...", K::kCheck, 62, 0, [this] { return TouchTwice(); }},
    {kGeneral, "Track List Options...", "Enable Double Click...", K::kList, 62, 1, [this] { now().enable_double_click = true; return TouchTwice(); }},
    {kGeneral, "Switch to now playing...", "Time to wait before switching....", K::kNumber, 56, 0, [this] { return Idle(12); }},
    {kGeneral, "Power Down Options", "Save Queue On Shutdown", K::kCheck, 24, 0, [this] { return Off(); }},
    {kGeneral, "Power Down Options", "Exit Program at:", K::kCheck, 59, 1, [this] { now().exit_time = 24; machine.events.left = false; Advance(2); return std::to_string(machine.events.left); }},
    {kGeneral, "Power Down Options", "Exit Program at:", K::kList, 59, 0, [this] { now().exit_program_at = true; machine.events.left = false; machine.clock.Add(12 * 3600 * 1000LL); Advance(2); machine.clock.Add(12 * 3600 * 1000LL); return std::to_string(machine.events.left); }},
    {kGeneral, "Power Down Options", "Run Command On Shutdown:", K::kText, 51, 0, [this] { return Off(); }},
    {kGeneral, "Power Down Options", "Shutdown", K::kChoice, 70, 1, [this] { return Off(); }},
    {kGeneral, "Power Down Options", "Reboot", K::kChoice, 70, 2, [this] { return Off(); }},
    {kGeneral, "Power Down Options", "Log Off", K::kChoice, 70, 3, [this] { return Off(); }},
    {kGeneral, "Power Down Options", "Power Down ATX", K::kChoice, 70, 4, [this] { return Off(); }},
    {kGeneral, "Option Screen Settings", "Admin Access", K::kPin, 52, 0, [this] { return Pin(); }},
    {kGeneral, "Option Screen Settings", "Delegate Access", K::kPin, 53, 0, [this] { return Pin(); }},
    {kGeneral, "Option Screen Settings", "Prompt for pin", K::kCheck, 26, 0, [this] { OpenPages(); return Screens(); }},
    {kGeneral, "Default Database", "Database to use on startup...", K::kList, 74, 0, [this] { return Cover().album.caption(); }},
    {kLooks, "Appearance Options", "Resolution:", K::kList, 16, 0, [this] { return std::to_string(house().cover_layout.covers_per_page); }},
    {kLooks, "Appearance Options", "Update Skins On Load", K::kCheck, 50, 0, [this] { return std::to_string(house().lists.skins.size()); }},
    {kLooks, "Appearance Options", "Hide Mouse", K::kCheck, 25, 0, [this] { return std::to_string(machine.displays.pointer); }},
    {kLooks, "Appearance Options", "Show Album/Arist Names", K::kCheck, 15, 0, [this] { return Look(Cover().album) + Look(Cover().artist); }},
    {kLooks, "Appearance Options", "Full Screen Mode...", K::kCheck, 27, 0, [this] { return std::to_string(machine.displays.full_screen); }},
    {kLooks, "Album Options", "Hide QUICKJUMP Covers", K::kCheck, 48, 0, [this] { house().track_list.Open(AlbumPath("Sung")); return Look(form().track_list.quick_jump[0]); }},
    {kLooks, "Album Options", "Show New On Recent Albums", K::kCheck, 47, 0, [this] { return Look(Cover().new_badge); }},
    {kLooks, "Animation Options", "Use Animated Covers", K::kCheck, 28, 0, [this] { return Animation(form().panel(screen::kAlbum), [&] { house().pages.read_albums3(); }); }},
    {kLooks, "Animation Options", "Animation Style:", K::kList, 29, 0, [this] { return Covers(); }},
    {kLooks, "Animation Options", "Animation Speed", K::kSlider, 63, 0, [this] { return Covers(); }},
    {kLooks, "Cover Filename Options", "Cover image name", K::kText, 7, 0, [this] { return Cover().cover.picture(); }},
    {kLooks, "Cover Filename Options", "Use folder name...", K::kCheck, 8, 0, [this] { return Cover().cover.picture(); }},
    {kLooks, "Cover Filename Options", "Display 1st image found", K::kCheck, 9, 0, [this] { return Cover().cover.picture(); }},
    {kLooks, "Track Display Options", "Use Filename If No Tag Found", K::kCheck, 41, 0, [this] { return Album().rows[8].title.caption(); }},
    {kLooks, "Track Display Options", "Display Track Numbers", K::kCheck, 42, 0, [this] { return Album().rows[1].title.caption(); }},
    {kLooks, "Track Display Options", "Show Track First Compilations", K::kCheck, 57, 0, [this] { return Album().rows[1].title.caption(); }},
    {kLooks, "Video\\Visualisations Options", "Use second monitor", K::kCheck, 34, 0, [this] { Choose(clip); return std::to_string(machine.displays.second_shown); }},
    {kLooks, "Video\\Visualisations Options", "Second Monitor ID:", K::kList, 35, 0, [this] { now().use_second_monitor = true; jukebox->effects.displays.MoveSecondMonitor(); return std::to_string(machine.displays.second_area.left); }},
    {kLooks, "Video\\Visualisations Options", "Use WINAMP visualizations for AUDIO", K::kCheck, 36, 0, [this] { machine.visualiser.calls.clear(); Choose(songs[0]); return Joined(machine.visualiser.calls); }},
    {kRandom, "Random Play Options", "Enable Random Play", K::kCheck, 19, 0, [this] { Advance(9); return machine.player.file; }},
    {kRandom, "Random Play Options", "Wait Time Between Tracks:", K::kNumber, 37, 0, [this] { return DeadAir(6.5); }},
    {kRandom, "Random Play Options", "Video", K::kCheck, 46, 1, [this] { return Picks(); }},
    {kRandom, "Random Play Options", "Audio", K::kCheck, 46, 0, [this] { return Picks(); }},
    {kRandom, "Random Play Options", "Karaoke", K::kCheck, 46, 2, [this] { return Picks(); }},
    {kRandom, "Random Play Options", "Use Selected Genres", K::kCheck, 46, 3, [this] { return Picks(); }},
    {kRandom, "Random Play Options", "Use This Volume For Random", K::kCheck, 71, 0, [this] { now().random_volume = -900; Picks(); return std::to_string(machine.player.volume); }},
    {kRandom, "Random Play Options", "Volume For Random Play Songs:", K::kSlider, 21, 0, [this] { now().use_random_volume = true; Picks(); return std::to_string(machine.player.volume); }},
    {kRandom, "Random Play Options", "Do Not Repeat song for:", K::kCheck, 61, 0, [this] { return Picks(); }},
    {kRandom, "Random Play Options", "Do Not Repeat song for:", K::kList, 61, 1, [this] { now().do_not_repeat = true; return Picks(); }},
    {kRandom, "Jingles....", "Enable Jingles", K::kCheck, 68, 0, [this] { return DeadAir(6, 5); }},
    {kRandom, "Jingles....", "Song Count:", K::kList, 69, 0, [this] { now().enable_jingles = true; return DeadAir(6, 1); }},
    {kRandom, "Jingles....", "Jingle Path", K::kFolder, 70, 0, [this] { now().enable_jingles = true; return DeadAir(6, 5); }},
    {kButtons, "Menu Button Options", "History", K::kCheck, 30, 0, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kHistory)]); }},
    {kButtons, "Menu Button Options", "Top 20", K::kCheck, 30, 1, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kTop20)]); }},
    {kButtons, "Menu Button Options", "Search", K::kCheck, 30, 2, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kSearch)]); }},
    {kButtons, "Menu Button Options", "Queue", K::kCheck, 30, 3, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kShowQueue)]); }},
    {kButtons, "Menu Button Options", "Options", K::kCheck, 30, 4, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kOptions)]); }},
    {kButtons, "Menu Button Options", "Decades", K::kCheck, 30, 5, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kDecades)]); }},
    {kButtons, "Menu Button Options", "Carousel View", K::kCheck, 30, 6, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kCarousel)]); }},
    {kButtons, "Menu Button Options", "Genres", K::kCheck, 30, 7, [this] { return Look(form().menu_buttons[static_cast<size_t>(MenuButton::kGenres)]); }},
    {kButtons, "Misc Button Options", "Display Player Controls", K::kCheck, 30, 8, [this] { return Look(form().player); }},
    {kButtons, "Misc Button Options", "Display Menu Bar", K::kCheck, 30, 9, [this] { return Look(form().menu); }},
    {kButtons, "Misc Button Options", "Volume Slider", K::kCheck, 30, 10, [this] { return Look(form().volume); }},
    {kButtons, "Misc Button Options", "Volume Buttons", K::kCheck, 30, 11, [this] { return Look(form().player_buttons[static_cast<size_t>(PlayerButton::kVolumeUp)]); }},
    {kButtons, "Misc Button Options", "Player Buttons", K::kCheck, 30, 12, [this] { return Look(form().player_buttons[static_cast<size_t>(PlayerButton::kPause)]); }},
    {kButtons, "Tab Display Options", "Audio", K::kCheck, 43, 0, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kAudio)]); }},
    {kButtons, "Tab Display Options", "Video", K::kCheck, 43, 1, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kVideo)]); }},
    {kButtons, "Tab Display Options", "Karaoke", K::kCheck, 43, 2, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kKaraoke)]); }},
    {kButtons, "Tab Display Options", "Most Played", K::kCheck, 43, 3, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kMostPlayed)]); }},
    {kButtons, "Tab Display Options", "Newly Added", K::kCheck, 43, 4, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kNewSongs)]); }},
    {kButtons, "Tab Display Options", "SPIN on THIS", K::kCheck, 43, 5, [this] { return Look(form().album.tabs[static_cast<size_t>(AlbumTab::kSpinOnThis)]); }},
    {kButtons, "Play Button Options", "Play It Now", K::kCheck, 45, 0, [this] { return Look(Row().play_now); }},
    {kButtons, "Play Button Options", "Play Next", K::kCheck, 45, 1, [this] { return Look(Row().play_next); }},
    {kButtons, "Play Button Options", "Add To Queue", K::kCheck, 45, 2, [this] { return Look(Row().add_to_queue); }},
    {kButtons, "Play Button Options", "Add Entire Album", K::kCheck, 45, 3, [this] { return Look(Album().add_entire_album); }},
    {kButtons, "Play Button Options", "Add Album To Carousel", K::kCheck, 45, 4, [this] { return Look(Album().add_to_carousel); }},
    {kButtons, "Misc Button Options", "Show Ratings Thumbs", K::kCheck, 45, 5, [this] { return Look(form().now_playing.rating_up); }},
    {kButtons, "Misc Button Options", "Show Credits Display", K::kCheck, 45, 6, [this] { return Look(form().credits); }},
    {kButtons, "Misc Button Options", "Show Now Playing", K::kCheck, 45, 7, [this] { return Look(form().now_playing_title); }},
    {kButtons, "Misc Button Options", "ShowTime And Date", K::kCheck, 45, 8, [this] { return Look(form().clock); }},
    {kButtons, "Play Button Options", "BurnCD", K::kCheck, 45, 9, [this] { return Look(Album().burn_cd); }},
    {kButtons, "Play Button Options", "Download Track", K::kCheck, 45, 10, [this] { return Look(Album().download); }},
    {kButtons, "Play Button Options", "Hide Add Carousel / Album on track select", K::kCheck, 58, 0, [this] { return Look(Row().add_entire_album); }},
    {kButtons, "Queue Display Options", "Set Queue Read Only", K::kCheck, 75, 0, [this] { house().queue_view.Update_queue2(); return Look(form().queue.commands[static_cast<size_t>(QueueCommand::kClear)]); }},
    {kButtons, "Keypad Display Options", "Show Entry Digits", K::kCheck, 76, 0, {}},
    {kButtons, "Keypad Display Options", "Show Album Digits", K::kCheck, 77, 0, [this] { return Cover().artist.caption(); }},
    {kButtons, "Search Results Options", "Add All To Queue", K::kCheck, 79, 0, [this] { Find(SearchMode::kTrack, "1"); return Look(form().search_results.commands[static_cast<size_t>(ResultCommand::kAddAllToQueue)]); }},
    {kAttract, "General Attract Mode Options", "Attract Mode Enabled", K::kCheck, 66, 0, [this] { now().now_playing_wait = "0"; return Idle(28); }},
    {kAttract, "General Attract Mode Options", "Attract Delay:", K::kNumber, 13, 1, [this] { now().now_playing_wait = "0"; now().attract_enabled = true; return Idle(14); }},
    {kAttract, "General Attract Mode Options", "Animation Amount:", K::kNumber, 13, 0, [this] { return Attraction(); }},
    {kAttract, "General Attract Mode Options", "Animation Speed", K::kSlider, 64, 0, [this] { return Attraction(); }},
    {kAttract, "General Attract Mode Options", "Attract AnimationStyle:", K::kList, 65, 0, [this] { return Attraction(); }},
    {kAttract, "General Attract Mode Options", "Alphabetical Order", K::kChoice, 65, 2, {}},
    {kAttract, "General Attract Mode Options", "Attract Mode Path:", K::kFolder, 67, 0, [this] { Attraction(); return form().attract_picture.picture(); }},
    {kKeys, "Power Off", "Disable Keymapping", K::kCheck, 60, 0, [this] { house().key_map.selection(16) = 81; machine.keys.down = {81}; jukebox->keys.PollKeys(); machine.keys.down.clear(); return Screens(); }},
    {kCoins, "Credit Mode", "Enable Credit mode", K::kCheck, 12, 0, [this] { return form().credits.caption(); }},
  };
};

// The line of a value in a file without skins in its list, counted by the file's own table.
size_t LineOf(int number, size_t value) {
  size_t line = 0;
  for (const SettingRow& row : SettingRows()) {
    if (row.label != nullptr) ++line;
    if (row.number == number) return line + value;
    line += row.values.size();
  }
  return 0;
}

TEST_F(SettingsTest, EachChangesItsOwnLineAndComesBackFromItAndDoesWhatItSays) {
  const std::set<std::string> at_once = {"Menu Button Options", "Misc Button Options",
                                         "Tab Display Options"};
  for (const SettingCase& c : cases) {
    SCOPED_TRACE(std::string(c.frame) + " " + c.caption);
    // No history, no queue and no settings of the one before.
    for (const char* file : {"sonotik.ini", "queue.dat", "Random_history.dat"}) {
      folder.Remove(file);
    }
    const auto seen = [&] {
      machine.player.file.clear();
      machine.displays.second_shown = false;
      return c.seen ? c.seen() : "";
    };
    Start();
    const std::string before = seen();
    folder.Remove("queue.dat");
    Open();
    Save();
    const std::vector<std::string> ini = Lines("sonotik.ini");
    OptionField* field = &Show(c.section, c.frame, c.caption, c.kind);
    const bool checked = field->checked();
    Change(*field);
    if (at_once.contains(c.frame)) {
      // A click that shows or hides does so there and then, and another takes it back.
      EXPECT_NE(seen(), before);
      Change(*field);
      EXPECT_EQ(seen(), before);
      Change(*field);
    }
    Save();
    const auto changed = ChangedLines("sonotik.ini", ini);
    EXPECT_THAT(changed, testing::Contains(LineOf(c.row, c.value)));
    // Of choices another one goes.
    EXPECT_EQ(changed.size(), c.kind == K::kChoice ? 2U : 1U);
    EXPECT_TRUE(c.kind != K::kCheck || field->checked() != checked);
    const std::pair value(field->value(), field->checked());
    Start();
    jukebox->options.Refresh();
    field = jukebox->options.Find(c.section, c.frame, c.caption, c.kind);
    EXPECT_EQ(std::pair(field->value(), field->checked()), value);
    EXPECT_TRUE(!c.seen || seen() != before);
  }
}

}  // namespace
}  // namespace sonotik

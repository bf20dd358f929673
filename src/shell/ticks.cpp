#include "shell/ticks.h"

#include <cmath>

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kTickerSeconds = 10;
// From here on the position label stands still for the rest of a very long track; that is meant.
constexpr double kLastShownPosition = 1000.0;

}  // namespace

Ticks::Ticks(Assembly& house) : house_(house) {
  house_.state_timer.on_tick = [this] {
    house_.boundary.Run("StateTimer", [this] { StateTick(); });
  };
  house_.timer1.on_tick = [this] { house_.boundary.Run("Timer1", [this] { Poll(); }); };
}

void Ticks::StateTick() {
  const TimerHold off(house_.state_timer);
  // Each by itself: a missing picture or a damaged calendar must not silence the music.
  Boundary& boundary = house_.boundary;
  boundary.Run("calendar", [this] { CheckCalendar(); });
  boundary.Run("ticker", [this] { TickTicker(); });
  boundary.Run("song facts", [this] { house_.fact_display.TickSongFacts(); });
  boundary.Run("attract mode", [this] { TickIdle(); });
  boundary.Run("clock", [this] { ShowClock(); });
  if (ItIsTimeToLeave()) return hooks.leave_program();
  boundary.Run("next track", [this] {
    EndTrack();
    if (house_.engine.MediaIsPlaying() || house_.playback.paused) {
      ShowPosition();
    } else {
      PickWhatComesNext();
    }
  });
  MoveIndicator();
  if (house_.queue.path(0).empty()) house_.form1.now_playing.next_song.SetVisible(false);
}

void Ticks::CheckCalendar() {
  const Date today = house_.machine.clock.Now().date;
  if (today == house_.state.last_seen_date) return;
  house_.state.last_seen_date = today;
  house_.calendar.Apply(today);
}

void Ticks::TickTicker() {
  // It hides only while the second monitor is in use; that is meant.
  if (!house_.settings.use_second_monitor || !hooks.ticker_visible()) return;
  if (++house_.state.ticker_seconds < kTickerSeconds) return;
  hooks.hide_ticker();
  house_.state.ticker_seconds = 0;
}

void Ticks::TickIdle() {
  ShellState& state = house_.state;
  Form1& form = house_.form1;
  // Anything but a number counts as 0 and switches at once.
  const double limit = NumberOrZero(house_.settings.now_playing_wait);
  // Behind the options the count goes on, so it switches at once when they close; that is meant.
  if (state.idle_seconds <= limit || form.panel(screen::kOptions).visible()) {
    ++state.idle_seconds;
    return;
  }
  const bool showing = form.panel(screen::kNowPlaying).visible();
  const bool playing = house_.engine.MediaIsPlaying();
  if (!showing) {
    form.HideAllScreens();
    form.ShowScreen(screen::kNowPlaying);
    // An attract picture that stands stays in front of it.
    if (form.attract_picture.visible()) form.attract_picture.BringToFront();
  }
  // Over silence or a paused track a change comes each tick, and the seconds count whether attract
  // mode is on or off; both are meant.
  if ((showing || !playing) && house_.settings.attract_enabled &&
      (state.attract_seconds > NumberOrZero(house_.settings.attract_delay) || !playing)) {
    house_.attract.Change();
    state.attract_seconds = 0;
  }
  ++state.attract_seconds;
}

void Ticks::ShowClock() {
  if (!house_.settings.show_time_and_date) return;
  const DateTime now = house_.machine.clock.Now();
  house_.form1.clock.SetCaption(DateText(now.date) + " " + TimeText(now));
}

bool Ticks::ItIsTimeToLeave() const {
  const Settings& settings = house_.settings;
  if (!settings.exit_program_at || settings.exit_time < 0) return false;
  const std::string& time = house_.lists.exit_times[static_cast<size_t>(settings.exit_time)];
  // As texts: the first five characters of the time are its hour and minute.
  return TimeText(house_.machine.clock.Now()).substr(0, 5) == TrimBlanks(time);
}

void Ticks::EndTrack() {
  // Whole seconds: the last fraction of a track isn't played. A paused track never ends.
  if (!house_.playback.paused &&
      std::trunc(house_.engine.MediaDuration()) == std::trunc(house_.engine.MediaPosition())) {
    house_.engine.MediaStop();
  }
}

void Ticks::ShowPosition() {
  const double position = std::trunc(house_.engine.MediaPosition() * 100) / 100;
  if (position < kLastShownPosition) house_.form1.position.SetCaption(MinutesSeconds(position));
}

// It stands still in silence, and so does the screen.
void Ticks::MoveIndicator() {
  ucAniGIF& indicator = house_.form1.now_playing_indicator;
  if (!house_.engine.MediaIsPlaying()) {
    indicator.SetAction(GifAction::kPause);
  } else if (indicator.paused()) {
    indicator.SetAction(GifAction::kPlay);
  }
}

void Ticks::PickWhatComesNext() {
  if (house_.playback.play_now_flag != 0) return;
  if (!house_.queue.path(0).empty()) {
    StartQueueHead();
  } else if (house_.playback.random_mode_on && house_.settings.enable_random_play &&
             house_.playback.random_play_available) {
    CountDeadAir();
  } else {
    ClearPlayingInfoOnce();
  }
}

void Ticks::StartQueueHead() {
  const std::string path = house_.queue.path(0);
  const std::string cover = house_.queue.cover(0);
  // A track whose start fails leaves the queue all the same: kept, it would be tried for ever and
  // nothing behind it would play.
  house_.boundary.Run("track start", [&] { house_.tracks.Play_track3(path); });
  // Over the cover that the start has shown, and also over a track that was gone; that is meant.
  house_.tracks.ShowCover(house_.covers.OrNotFound(cover));
  // It is entry 0 that goes, also if the queue was changed while the start let events run; that is
  // meant.
  house_.queue.RemoveAt(0);
  if (house_.settings.shuffle_queue_each_play) {
    house_.queue.shuffle_queue();
    house_.queue_view.Update_queue2();
  } else {
    ShowQueueAsItIs();
  }
  house_.queue_view.show_next();
}

void Ticks::CountDeadAir() {
  ShellState& state = house_.state;
  // An empty field is 0: the first dead tick starts the next one.
  const double wait = NumberOrZero(house_.settings.wait_between_tracks);
  ++state.random_wait_seconds;
  if (wait > state.random_wait_seconds) return ClearPlayingInfoOnce();
  ++state.jingle_song_count;
  state.random_wait_seconds = 0;
  if (house_.settings.enable_jingles &&
      state.jingle_song_count >= house_.settings.jingle_song_count + 2) {
    state.jingle_song_count = 0;
    house_.jingles.Play();
  } else {
    house_.random_play.Random_Play();
  }
}

void Ticks::ClearPlayingInfoOnce() {
  if (house_.form1.now_playing_artist.caption() != kNoSongPlaying) {
    house_.tracks.clear_playing_info();
  }
}

void Ticks::TakeSpoolFile() {
  const auto selection = house_.network.ReadSpool();
  if (!selection) return;
  // Served once: the file goes and the flags fall, whatever the adding comes to.
  const struct Served {
    Assembly& house;
    ~Served() {
      house.playback.play_now_flag = house.playback.play_next_flag = 0;
      house.boundary.Run("spool file", [this] { house.network.RemoveSpool(); });
    }
  } served{house_};
  house_.playback.play_now_flag = selection->play_now_flag;
  house_.playback.play_next_flag = selection->play_next_flag;
  house_.selection.add_queue4(selection->path);
  ShowQueueAsItIs();
}

void Ticks::ShowQueueAsItIs() {
  // A guest who looks at the queue must see what his next touch acts on.
  if (house_.form1.panel(screen::kQueue).visible()) house_.queue_view.Update_queue2();
}

void Ticks::Poll() {
  const TimerHold off(house_.timer1);
  if (hooks.key_is_held()) return;
  // One file a poll; what fails in it leaves the credits and the keys alone. While a track starts
  // the files wait: played now, one would lose its turn, and in the machine's own start it would be
  // free.
  if (house_.network.master() && house_.playback.starting == 0) {
    house_.boundary.Run("spool file", [this] { TakeSpoolFile(); });
  }
  house_.credits.ShowCreditState();
  hooks.PollKeys();
}

}  // namespace sonotik

#include "playback/track_sequence.h"

#include <exception>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "playback/video_window.h"
#include "text/dates.h"
#include "text/text.h"

namespace sonotik {

TrackSequence::TrackSequence(EventLoop& events, const Settings& settings, PlaybackState& state,
                             MediaEngine& engine, const CoverFinder& covers, History& history,
                             TagReader& tags, TagFields& fields, Timer& state_timer, Form1& form)
    : events_(events),
      settings_(settings),
      state_(state),
      engine_(engine),
      covers_(covers),
      history_(history),
      tags_(tags),
      fields_(fields),
      state_timer_(state_timer),
      form1_(form) {}

void TrackSequence::Play_track3(std::string path) {
  state_timer_.SetEnabled(false);
  path = TrimBlanks(path);
  if (!FileExists(path)) return;
  // Whatever fails behind this point, the tick goes on.
  const TimerHold hold(state_timer_);
  const struct Starting {
    int& count;
    explicit Starting(int& starting) : count(++starting) {}
    ~Starting() { --count; }
  } starting(state_.starting);

  // Muted here and never opened again; that is meant.
  if (settings_.mute_line_in_on_play) hooks.mute_line_in();
  // The sound of a file with a damaged tag may be whole, and a guest may have paid for it.
  tags_.ReadOrNone(TagCaller::kPlayTrack, path);
  ShowNames();
  // Events run before the play is recorded, and one of them may read another tag.
  const TagFields names = fields_;
  hooks.send_to_sign();
  events_.PumpEvents();

  // A song with a CDG beside it is karaoke: the engine gets the CDG, the names came from the MP3.
  if (KindOf(path) == "MP3") {
    const std::string cdg = path.substr(0, path.size() - 3) + "CDG";
    if (FileExists(cdg)) path = cdg;
  }
  // In this order a sidecar's name never becomes karaoke and goes on as audio.
  if (KindOf(path) == "TAG" && path.size() >= 4) path.resize(path.size() - 4);

  engine_.OpenMedia(path, false);
  ++state_.opened;
  // Behind the opening, which lets events run: a pause pressed in there was the track before's.
  state_.paused = false;
  form1_.paused.SetVisible(false);
  events_.PumpEvents();
  engine_.MediaSetVolume(settings_.use_random_volume && state_.random_in_progress
                             ? settings_.random_volume
                             : settings_.main_volume);
  BranchOnKind(path);

  fields_ = names;
  const std::string folder = FolderOf(path);
  // Karaoke is remembered and recorded as its CDG; that is meant.
  state_.current_track_path = path;
  state_.current_track_folder = folder;
  ShowCover(covers_.FindCoverPicture(folder));
  // The tag may have left the time of the file before standing; it is shown as it is.
  const std::string length =
      fields_.txtmp3time.empty() ? MinutesSeconds(engine_.MediaDuration()) : fields_.txtmp3time;
  form1_.length.SetCaption(length);
  form1_.now_playing.length.SetCaption(length);
  // A history that can't be written costs its record, and the song keeps its facts.
  std::exception_ptr unwritten;
  try {
    history_.AddToHistory(path, state_.random_in_progress ? kRandomHistory : kUserHistory);
  } catch (const RuntimeFailure&) {
    unwritten = std::current_exception();
  }
  hooks.start_song_facts();
  if (unwritten) std::rethrow_exception(unwritten);
}

void TrackSequence::ShowNames() {
  // The "Next Song:" panel takes the playing names too, until it is painted again; that is meant.
  for (Label* artist : {&form1_.now_playing_artist, &form1_.now_playing.artist,
                        &form1_.now_playing.next_song_artist}) {
    artist->SetCaption(fields_.txtArtist);
  }
  for (Label* title : {&form1_.now_playing_title, &form1_.now_playing.title,
                       &form1_.now_playing.next_song_title}) {
    title->SetCaption(fields_.txtTitle);
  }
}

void TrackSequence::BranchOnKind(const std::string& path) {
  NowPlayingScreen& screen = form1_.now_playing;
  if (!HasPicture(path)) {
    if (settings_.use_visualisations) {
      events_.PumpEvents();
      hooks.start_visualisation();
    }
    if (settings_.use_second_monitor && settings_.second_monitor_videos_only) {
      // With "All" it keeps the last picture that it had; that is meant.
      hooks.show_second_monitor(false);
    }
    screen.video.SetVisible(false);
    screen.full_screen.SetVisible(false);
    if (settings_.enable_mic_on_videos) hooks.mute_microphone(true);
    return;
  }
  hooks.close_visualisation();
  // The microphone opens for all that isn't audio.
  if (settings_.enable_mic_on_videos) hooks.mute_microphone(false);
  if (settings_.use_second_monitor) hooks.show_second_monitor(true);
  screen.video.SetVisible(!settings_.use_second_monitor);
  screen.full_screen.SetVisible(!settings_.use_second_monitor);
}

void TrackSequence::ShowCover(const std::string& picture) {
  form1_.now_playing_cover.SetPicture(picture);
  form1_.now_playing.cover.SetPicture(picture);
}

void TrackSequence::clear_playing_info() {
  for (Label* label : {&form1_.now_playing_artist, &form1_.now_playing_title,
                       &form1_.now_playing.artist, &form1_.now_playing.title,
                       &form1_.now_playing.next_song_artist, &form1_.now_playing.next_song_title}) {
    label->SetCaption(kNoSongPlaying);
  }
  for (Label* label : {&form1_.position, &form1_.length, &form1_.now_playing.length}) {
    label->SetCaption("0:00");
  }
  ShowCover(covers_.NotFoundPicture());
  hooks.playing_info_cleared();
}

}  // namespace sonotik

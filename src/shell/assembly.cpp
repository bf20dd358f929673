#include "shell/assembly.h"

#include <utility>

namespace sonotik {
namespace {

constexpr int kPollInterval = 10;
constexpr int kTickInterval = 1000;

}  // namespace

Assembly::Assembly(std::string path, Machine& ports)
    : app_path(std::move(path)),
      machine(ports),
      timer1(ports.timers, kPollInterval),
      state_timer(ports.timers, kTickInterval),
      log(app_path, ports.clock),
      settings_file(app_path, settings, lists, ports.messages),
      credits(app_path, settings, lists, form1),
      key_map(app_path),
      permissions(app_path, ports.messages),
      pin(app_path, ports.clock, settings, permissions, form1),
      inputs(app_path, ports.mixer, ports.processes),
      winamp(app_path, ports.visualiser),
      network(app_path, share),
      sign(app_path),
      led_sign(sign, ports.sign_port),
      tags(fields, [this] { return settings.use_filename_if_no_tag; }),
      skins(app_path, settings, lists, form1, ports),
      covers(app_path, settings),
      catalogue(app_path),
      animation(ports.events, ports.random),
      pages(ports, settings, catalogue, cursor, cover_layout, covers, animation, form1),
      letter_jump(catalogue, cursor, cover_layout, pages, form1),
      carousel(settings, catalogue, cursor, cover_layout, covers, pages, animation, form1.carousel),
      track_list(app_path, settings, catalogue, cursor, cover_layout, covers, pages, animation,
                 tags, fields, form1),
      play_options(settings, cursor, covers, credits, animation, tags, fields, form1),
      search(ports, settings, catalogue, cursor, covers, search_results, form1),
      charts(app_path, ports, settings, catalogue, cursor, covers, search_results, form1),
      decades(app_path, ports.clock, charts, form1.decades),
      genres(app_path, settings, cursor, pages, animation, form1),
      history(app_path, ports.clock, catalogue, fields),
      history_view(app_path, catalogue, covers, play_options, track_list, form1),
      top20(settings, history.most_played(), covers, play_options, form1.top20),
      facts(app_path, log),
      engine(ports.player, ports.events, settings, form1.now_playing.video),
      video_window(ports.displays, settings, engine, form1, form3),
      queue(app_path, ports.random, tags, fields),
      queue_view(settings, queue, covers, tags, fields, form1),
      tracks(ports.events, settings, playback, engine, covers, history, tags, fields, state_timer,
             form1),
      selection(settings, playback, cursor, credits, queue, queue_view, tracks, covers, tags),
      random_play(app_path, ports.clock, ports.random, settings, lists, playback, tracks),
      jingles(ports.random, settings, playback, selection),
      fact_display(facts, fields, engine, form1),
      rating(app_path, form1.now_playing),
      attract(settings, ports.random, animation, form1),
      calendar(app_path, settings) {
  tracks.hooks.start_song_facts = [this] { fact_display.StartSongFacts(); };
  tracks.hooks.show_second_monitor = [this](bool visible) { video_window.Show(visible); };
  selection.announce = [this](bool play_next) {
    state.ticker_seconds = 0;
    video_window.Announce(fields, play_next);
  };
  fact_display.show_on_second_monitor = [this](const std::string* fact) {
    video_window.ShowFact(fact);
  };
  tracks.hooks.send_to_sign = [this] { led_sign.ShowTrack(fields.txtArtist, fields.txtTitle); };
  tracks.hooks.mute_line_in = [this] { inputs.MuteLineIn(); };
  tracks.hooks.mute_microphone = [this](bool mute) { inputs.MuteMicrophone(mute); };
  tracks.hooks.start_visualisation = [this] { winamp.Start(); };
  tracks.hooks.close_visualisation = [this] { winamp.Execute(cls_Winamp::kClose); };
  tracks.hooks.playing_info_cleared = [this] {
    led_sign.Clear();
    winamp.Execute(cls_Winamp::kClose);
  };
  fact_display.show_fact_on_sign = [this](const std::string& fact) { led_sign.ShowFact(fact); };
  // From what is shown as playing: the tag read last may be another file's by now.
  fact_display.show_track_on_sign = [this] {
    led_sign.ShowTrack(form1.now_playing_artist.caption(), form1.now_playing_title.caption());
  };
  play_options.is_queued = [this](const std::string& chosen) { return queue.Contains(chosen); };
  selection.hand_to_master = [this](const std::string& track) {
    if (!network.terminal()) return false;
    network.WriteSpool({playback.play_now_flag, playback.play_next_flag, track});
    return true;
  };
  // A change comes after idle seconds, and any touch sets them back.
  attract.touched = [this] { return state.idle_seconds == 0; };
  search.on_record = [this] { state.idle_seconds = 0; };
  play_options.queue_count = [this] { return queue.count(); };
  skins.screens.hooks.set_track_rows = [this](int rows) { track_list.SetRowsPerPage(rows); };
  skins.screens.hooks.fit_video_window = [this] {
    if (settings.use_second_monitor) video_window.SetDisplay();
    engine.FitVideoWindow();
  };
  for (ucAniGIF* gif :
       {&form1.now_playing_indicator, &form1.now_playing.rating, &form1.decades.chart_picture}) {
    gif->SetTimers(machine.timers);
  }
}

}  // namespace sonotik

#include "forms/Form1.h"

#include <algorithm>

namespace sonotik {
namespace {

using namespace design;

constexpr float kPlayerTop = kHeight - kPlayerHeight;

}  // namespace

Form1::Form1()
    : album(panels[screen::kAlbum]),
      jump_to_letter(form),
      track_list(panels[screen::kTrackList]),
      play_options(panels[screen::kPlayOptions]),
      queue(panels[screen::kQueue]),
      now_playing(panels[screen::kNowPlaying]),
      carousel(panels[screen::kCarousel], panels[screen::kCarouselStrip]),
      decades(panels[screen::kDecades]),
      history(panels[screen::kHistory]),
      top20(panels[screen::kTop20]),
      search(panels[screen::kSearch]),
      search_choice(panels[screen::kSearchChoice]),
      search_results(panels[screen::kSearchResults], panels[screen::kChartChoice]),
      searching(form),
      genre(panels[screen::kGenre]),
      genre_buttons(genre_bar),
      options(panels[screen::kOptions]),
      pin(pin_screen) {
  form.SetPlace({0, 0, kWidth, kHeight});
  form.SetBackColor(kNight);
  form.SetTitle("Sonotik");

  AddPanel(form, menu, {0, 0, kWidth, kMenuHeight}, kPanel);
  static constexpr const char* kMenu[] = {"History",       "Top 20",  "Search",
                                          "Show Queue",    "Options", "Decades",
                                          "Carousel View", "Genres",  "Album View"};
  // By how often a guest wants them, from the left.
  static constexpr float kMenuPlaces[] = {7, 6, 3, 1, 8, 5, 2, 4, 0};
  for (size_t i = 0; i < menu_buttons.size(); ++i) {
    AddButton(menu, menu_buttons[i], {8 + 141 * kMenuPlaces[i], 8, 134, 48}, kMenu[i], 11);
  }

  // Panels 14 and 15 lie on other screens.
  for (size_t i = 0; i <= screen::kPlayOptions; ++i) {
    AddPanel(form, panels[i], kScreen);
    panels[i].SetVisible(i == screen::kAlbum);
  }
  jump_to_letter.panel.BringToFront();

  AddPanel(form, player, {0, kPlayerTop, kWidth, kPlayerHeight}, kPanel);
  AddPicture(player, now_playing_cover, {12, 10, 76, 76});
  AddLabel(player, now_playing_title, {100, 10, 296, 30}, 14, kText, Align::kLeft, true);
  AddLabel(player, now_playing_artist, {100, 38, 296, 26}, 12, kAmber);
  player.Add(now_playing_indicator, {356, 64, 40, 24});
  AddLabel(player, position, {100, 64, 70, 24}, 12, kText);
  AddLabel(player, length, {170, 64, 90, 24}, 12, kMuted);
  AddLabel(player, paused, {264, 64, 88, 24}, 12, kCoral, Align::kLeft, true);
  paused.SetCaption("PAUSED");
  paused.SetVisible(false);

  static constexpr const char* kPlayer[] = {"<<", "ll", ">>", "-", "+"};
  for (size_t i = 0; i < player_buttons.size(); ++i) {
    // The volume buttons stand at both ends of the slider.
    const float left = i < 3 ? 492 + 84 * static_cast<float>(i) : i == 3 ? 760 : 980;
    AddButton(player, player_buttons[i], {left, 16, i < 3 ? 76.0F : 56.0F, 64}, kPlayer[i], 16);
  }
  // Shows once the machine can choose music by itself.
  AddButton(player, random, {404, 16, 80, 64}, "Random OFF", 10);
  random.SetVisible(false);
  player.Add(volume, {822, 28, 152, 40});
  volume.SetRange(kLeastVolume, kMostVolume);
  volume.SetValue(kMostVolume);
  volume.SetColors(kNight, kAmber, kText);

  AddLabel(player, credits, {1050, 8, 218, 28}, 13, kAmber, Align::kRight, true);
  AddLabel(player, play_caption, {1050, 36, 218, 24}, 11, kMuted, Align::kRight);
  AddLabel(player, clock, {1050, 62, 218, 26}, 12, kText, Align::kRight);

  AddPanel(form, genre_bar, {0, 0, kWidth, kMenuHeight}, kPanel);
  AddPanel(form, pin_screen, {440, 150, 400, 480}, kRaised);
  AddLabel(form, song_fact, {}, 18);
  song_fact.SetWrap(true);
  song_fact.SetVisible(false);
  AddPanel(form, attract_picture, {0, 0, kWidth, kHeight});
  attract_picture.SetPictureFit(PictureFit::kCover);
  for (Panel* hidden : {&genre_bar, &pin_screen, &attract_picture}) hidden->SetVisible(false);
  searching.panel.BringToFront();

  for (Control* child : panels[screen::kCarousel].children()) KeepShare(*child);
  for (Control* child : carousel.strip.children()) KeepShare(*child);
  for (lvButtons_H& button : search_results.lists) KeepShare(button);
  KeepShare(search.suggestions.back());
  for (ChartRow& row : decades.rows) {
    KeepShare(row.play_now);
    KeepShare(row.add_queue);
  }
  KeepShare(decades.month_picker);
  for (Control* control : {static_cast<Control*>(&now_playing.rating_caption),
                           static_cast<Control*>(&now_playing.rating_up),
                           static_cast<Control*>(&now_playing.rating_down)}) {
    KeepShare(*control);
  }
  KeepShare(jump_to_letter.heading);
  KeepShare(album.tabs[static_cast<size_t>(AlbumTab::kMostPlayed)]);
  KeepShare(random);
  KeepShare(searching.panel);
  KeepShare(attract_picture);
}

void Form1::KeepShare(Control& control) {
  const Rect panel = control.parent()->place();
  unplaced_.push_back({&control, control.place(), {0, 0, panel.width, panel.height}});
}

void Form1::FitUnplaced() {
  // In the place of two rows: there are none where the lists are offered.
  search_results.list_panel.SetPlace(
      search_results.rows[1].blank.place().United(search_results.rows[2].blank.place()));
  for (const Unplaced& item : unplaced_) {
    const Rect panel = item.control->parent()->place();
    const float across = panel.width / item.panel.width;
    const float down = panel.height / item.panel.height;
    Rect place{item.design.left * across, item.design.top * down, item.design.width * across,
               item.design.height * down};
    // A picture keeps its ratio, in the middle of its share.
    if (dynamic_cast<PictureBox*>(item.control) != nullptr) {
      const float scale = std::min(across, down);
      const float width = item.design.width * scale, height = item.design.height * scale;
      place = {place.left + (place.width - width) / 2, place.top + (place.height - height) / 2,
               width, height};
    }
    item.control->SetPlace(place);
  }
  options.LayOut();
}

void Form1::PlaceFact() {
  // Between the rating and what comes next, in the names' column and letters; a strip at the
  // screen's foot where a skin leaves no room there.
  const Rect names = now_playing.artist.AbsolutePlace(), foot = player.place();
  const float strip = 56 * form.place().height / kHeight;
  const float top = std::max(names.bottom(), now_playing.rating_down.AbsolutePlace().bottom());
  const float bottom = std::min(now_playing.next_song_caption.AbsolutePlace().top,
                                now_playing.next_song_cover.AbsolutePlace().top);
  const bool beside = bottom - top >= strip;
  song_fact.SetPlace(beside ? Rect{names.left, top, names.width, bottom - top}
                            : Rect{foot.left, foot.top - strip, foot.width, strip});
  song_fact.SetPlate(beside ? std::nullopt : std::optional(kRaised));
  song_fact.SetAlign(beside ? Align::kLeft : Align::kCenter);
  song_fact.SetFont(now_playing.artist.font());
  song_fact.SetForeColor(now_playing.title.fore_color());
}

void Form1::HideAllScreens() {
  // Panels 14 and 15 are parts of other screens and stay as they are.
  for (size_t i = 0; i <= screen::kPlayOptions; ++i) panels[i].SetVisible(false);
}

void Form1::ShowScreen(size_t index) {
  ++screens_shown_;
  shown_last_ = index;
  // An attract picture left standing behind a screen would come back at the next idle time, whatever
  // the settings say by then.
  if (index != screen::kNowPlaying) attract_picture.SetVisible(false);
  panels[index].SetVisible(true);
  panels[index].BringToFront();
  RaiseFact();
}

void Form1::RaiseFact() {
  if (shown_last_ != screen::kNowPlaying || !song_fact.visible() || attract_picture.visible()) {
    return;
  }
  PlaceFact();
  song_fact.BringToFront();
}

}  // namespace sonotik

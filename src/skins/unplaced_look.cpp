#include "skins/unplaced_look.h"

namespace sonotik {
namespace {

void Dress(lvButtons_H& button, const lvButtons_H& like) {
  if (like.image().empty()) return;  // the skin has no buttons of its own
  Font font = like.font();
  font.bold = button.font().bold;
  button.SetFont(font);
  button.SetForeColor(like.cFore());
  button.SetBackColor(like.cBack());
  button.SetLockHover(0);
  button.SetButtonShape(0);
  button.SetPicture(like.image());
  button.SetButtonShape(like.shape());
  button.SetCustomClick(like.custom_click());
  button.Refresh();
}

void Dress(Label& label, const Label& like) {
  Font font = like.font();
  font.bold = label.font().bold;
  label.SetFont(font);
  label.SetForeColor(like.fore_color());
}

}  // namespace

void DressUnplaced(Form1& form) {
  const lvButtons_H& command = form.top20.commands[0];
  for (lvButtons_H* button : {&form.carousel.up, &form.carousel.down}) Dress(*button, command);
  Dress(form.carousel.back, form.top20.back);
  for (ChartRow& row : form.decades.rows) {
    Dress(row.play_now, command);
    Dress(row.add_queue, command);
  }
  for (lvButtons_H& button : form.search_results.lists) Dress(button, command);
  Dress(form.random, form.album.letter_buttons.back());
  Dress(form.album.tabs[static_cast<size_t>(AlbumTab::kMostPlayed)], form.album.tabs[0]);
  Dress(form.now_playing.rating_up, form.search.digits[0]);
  Dress(form.now_playing.rating_down, form.search.digits[0]);

  Dress(form.search.suggestions[3], form.search.suggestions[2]);
  Dress(form.now_playing.rating_caption, form.now_playing.next_song_caption);
  Dress(form.jump_to_letter.heading, form.track_list.album_heading);
  for (CarouselColumn& column : form.carousel.columns) {
    Dress(column.artist, form.track_list.artist_heading);
  }
  // Their colours and sizes are those of other files.
  const std::string& family = form.now_playing_title.font().family;
  const auto write_in = [&](Label& label) {
    label.SetFont({family, label.font().points, label.font().bold});
  };
  write_in(form.searching.caption);
  for (CoverPosition& position : form.album.covers) {
    for (Label* label : {&position.new_badge, &position.album, &position.artist}) write_in(*label);
  }
  for (Panel* panel : {&form.searching.panel, &form.search_results.list_panel}) {
    panel->SetBackColor(form.options.pages.back_color());
  }
}

}  // namespace sonotik

// Says where the controls of a skin stand, so that the tour can press them with a real mouse: one
// line each of name, left, top, width and height. sonotik-where DEMO SKIN
#include <exception>
#include <iostream>
#include <string>

#include "files/file_list.h"
#include "files/paths.h"
#include "forms/Form1.h"
#include "skins/cover_layout.h"
#include "skins/layout_reader.h"

namespace sonotik {
namespace {

void Say(const std::string& name, const Control& control) {
  const Rect place = control.AbsolutePlace();
  std::cout << name << ' ' << place.left << ' ' << place.top << ' ' << place.width << ' '
            << place.height << '\n';
}

void SayAll(const Form1& form) {
  Say("window", form.form);
  Say("player", form.player);
  Say("menu", form.menu);
  Say("position", form.position);
  for (size_t i = 0; i < form.menu_buttons.size(); ++i) {
    Say("menu" + std::to_string(i), form.menu_buttons[i]);
  }
  Say("menu_search", form.menu_buttons[static_cast<size_t>(MenuButton::kSearch)]);
  Say("menu_genres", form.menu_buttons[static_cast<size_t>(MenuButton::kGenres)]);
  Say("menu_history", form.menu_buttons[static_cast<size_t>(MenuButton::kHistory)]);
  Say("menu_top20", form.menu_buttons[static_cast<size_t>(MenuButton::kTop20)]);
  Say("menu_decades", form.menu_buttons[static_cast<size_t>(MenuButton::kDecades)]);
  Say("menu_queue", form.menu_buttons[static_cast<size_t>(MenuButton::kShowQueue)]);
  Say("menu_carousel", form.menu_buttons[static_cast<size_t>(MenuButton::kCarousel)]);
  Say("menu_album", form.menu_buttons[static_cast<size_t>(MenuButton::kAlbumView)]);
  Say("pause", form.player_buttons[static_cast<size_t>(PlayerButton::kPause)]);
  Say("next_track", form.player_buttons[static_cast<size_t>(PlayerButton::kNext)]);
  Say("now_playing", form.now_playing_title);
  Say("page_next", form.album.next);
  Say("page_previous", form.album.previous);
  Say("jump_to_letter", form.album.jump_to_letter);
  Say("jump_done", form.jump_to_letter.done);
  for (size_t i = 0; i < form.album.tabs.size(); ++i) {
    Say("tab" + std::to_string(i), form.album.tabs[i]);
  }
  for (size_t i = 0; i < kDesignCovers; ++i) {
    Say("cover" + std::to_string(i), form.album.covers[i].cover);
  }
  for (size_t i = 0; i < form.track_list.rows.size(); ++i) {
    Say("track" + std::to_string(i), form.track_list.rows[i].title);
  }
  Say("track_back", form.track_list.back);
  Say("add_entire_album", form.track_list.add_entire_album);
  Say("play_now", form.play_options.play_now);
  Say("play_next", form.play_options.play_next);
  Say("add_to_queue", form.play_options.add_to_queue);
  Say("cancel", form.play_options.cancel);
  for (size_t i = 0; i < form.queue.rows.size(); ++i) {
    Say("queue" + std::to_string(i), form.queue.rows[i].track);
  }
  for (size_t i = 0; i < form.options.sections.size(); ++i) {
    Say("section" + std::to_string(i), form.options.sections[i]);
  }
  Say("settings", form.options.pages);
  for (size_t i = 0; i < 3; ++i) Say("pick" + std::to_string(i), form.options.picker.items[i]);
  Say("save_settings", form.options.save_settings);
  for (size_t i = 0; i < form.pin.keys.size(); ++i) {
    Say("pin" + std::to_string(i), form.pin.keys[i]);
  }
  Say("queue_back", form.queue.back);
  Say("rating_up", form.now_playing.rating_up);
  Say("full_screen", form.now_playing.full_screen);
  for (size_t i = 0; i < form.search_choice.modes.size(); ++i) {
    Say("mode" + std::to_string(i), form.search_choice.modes[i]);
  }
  for (size_t i = 0; i < 26; ++i) {
    Say(std::string("key_") + static_cast<char>('A' + i), form.search.keys[i]);
  }
  Say("suggestion1", form.search.suggestions[1]);
  Say("search", form.search.search);
  Say("result0", form.search_results.rows[0].track);
  Say("results_down", form.search_results.down);
  Say("results_add", form.search_results.commands[static_cast<size_t>(ResultCommand::kAddToQueue)]);
  Say("results_list0", form.search_results.lists[0]);
  for (size_t i = 0; i < form.genre_buttons.buttons.size(); ++i) {
    Say("genre_bar" + std::to_string(i), form.genre_buttons.buttons[i]);
  }
  for (const size_t i : {0, 10}) Say("genre" + std::to_string(i), form.genre.labels[i]);
  Say("history0", form.history.rows[0].text);
  Say("history_page_up", form.history.steps[static_cast<size_t>(HistoryStep::kPageUp)]);
  Say("top20_row0", form.top20.rows[0].track);
  Say("month", form.decades.month_caption);
  Say("month_before", form.decades.steps[0]);
  Say("month_back", form.decades.month_back);
  Say("year", form.decades.year_caption);
  Say("year_back", form.decades.year_back);
}

// The files alone: no screen is shown, so what a jukebox does beside reading them isn't needed.
void PutOn(Form1& form, const std::string& folder) {
  const LayoutTargets targets(form);
  LayoutReader reader(targets, folder);
  Rect window;
  reader.on_number = [&](std::string_view, FieldKind kind, double number) {
    if (kind == FieldKind::kScreenWidth) window.width = static_cast<float>(number);
    if (kind == FieldKind::kScreenHeight) window.height = static_cast<float>(number);
  };
  for (const LayoutFile& file : LayoutFiles()) reader.Read(file);
  if (!window.empty()) form.form.SetPlace(window);
  form.FitUnplaced();
  FileList pages("*.cov");
  pages.SetFolder(folder);
  CoverLayout layout;
  if (pages.count() > 0) LoadCoverLayout(pages.PathAt(0), layout, form.album);
}

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: sonotik-where DEMO SKIN\n";
    return 2;
  }
  try {
    sonotik::Form1 form;
    sonotik::PutOn(form, sonotik::ProgramPath(argv[1]) + "\\skins\\" + argv[2]);
    sonotik::SayAll(form);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "sonotik-where: " << failure.what() << '\n';
    return 1;
  }
}

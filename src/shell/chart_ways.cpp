#include "shell/chart_ways.h"

#include "files/files.h"
#include "files/paths.h"
#include "text/text.h"

namespace sonotik {

template <typename Handler>
void ChartWays::OnClick(Control& control, const char* name, Handler handler) {
  control.on_click = house_.boundary.Guarded(name, handler);
}

ChartWays::ChartWays(Assembly& house, Menu& menu, Navigation& navigation)
    : house_(house), navigation_(navigation) {
  WireHistory();
  WireTop20();
  WireDecades();
  menu.hooks.history_first_page = [this] { house_.history_view.ToFirstPage(); };
  menu.hooks.history_show2 = [this] { house_.history_view.history_show2(); };
  menu.hooks.top20_first_page = [this] { house_.top20.ToFirstPage(); };
  menu.hooks.Top20_show3 = [this] { house_.top20.Top20_show3(); };
  house_.history.on_added = [this] { TellOthers(); };
}

void ChartWays::WireHistory() {
  HistoryScreen& screen = house_.form1.history;
  HistoryView& view = house_.history_view;
  for (size_t i = 0; i < screen.steps.size(); ++i) {
    OnClick(screen.steps[i], "history", [&view, i] { view.Step(static_cast<HistoryStep>(i)); });
  }
  for (int row = 0; row < kHistoryRows; ++row) {
    HistoryRow& items = screen.rows[static_cast<size_t>(row)];
    OnClick(items.text, "history row", [&view, row] { view.ChooseTexts(row); });
    OnClick(items.cover, "history cover", [&view, row] { view.ChooseCover(row); });
  }
}

void ChartWays::WireTop20() {
  Top20Screen& screen = house_.form1.top20;
  Top20& top20 = house_.top20;
  OnClick(screen.up, "Up", [&top20] { top20.StepPage(-1); });
  OnClick(screen.down, "Down", [&top20] { top20.StepPage(1); });
  for (int row = 0; row < kTop20Rows; ++row) {
    Top20Row& items = screen.rows[static_cast<size_t>(row)];
    const std::initializer_list<Control*> touched = {&items.cover, &items.number, &items.artist,
                                                     &items.track, &items.played};
    for (Control* item : touched) {
      OnClick(*item, "Top 20 row", [&top20, row] { top20.ChooseRow(row); });
    }
  }
  const struct {
    Top20Command command;
    const char* name;
    PlayWay way;
  } commands[] = {{Top20Command::kAddToQueue, "Add To Queue", PlayWay::kAddToQueue},
                  {Top20Command::kPlayNext, "Play NEXT", PlayWay::kPlayNext},
                  {Top20Command::kPlayNow, "Play NOW", PlayWay::kPlayNow}};
  for (const auto& c : commands) {
    OnClick(screen.commands[static_cast<size_t>(c.command)], c.name,
            [this, way = c.way] { ChooseTop20(way); });
  }
}

void ChartWays::ChooseTop20(PlayWay way) {
  // By value: a start adds to the table.
  const std::string path = house_.top20.chosen_path();
  if (!path.empty()) navigation_.ChooseOn(screen::kTop20, path, way);
}

void ChartWays::WireDecades() {
  DecadesScreen& screen = house_.form1.decades;
  Decades& decades = house_.decades;
  OnClick(screen.month_caption, "month", [this, &screen] { ShowPicker(screen.month_picker); });
  OnClick(screen.year_caption, "year", [this, &screen] { ShowPicker(screen.year_picker); });
  for (size_t i = 0; i < screen.steps.size(); ++i) {
    OnClick(screen.steps[i], "decades",
            [&decades, i] { decades.Step(static_cast<DecadesStep>(i)); });
  }
  for (size_t i = 0; i < screen.month_buttons.size(); ++i) {
    OnClick(screen.month_buttons[i], "month",
            [&decades, i] { decades.ChooseMonth(static_cast<int>(i) + 1); });
  }
  for (size_t i = 0; i < screen.year_buttons.size(); ++i) {
    OnClick(screen.year_buttons[i], "year",
            [&decades, i] { decades.ChooseYear(kFirstChartYear + static_cast<int>(i)); });
  }
  for (int row = 0; row < kChartRows; ++row) {
    ChartRow& items = screen.rows[static_cast<size_t>(row)];
    OnClick(items.play_now, "Play NOW", [this, row] { PlayChartRow(row); });
    OnClick(items.add_queue, "Add Queue", [this, row] { QueueChartRow(row); });
  }
}

void ChartWays::ShowPicker(Panel& picker) {
  picker.SetVisible(true);
  picker.BringToFront();
}

// The buttons of a row may be older than the table that the searches share, so a row's track can be
// gone; nobody pays for that.
void ChartWays::PlayChartRow(int row) {
  const std::string path = house_.charts.PathOfRow(row);
  if (!path.empty()) navigation_.Choose(path, PlayWay::kPlayNow);
}

void ChartWays::QueueChartRow(int row) {
  const std::string path = house_.charts.PathOfRow(row);
  if (path.empty()) return;
  if (!house_.settings.allow_duplicates_in_queue && house_.queue.Contains(WithoutTagMark(path))) {
    return;
  }
  navigation_.Choose(path, PlayWay::kAddToQueue);
}

void ChartWays::TellOthers() {
  Form2& form = house_.form2;
  form.forum_artist.SetCaption(house_.fields.txtArtist);
  form.forum_title.SetCaption(house_.fields.txtTitle);
  form.forum_album.SetCaption(DoubleAmpersands(house_.fields.txtAlbum));
  form.forum_cover.SetPicture(house_.form1.now_playing_cover.picture());
  house_.boundary.Run("form_image", form_image);
  // The operator's own; what is in it is his.
  const std::string script = house_.app_path + "\\test.bat";
  if (!house_.network.terminal() && FileExists(script)) {
    house_.machine.processes.StartProgram(script, WindowState::kHidden);
  }
}

}  // namespace sonotik

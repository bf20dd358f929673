#include "catalogue/play_options.h"

#include "files/files.h"
#include "files/paths.h"
#include "text/numbers.h"

namespace sonotik {

PlayOptions::PlayOptions(const Settings& settings, const CatalogueCursor& cursor,
                         const CoverFinder& covers, const Credits& credits,
                         CoverAnimation& animation, TagReader& tags, const TagFields& fields,
                         Form1& form)
    : settings_(settings),
      cursor_(cursor),
      covers_(covers),
      credits_(credits),
      animation_(animation),
      tags_(tags),
      fields_(fields),
      form1_(form),
      screen_(form.play_options) {}

void PlayOptions::show_play_options(const std::string& path, size_t calling_screen) {
  path_ = path;
  calling_screen_ = calling_screen;
  screen_.cover.SetPicture(covers_.FindCoverPicture(FolderOf(path)));
  // A track that has gone keeps the names of the one before.
  if (FileExists(path)) {
    tags_.ReadOrNone(TagCaller::kPlayOptions, path);
    screen_.artist.SetCaption(fields_.txtArtist);
    screen_.title.SetCaption(fields_.txtTitle);
  }
  ShowButtons();
  screen_.queue_line.SetCaption("(" + std::to_string(queue_count()) + ") Songs In Queue");
  form1_.ShowScreen(screen::kPlayOptions);
}

void PlayOptions::ShowButtons() {
  screen_.message.SetCaption("");
  for (Label& price : screen_.prices) price.SetVisible(false);
  // Duplicates are looked for here alone: other ways of adding don't ask.
  const bool queued = !settings_.allow_duplicates_in_queue && is_queued(WithoutTagMark(path_));
  const bool coins = credits_.InsertCoins(cursor_.media_kind);
  const bool offer = !queued && !coins;
  screen_.play_now.SetVisible(offer && settings_.play_it_now);
  screen_.play_next.SetVisible(offer && settings_.play_next);
  screen_.add_to_queue.SetVisible(offer && settings_.add_to_queue);
  screen_.download.SetVisible(offer && settings_.download_track);
  screen_.cancel.SetVisible(!coins);
  if (queued) screen_.message.SetCaption("Track Already In Queue");
  if (coins) ShowPrices();
}

void PlayOptions::ShowPrices() {
  static constexpr const char* kMessages[] = {
      "Insert Coins To Play AUDIO", "Insert Coins To Play VIDEO", "Insert Coins To KARAOKE"};
  screen_.message.SetCaption(kMessages[cursor_.media_kind]);
  const struct {
    PlayWay way;
    bool on;
    const char* text;
  } ways[] = {{PlayWay::kAddToQueue, settings_.add_to_queue, " Credits Add To Queue"},
              {PlayWay::kPlayNext, settings_.play_next, " Credits Play Next"},
              {PlayWay::kPlayNow, settings_.play_it_now, " Credits Play NOW"}};
  for (const auto& way : ways) {
    Label& label = screen_.prices[static_cast<size_t>(way.way)];
    label.SetVisible(way.on);
    const int price = credits_.ShownPrice(cursor_.media_kind, way.way);
    // As the list's item has it; nothing chosen is no number.
    label.SetCaption((price > 0 ? NumberCaption(price) : "") + way.text);
  }
}

void PlayOptions::Reveal() {
  Panel& panel = form1_.panel(screen::kPlayOptions);
  // From the left in one step, whatever the covers' style: a guest waits for his commands.
  if (settings_.use_animated_covers && panel.showing()) animation_.Animate(panel, 1, 0, 0, 1);
}

void PlayOptions::Close() {
  form1_.panel(screen::kPlayOptions).SetVisible(false);
  form1_.ShowScreen(calling_screen_);
}

}  // namespace sonotik

#include "playback/queue_view.h"

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {

QueueView::QueueView(const Settings& settings, Queue& queue, const CoverFinder& covers,
                     TagReader& tags, const TagFields& fields, Form1& form)
    : settings_(settings),
      queue_(queue),
      covers_(covers),
      tags_(tags),
      fields_(fields),
      form1_(form),
      screen_(form.queue) {}

void QueueView::Reset() {
  selection_ = -1;
  top_ = 0;
}

void QueueView::HideRowCommands() {
  for (const QueueCommand command :
       {QueueCommand::kMoveUp, QueueCommand::kMoveDown, QueueCommand::kRemove,
        QueueCommand::kPlayNow, QueueCommand::kShuffle}) {
    screen_.commands[static_cast<size_t>(command)].SetVisible(false);
  }
}

void QueueView::Update_queue2() {
  screen_.commands[static_cast<size_t>(QueueCommand::kClear)].SetVisible(true);
  screen_.commands[static_cast<size_t>(QueueCommand::kBurnCd)].SetVisible(settings_.burn_cd);
  if (settings_.read_only_queue) {
    for (lvButtons_H& command : screen_.commands) command.SetVisible(false);
  } else if (selection_ == -1) {
    HideRowCommands();
  }
  // A short list may be scrolled into empty rows; only a longer one is pulled back.
  if (queue_.count() > 4 && top_ + kQueueRows > queue_.count()) {
    top_ = queue_.count() - kQueueRows;
  }
  for (int row = 1; row < kQueueRows; ++row) {
    Label& number = screen_.rows[static_cast<size_t>(row)].number;
    number.SetCaption(std::to_string(top_ + row + 1));
    number.SetVisible(!queue_.path(top_ + row).empty());
  }
  for (int row = 0; row < kQueueRows; ++row) {
    // By the row alone, also when the list is scrolled; that is meant.
    screen_.rows[static_cast<size_t>(row)].touch.SetHighlighted(selection_ == row);
    FillRow(row);
  }
  show_next();
  screen_.remaining.SetCaption(NumberCaption(queue_.count()) + " Song(s) Remaining In Queue");
}

void QueueView::FillRow(int row) {
  // The first row is the next song and never scrolls.
  const int entry = row == 0 ? 0 : top_ + row;
  const std::string& path = queue_.path(entry);
  if (path.empty()) return EmptyRow(row);
  QueueRow& labels = screen_.rows[static_cast<size_t>(row)];
  labels.cover.SetPicture(covers_.OrNotFound(queue_.cover(entry)));
  tags_.ReadOrNone(TagCaller::kUpdateQueue, path);
  labels.artist.SetCaption("Artist : " + fields_.txtArtist);
  labels.track.SetCaption("Track : " + fields_.txtTitle);
  labels.album.SetCaption("Album : " + DoubleAmpersands(fields_.txtAlbum));
  labels.time.SetCaption(" (" + fields_.txtmp3time + ")");
  if (row == 0) {
    form1_.now_playing.next_song_artist.SetCaption(fields_.txtArtist);
    form1_.now_playing.next_song_title.SetCaption(fields_.txtTitle);
  }
}

void QueueView::EmptyRow(int row) {
  QueueRow& labels = screen_.rows[static_cast<size_t>(row)];
  for (Label* label : {&labels.artist, &labels.track, &labels.album, &labels.time}) {
    label->SetCaption("");
  }
  labels.cover.SetPicture("");
}

void QueueView::show_next() {
  if (queue_.empty()) return;
  NowPlayingScreen& screen = form1_.now_playing;
  screen.next_song.SetVisible(true);
  screen.next_song_cover.SetVisible(true);
  screen.next_song_cover.SetPicture(covers_.OrNotFound(queue_.cover(0)));
  tags_.ReadOrNone(TagCaller::kShowNext, queue_.path(0));
  screen.next_song_artist.SetCaption(fields_.txtArtist);
  screen.next_song_title.SetCaption(fields_.txtTitle);
}

void QueueView::CLear_queue() {
  queue_.Clear();
  // Five rows but four numbers: the next song has none.
  for (int row = 0; row < kQueueRows; ++row) {
    screen_.rows[static_cast<size_t>(row)].touch.SetHighlighted(false);
    EmptyRow(row);
  }
  for (int row = 1; row < kQueueRows; ++row) {
    screen_.rows[static_cast<size_t>(row)].number.SetCaption("");
  }
}

void QueueView::remove_queue() { queue_.RemoveAt(selection_); }

void QueueView::PressRow(int row) {
  const int entry = top_ + row;
  if (settings_.read_only_queue || queue_.path(row == 0 ? 0 : entry).empty()) return;
  // In a scrolled list the first row chooses the entry that stands at the top of the window, not
  // the one that it shows; that is meant.
  selection_ = entry;
  const auto show = [&](QueueCommand command, bool visible) {
    screen_.commands[static_cast<size_t>(command)].SetVisible(visible);
  };
  show(QueueCommand::kShuffle, true);
  show(QueueCommand::kRemove, true);
  show(QueueCommand::kMoveUp, true);
  show(QueueCommand::kMoveDown, true);
  show(QueueCommand::kPlayNow, settings_.play_it_now);
  Update_queue2();
}

void QueueView::Scroll(int by) {
  if (top_ + by < 0) return;
  top_ += by;
  Update_queue2();
}

void QueueView::Press(QueueCommand command) {
  switch (command) {
    case QueueCommand::kMoveUp:
      if (selection_ > 0 && selection_ < queue_.count()) {
        queue_.Move(selection_, selection_ - 1);
        --selection_;
      }
      break;
    case QueueCommand::kMoveDown:
      if (selection_ >= 0 && selection_ < queue_.count() - 1) {
        queue_.Move(selection_, selection_ + 1);
        ++selection_;
      }
      break;
    case QueueCommand::kRemove:
    case QueueCommand::kPlayNow:
      HideRowCommands();
      remove_queue();
      selection_ = -1;
      break;
    case QueueCommand::kClear:
      CLear_queue();
      queue_.DeleteSaved();
      Reset();
      break;
    case QueueCommand::kShuffle:
      queue_.shuffle_queue();
      break;
    case QueueCommand::kBurnCd:
      // Nothing is burned from here.
      break;
  }
  Update_queue2();
}

}  // namespace sonotik

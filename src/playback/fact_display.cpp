#include "playback/fact_display.h"

#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kSecondsOfAFact = 13;
constexpr size_t kLastFact = 4;

}  // namespace

void FactDisplay::StartSongFacts() {
  // Tags double their ampersands for captions; the table's texts are plain.
  const std::string artist = SingleAmpersands(fields_.txtArtist);
  active_ = false;
  if (artist.empty() || table_.rows().empty()) return Hide();
  const auto& rows = table_.RowsOf(artist);
  if (rows.empty()) return;
  const std::string title = SingleAmpersands(fields_.txtTitle);
  for (const size_t row : rows) {
    if (!EqualsIgnoringCase(table_.rows()[row].track, title)) continue;
    active_ = true;
    row_ = row;
    index_ = 0;
    shown_seconds_ = spacing_seconds_ = 0;
    const std::string& fact = table_.rows()[row].facts[0];
    return fact.empty() ? Hide() : Show(fact);
  }
  Hide();
}

void FactDisplay::TickSongFacts() {
  if (!active_) return Hide();
  ++spacing_seconds_;
  ++shown_seconds_;
  if (shown_seconds_ >= kSecondsOfAFact && form1_.song_fact.visible()) {
    Hide();
    shown_seconds_ = 0;
    show_track_on_sign();
  }
  if (engine_.MediaDuration() / (kLastFact + 1) >= spacing_seconds_) return;
  if (index_ >= kLastFact) {
    Hide();
    active_ = false;
    show_track_on_sign();
  } else {
    const std::string& fact = table_.rows()[row_].facts[++index_];
    if (!fact.empty()) Show(fact);
  }
  spacing_seconds_ = shown_seconds_ = 0;
}

void FactDisplay::Show(const std::string& fact) {
  form1_.song_fact.SetCaption(DoubleAmpersands(fact));
  form1_.song_fact.SetVisible(true);
  form1_.RaiseFact();
  show_on_second_monitor(&fact);
  show_fact_on_sign(fact);
}

void FactDisplay::Hide() {
  form1_.song_fact.SetVisible(false);
  show_on_second_monitor(nullptr);
}

}  // namespace sonotik

// The facts of the track that plays, one after the other over its length.
#ifndef SONOTIK_PLAYBACK_FACT_DISPLAY_H_
#define SONOTIK_PLAYBACK_FACT_DISPLAY_H_

#include <functional>
#include <string>

#include "catalogue/song_facts.h"
#include "forms/Form1.h"
#include "playback/media_engine.h"
#include "tags/tag_fields.h"

namespace sonotik {

class FactDisplay {
 public:
  FactDisplay(const FactTable& table, const TagFields& fields, MediaEngine& engine, Form1& form)
      : table_(table), fields_(fields), engine_(engine), form1_(form) {}

  // The second monitor's panel: the text to show, or nullptr to hide it. And the sign, which shows
  // a fact or, between two of them, the track again. Nothing until they are there.
  std::function<void(const std::string* text)> show_on_second_monitor = [](const std::string*) {};
  std::function<void(const std::string& fact)> show_fact_on_sign = [](const std::string&) {};
  std::function<void()> show_track_on_sign = [] {};

  // At a track's start, with its tag read. An artist without facts leaves the panels as they are
  // until the next tick; a title without facts hides them.
  void StartSongFacts();
  // Once a second. An empty fact uses its turn, and the facts go on behind the track's end.
  void TickSongFacts();

  bool active() const { return active_; }

 private:
  void Show(const std::string& fact);
  void Hide();

  const FactTable& table_;
  const TagFields& fields_;
  MediaEngine& engine_;
  Form1& form1_;
  bool active_ = false;
  size_t row_ = 0;
  size_t index_ = 0;         // 0 to 4, the fact in view
  int shown_seconds_ = 0;    // since the panel came up
  int spacing_seconds_ = 0;  // since the last fact began
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_FACT_DISPLAY_H_

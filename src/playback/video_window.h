// The window of the second monitor while the jukebox runs: where it stands, when it shows, and what
// it tells the room.
#ifndef SONOTIK_PLAYBACK_VIDEO_WINDOW_H_
#define SONOTIK_PLAYBACK_VIDEO_WINDOW_H_

#include <string>

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "platform/displays.h"
#include "playback/media_engine.h"
#include "tags/tag_fields.h"

namespace sonotik {

// By the file's name alone: all but MP3, WMA and WAV, an M4A too; that is meant.
bool HasPicture(const std::string& path);

class VideoWindow {
 public:
  VideoWindow(Displays& displays, const Settings& settings, MediaEngine& engine, Form1& form1,
              Form3& form3);

  // Puts it on the monitor of "Second Monitor ID:", as large as that; on the first one while that
  // monitor isn't there.
  void SetDisplay();
  void Show(bool visible);
  // After one of its settings, or a monitor, has changed: window and picture move at once, and the
  // sound goes on.
  void Move();

  // The ticker: the names of the tag read last, and what becomes of the song.
  void Announce(const TagFields& names, bool play_next);
  bool ticker_visible() const { return form3_.ticker.visible(); }
  void HideTicker() { form3_.ticker.SetVisible(false); }
  // nullptr hides it. Kept up to date also while the second monitor isn't used.
  void ShowFact(const std::string* fact);

 private:
  Displays& displays_;
  const Settings& settings_;
  MediaEngine& engine_;
  Form1& form1_;
  Form3& form3_;
};

}  // namespace sonotik

#endif  // SONOTIK_PLAYBACK_VIDEO_WINDOW_H_

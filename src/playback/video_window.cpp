#include "playback/video_window.h"

#include "files/paths.h"
#include "peripherals/clsScreens.h"
#include "text/text.h"

namespace sonotik {

bool HasPicture(const std::string& path) {
  const std::string kind = KindOf(path);
  return kind != "MP3" && kind != "WMA" && kind != "WAV";
}

VideoWindow::VideoWindow(Displays& displays, const Settings& settings, MediaEngine& engine,
                         Form1& form1, Form3& form3)
    : displays_(displays), settings_(settings), engine_(engine), form1_(form1), form3_(form3) {
  engine_.SetSecondHost(&form3_.video);
}

void VideoWindow::SetDisplay() {
  const clsScreens screens(displays_);
  if (!screens.Enabled()) return;
  const MonitorArea& area = screens.Whole(settings_.second_monitor);
  form3_.Resize(area.width, area.height);
  // In the look of the skin, which has no file for this window.
  form3_.picture.SetPicture(form1_.form.picture());
  for (Label* caption : {&form3_.ticker_caption, &form3_.fact}) {
    Font font = caption->font();
    font.family = form1_.now_playing_title.font().family;
    caption->SetFont(font);
  }
  displays_.PlaceSecondWindow(area);
}

void VideoWindow::Show(bool visible) {
  if (visible) SetDisplay();
  form3_.form.SetVisible(visible);
  displays_.ShowSecondWindow(visible);
  // The picture was placed when its file was opened, by what the window measured then.
  if (visible) engine_.FitVideoWindow();
}

void VideoWindow::Move() {
  // Hidden too, since the next video is placed by what it measures.
  SetDisplay();
  const bool second = settings_.use_second_monitor;
  const std::string& file = engine_.current_file();
  const bool picture = !file.empty() && HasPicture(file);
  Show(second && (picture || !settings_.second_monitor_videos_only));
  if (picture) {
    form1_.now_playing.video.SetVisible(!second);
    form1_.now_playing.full_screen.SetVisible(!second);
  }
  engine_.FitVideoWindow();
}

void VideoWindow::Announce(const TagFields& names, bool play_next) {
  form3_.ticker_caption.SetCaption(names.txtArtist + " - " + names.txtTitle +
                                   (play_next ? " Added, will Play NEXT!" : " Added to Queue..."));
  form3_.ticker.SetVisible(true);
}

void VideoWindow::ShowFact(const std::string* fact) {
  if (fact != nullptr) form3_.fact.SetCaption(DoubleAmpersands(*fact));
  form3_.facts.SetVisible(fact != nullptr);
}

}  // namespace sonotik

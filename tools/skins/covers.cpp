// The pages of covers, the picture of a missing one, and the preview of a skin.
#include <QFont>
#include <fstream>
#include <stdexcept>

#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

void WriteBox(std::ofstream& out, const Rect& box) {
  for (const float value : {box.top, box.left, box.height, box.width}) {
    out << static_cast<int>(value) << "\r\n";
  }
}

QFont FontOf(const Design& d, double pixels, bool bold) {
  QFont font(d.face);
  font.setPixelSize(static_cast<int>(pixels));
  font.setBold(bold);
  return font;
}

// A record on its sleeve: what shows where a folder has no picture.
QImage MissingCover(const Sheet& sheet) {
  constexpr int kSide = 600;
  const Design& d = sheet.design();
  QImage image(kSide, kSide, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(image.rect(), d.panel);
  const QPointF middle(kSide / 2.0, kSide / 2.0);
  p.setPen(Qt::NoPen);
  p.setBrush(d.dark);
  p.drawEllipse(middle, 214, 214);
  p.setBrush(Qt::NoBrush);
  QColor groove = d.InkOf(Ink::kStageMuted);
  groove.setAlpha(36);
  p.setPen(QPen(groove, 2));
  for (int radius = 100; radius < 210; radius += 18) p.drawEllipse(middle, radius, radius);
  p.setPen(Qt::NoPen);
  p.setBrush(d.InkOf(Ink::kStageAccent));
  p.drawEllipse(middle, 72, 72);
  PaintIcon(p, Icon::kGenres, QRectF(middle.x() - 36, middle.y() - 38, 72, 72), d.dark);
  return image;
}

// Sleeves as a shop might have them.
QImage SampleCover(int index, int side) {
  QImage image(side, side, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  const int hue = index * 53 % 360;
  QLinearGradient back(0, 0, side, side);
  back.setColorAt(0, QColor::fromHsv(hue, 170, 225));
  back.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 210, 96));
  p.fillRect(image.rect(), back);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor::fromHsv((hue + 180) % 360, 120, 250, 210));
  const double s = side;
  switch (index % 4) {
    case 0:
      p.drawEllipse(QPointF(s * 0.5, s * 0.46), s * 0.27, s * 0.27);
      break;
    case 1:
      for (int i = 0; i < 5; ++i) p.drawRect(QRectF(0, s * (0.18 + 0.14 * i), s, s * 0.06));
      break;
    case 2:
      p.drawPolygon(QPolygonF({{s * 0.5, s * 0.16}, {s * 0.84, s * 0.78}, {s * 0.16, s * 0.78}}));
      break;
    default:
      p.drawPie(QRectF(s * 0.12, s * 0.3, s * 0.76, s * 0.76), 0, 180 * 16);
  }
  return image;
}

}  // namespace

std::vector<CoverPlace> PlacesOf(const Design& d, const CoverPage& page) {
  const Rect area = CoverArea(d);
  const float words = page.album_height + page.artist_height + d.gap;
  const float room = area.width / static_cast<float>(page.columns);
  const float row = area.height / static_cast<float>(page.rows);
  const float between = d.width > 1400 ? 24 : 14;
  const float reflected = page.reflections ? std::round(row * 0.14F) : 0;
  const float side = std::floor(std::min(room - between, row - words - reflected - d.gap * 2));
  const float edge = std::max(3.0F, std::round(side / 60));
  std::vector<CoverPlace> places;
  for (int i = 0; i < page.columns * page.rows; ++i) {
    const float middle = area.left + room * (static_cast<float>(i % page.columns) + 0.5F);
    const float top = area.top + row * static_cast<float>(i / page.columns) +
                      (row - side - words - reflected) / 2;
    CoverPlace place;
    place.cover = Whole({middle - side / 2, top, side, side});
    place.frame = place.cover.Inset(-edge);
    place.reflection = {place.cover.left, place.cover.bottom() + edge, side, reflected};
    const float badge = std::max(44.0F, std::round(side / 5));
    place.badge =
        Whole({place.cover.right() - badge + edge, place.cover.top - edge, badge, badge * 0.42F});
    // As wide as the place allows: a name says more than the gap beside it.
    const float width = room - d.gap;
    place.album = Whole(
        {middle - width / 2, place.cover.bottom() + reflected + d.gap, width, page.album_height});
    place.artist = {place.album.left, place.album.bottom(), place.album.width, page.artist_height};
    places.push_back(place);
  }
  return places;
}

void WriteCoverPages(Sheet& sheet) {
  for (const CoverPage& page : sheet.design().pages) {
    const std::string path = sheet.folder().toStdString() + "/" + page.name + ".cov";
    std::ofstream out(path, std::ios::binary);
    out << page.name << "\r\n"
        << page.columns * page.rows << "\r\n"
        << page.reflections << "\r\n"
        << page.frames << "\r\n";
    for (const CoverPlace& place : PlacesOf(sheet.design(), page)) {
      for (const Rect* box : {&place.cover, &place.frame, &place.reflection, &place.badge,
                              &place.album, &place.artist}) {
        WriteBox(out, *box);
      }
    }
    if (!out.flush()) throw std::runtime_error("cannot write " + path);
  }
  sheet.SaveJpeg(MissingCover(sheet), "ImageNotFound.jpg");
}

void PaintPreview(Sheet& sheet) {
  const Design& d = sheet.design();
  QImage image = sheet.stage();
  QPainter p(&image);
  p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  const QImage menu(sheet.PathOf("menu.bmp")), player(sheet.PathOf("player.bmp")),
      slider(sheet.PathOf("slider_back.bmp"));
  p.drawImage(0, 0, menu);
  p.drawImage(0, static_cast<int>(d.height - d.player_height), player);
  for (const PlacedButton& button : sheet.buttons()) {
    const bool in_menu = button.target == "menu.button",
               in_player = button.target == "player.button";
    const bool on_page = button.target == "album.tab" || button.target == "album.letter" ||
                         (button.target == "album.pageButton" && button.index < 3);
    if (!in_menu && !in_player && !on_page) continue;
    const Rect place = button.place.MovedBy(0, in_menu     ? 0
                                               : in_player ? d.height - d.player_height
                                                           : d.menu_height);
    const bool stacked = button.icon != Icon::kNone && !button.caption.empty();
    p.drawImage(ToQt(place).topLeft(),
                PaintButtonPlate(d, static_cast<int>(place.width), static_cast<int>(place.height),
                                 button.look, button.icon, stacked));
    p.setFont(FontOf(d, d.Points(button.type) * kPixelsPerPoint, false));
    p.setPen(d.InkOf(button.look).text);
    QRectF words = ToQt(place);
    if (stacked) words.setTop(words.top() + words.height() * 0.46);
    p.drawText(words, Qt::AlignCenter | Qt::TextWordWrap, QString::fromStdString(button.caption));
  }
  const QImage frame(sheet.PathOf("cover_frame.png"));
  const auto places = PlacesOf(d, d.pages[1]);
  for (size_t i = 0; i < places.size(); ++i) {
    const Rect cover = places[i].cover.MovedBy(0, d.menu_height);
    p.drawImage(ToQt(cover), SampleCover(static_cast<int>(i), static_cast<int>(cover.width)));
    p.drawImage(ToQt(places[i].frame.MovedBy(0, d.menu_height)), frame);
    const auto bar = [&](const Rect& label, Ink ink, float share) {
      const Rect r = label.MovedBy(0, d.menu_height);
      QColor color = d.InkOf(ink);
      color.setAlpha(150);
      p.setPen(Qt::NoPen);
      p.setBrush(color);
      p.drawRoundedRect(QRectF(r.left + r.width * (1 - share) / 2, r.top + r.height * 0.35,
                               r.width * share, r.height * 0.3),
                        3, 3);
    };
    bar(places[i].album, Ink::kStage, 0.6F);
    bar(places[i].artist, Ink::kStageMuted, 0.42F);
  }
  p.end();
  const QImage small = image.scaled(800, 600, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  if (!small.save(sheet.folder() + "/preview.jpg", "JPEG", 90)) {
    throw std::runtime_error("cannot write the preview");
  }
}

}  // namespace sonotik::skins

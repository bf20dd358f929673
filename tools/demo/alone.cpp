#include "tools/demo/alone.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <vector>

#include "tools/demo/brush.h"
#include "tools/demo/media.h"
#include "tools/demo/music.h"
#include "tools/demo/shelves.h"

namespace sonotik::demo {
namespace {

constexpr int kWidth = 1280, kHeight = 720;
constexpr int kFacts = 5;
// Every so many albums have a picture.
constexpr size_t kPictureEvery = 4;

struct Facts {
  const char* artist;
  const char* title;
  std::vector<const char*> facts;
};

// One of them has a fact without words: then nothing shows for its time.
const std::vector<Facts>& SongFacts() {
  static const std::vector<Facts> kSongs = {
      {"Anselm Quill Trio",
       "Last Tram to Lantern Hill",
       {"The tram in this song ran until 1958.", "Recorded in one night, with the window open.",
        "The bell in the last bar is the studio's own.", "",
        "Anselm Quill never learned to drive."}},
      {"Anselm Quill Trio",
       "The Porter's Umbrella",
       {"The umbrella was found. The porter was not.", "The shortest piece of the evening."}},
      {"Beppo Lantana",
       "Café Marimba",
       {"The marimba was built from a kitchen table.", "Beppo still eats at what is left of it."}},
      {"Electra Pixelheart",
       "Press Start",
       {"Made with four voices and no more.", "The pause in the middle is a real one.",
        "Electra's highest score was 65,535."}},
      {"Delta Mulgrew",
       "Rent Due Tuesday",
       {"Written on a Monday.", "The landlord plays the second piano."}},
      {"Jonas Thunderpipe",
       "Thunder & Toast",
       {"The thunder is real, the toast was eaten.", "A crowd of forty claps in the last verse."}},
      {"Kaleida Prism",
       "Turning Glass",
       {"The glass of this film was turned by hand, one degree a frame."}},
  };
  return kSongs;
}

QByteArray Field(const char* text, int width) {
  return QByteArray(text).left(width).leftJustified(width, ' ');
}

QByteArray FactRecords() {
  QByteArray bytes;
  for (const Facts& song : SongFacts()) {
    bytes += Field(song.artist, 60) + Field(song.title, 60);
    for (size_t i = 0; i < kFacts; ++i) {
      bytes += Field(i < song.facts.size() ? song.facts[i] : "", 255);
    }
  }
  return bytes;
}

QByteArray Jpeg(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "JPEG", 85)) throw DemoFailure("Qt cannot write JPEG pictures here");
  return buffer.data();
}

// Words beside a square picture, before rays in two colours.
QByteArray Poster(const QColor& ground, const QColor& rays, const QImage& picture,
                  const QString& large, const QString& small) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setOpacity(0.25);
  painter.scale(2, 2);
  Rays(painter, rays, {165, 180}, 24);
  painter.resetTransform();
  painter.setOpacity(1);
  painter.fillRect(QRect(70, 100, 520, 520), Qt::white);
  painter.drawImage(QRect(80, 110, 500, 500), picture);
  const QColor ink = ground.lightness() > 128 ? QColor(0x14141e) : QColor(0xf8f6ee);
  DrawFitted(painter, large, Face::kSans, true, {640, 170, 580, 200}, Qt::AlignLeft, ink);
  DrawFitted(painter, small, Face::kSans, false, {640, 400, 580, 50}, Qt::AlignLeft, ink);
  DrawFitted(painter, "Touch to choose your song", Face::kSans, true, {640, 560, 580, 44},
             Qt::AlignLeft, ink);
  painter.end();
  return Jpeg(image);
}

void MakeFolder(const QString& path) {
  if (!QDir().mkpath(path)) throw DemoFailure("cannot make the folder " + path);
}

void MakeAttractPictures(const QString& folder) {
  if (QDir(folder).exists()) return;
  MakeFolder(folder);
  const std::vector<Album>& albums = Albums();
  for (size_t i = 0; i < albums.size(); i += kPictureEvery) {
    const Album& album = albums[i];
    const Palette& colours = album.cover.colours;
    WriteFile(folder + "/" + album.title + ".jpg",
              Poster(colours[0], colours[2], PaintCover(album.cover, album.artist, album.title, i),
                     album.title, album.artist));
  }
}

void MakeJingles(const QString& folder) {
  if (QDir(folder).exists()) return;
  MakeFolder(folder);
  const struct {
    const char* title;
    const Style& style;
  } jingles[] = {{"Press Play", kChipSunny}, {"House Fanfare", kMarch}};
  uint64_t seed = 11;
  for (const auto& jingle : jingles) {
    const Recording sound = Play(jingle.style, Compose(jingle.style, {++seed, 1, 0}), seed);
    const SongTags tags{jingle.title, "The House", "Jingles", "Other", "The House", 2024, 1};
    EncodeMp3(sound, tags, {}, {}, folder + "/" + jingle.title + ".mp3");
  }
}

// The year's last evening wears the bright skin.
void MakeHoliday(const QString& root, const QDate& day) {
  const QString folder = root + "/attract-new-year", days = root + "/CALENDER";
  const QString file = days + "/" + day.toString("MM-dd-yyyy") + ".DAT";
  if (QFile::exists(file)) return;
  MakeFolder(folder);
  MakeFolder(days);
  QImage sky(500, 500, QImage::Format_RGB32);
  sky.fill(QColor(0x101a3c));
  QPainter painter(&sky);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  Rays(painter, QColor(0xffc857), {250, 230}, 18);
  Disc(painter, QColor(0x101a3c), 250, 230, 160);
  Disc(painter, QColor(0xff6f61), 250, 230, 60);
  painter.end();
  WriteFile(folder + "/New Year.jpg", Poster(QColor(0x0b1026), QColor(0xff6f61), sky,
                                             "A happy new year", "The last songs of this one"));
  const QString pictures = QString(folder).replace('/', '\\');
  WriteFile(file, ("Attract Mode Path\r\n" + pictures +
                   "\r\nHoliday Skin\r\nNeon\r\nLED Sign Path\r\n\r\nJingles Path\r\n\r\n"
                   "Database Path\r\n\r\n")
                      .toUtf8());
}

}  // namespace

void MakeAlone(const QString& root, const QDate& today) {
  if (!QFile::exists(root + "/songfacts.dat")) WriteFile(root + "/songfacts.dat", FactRecords());
  MakeAttractPictures(root + "/attract");
  MakeJingles(root + "/jingles");
  MakeHoliday(root, QDate(today.year(), 12, 31));
}

}  // namespace sonotik::demo

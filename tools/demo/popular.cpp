#include "tools/demo/popular.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <vector>

#include "tools/demo/brush.h"
#include "tools/demo/media.h"
#include "tools/demo/random.h"
#include "tools/demo/shelves.h"

namespace sonotik::demo {
namespace {

constexpr char kPicture[] = "record.gif";
constexpr int kPictureSize = 256;
constexpr int kPlays = 32;
constexpr int kChartSongs = 10;

struct Song {
  QString path;  // as the jukebox writes it, with "\"
  QString artist, title, album;
};

std::vector<Song> Songs(const QString& root) {
  std::vector<Song> songs;
  for (const Album& album : Albums()) {
    // The charts are looked for among the audio tracks alone.
    if (ShelfOf(album.format) != "music") continue;
    for (size_t i = 0; i < album.tracks.size(); ++i) {
      QString path = root + "/" + FolderOf(album) + "/" + FileOf(album, i);
      songs.push_back(
          {path.replace('/', '\\'), ArtistOf(album, i), album.tracks[i].title, album.title});
    }
  }
  return songs;
}

QByteArray Field(const QString& text, int width) {
  return text.toUtf8().left(width).leftJustified(width, ' ');
}

// As the jukebox takes names from tags, for a caption.
QString ForCaption(QString name) { return name.replace('&', "&&"); }

QByteArray History(const QString& root, const QDate& today) {
  const std::vector<Song> songs = Songs(root);
  Random random(7);
  QByteArray bytes;
  for (int i = 0; i < kPlays; ++i) {
    // Some are asked for again and again.
    const auto most = static_cast<int>(songs.size());
    const Song& song = songs[static_cast<size_t>(random.Below(random.Below(3) == 0 ? most : 6))];
    const int evening = i * 4 / kPlays;
    const QTime time = QTime(20, 5).addSecs(i % (kPlays / 4) * 197);
    bytes += Field(ForCaption(song.artist), 255) + Field(ForCaption(song.title), 255) +
             Field(ForCaption(song.album), 255) + Field(song.path, 255) +
             Field(today.addDays(evening - 4).toString("MM/dd/yyyy"), 25) +
             Field(time.toString("HH:mm:ss"), 25);
  }
  return bytes;
}

// The songs of a month: a walk over the shelves that begins elsewhere each time. One of them nobody
// has.
QByteArray Chart(const QString& root, int month, bool resolved) {
  const std::vector<Song> songs = Songs(root);
  QByteArray text;
  for (int i = 0; i < kChartSongs; ++i) {
    Song song = songs[static_cast<size_t>(month * 5 + i * 7) % songs.size()];
    if (i == 6) song = {"", "The Unpressed Records", "Never on Any Shelf", ""};
    text += QString("\"%1\",\"%2\",\"%3\"").arg(song.artist, song.title, kPicture).toUtf8();
    if (resolved) text += ",\"" + song.path.toUtf8() + "\"";
    text += "\r\n";
  }
  return text;
}

// A record that turns: a third of a turn, which is all that its label needs to go on for ever.
void MakePicture(const QString& path) {
  constexpr int kFrames = 18;
  const QString part = path + ".part";
  Encoder encoder({"-f", "rawvideo", "-pix_fmt", "bgra", "-s", QString("%1x%1").arg(kPictureSize),
                   "-r", "15", "-i", "pipe:0", "-vf",
                   "split[a][b];[a]palettegen=max_colors=64[p];[b][p]paletteuse=dither=none",
                   "-loop", "0", "-f", "gif"},
                  part);
  const QPointF middle(kPictureSize / 2.0, kPictureSize / 2.0);
  for (int i = 0; i < kFrames; ++i) {
    // What lies around it is the skin's.
    QImage frame(kPictureSize, kPictureSize, QImage::Format_ARGB32);
    frame.fill(Qt::transparent);
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Disc(painter, QColor(0x05060c), middle.x(), middle.y(), 120);
    painter.setPen(QPen(QColor(0x262b44), 2));
    painter.setBrush(Qt::NoBrush);
    for (const int radius : {108, 96, 84, 72, 60}) painter.drawEllipse(middle, radius, radius);
    painter.setPen(Qt::NoPen);
    Disc(painter, QColor(0xffb84d), middle.x(), middle.y(), 46);
    painter.setBrush(QColor(0xff6f61));
    for (int ray = 0; ray < 3; ++ray) {
      const double turn = ray * 120 + i * 120.0 / kFrames;
      painter.drawPie(QRectF(middle - QPointF(46, 46), QSizeF(92, 92)),
                      static_cast<int>(-turn * 16), 60 * 16);
    }
    Disc(painter, QColor(0x101220), middle.x(), middle.y(), 6);
    painter.end();
    encoder.Write(reinterpret_cast<const char*>(frame.constBits()), frame.sizeInBytes());
  }
  encoder.Finish();
  if (!QFile::rename(part, path)) throw DemoFailure("cannot put the picture in its place: " + path);
}

void WriteIfMissing(const QString& path, const QByteArray& bytes) {
  if (!QFile::exists(path)) WriteFile(path, bytes);
}

}  // namespace

void MakePopular(const QString& root, const QDate& today) {
  WriteIfMissing(root + "/User_history.dat", History(root, today));
  const QString charts = root + "/history", images = charts + "/images";
  if (!QDir().mkpath(images)) throw DemoFailure("cannot make the folder " + images);
  if (!QFile::exists(images + "/" + kPicture)) MakePicture(images + "/" + kPicture);
  const QDate before = today.addMonths(-1);
  for (const QDate& month : {today, before}) {
    const bool resolved = month == before;
    const QString folder = charts + "/" + month.toString("yyyy");
    if (!QDir().mkpath(folder)) throw DemoFailure("cannot make the folder " + folder);
    WriteIfMissing(folder + "/" + month.toString("MM") + (resolved ? ".pre" : ".txt"),
                   Chart(root, month.month(), resolved));
  }
}

}  // namespace sonotik::demo

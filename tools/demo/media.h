// Encodes sound and pictures with the ffmpeg command, and writes the tags as the jukebox reads
// them.
#ifndef SONOTIK_TOOLS_DEMO_MEDIA_H_
#define SONOTIK_TOOLS_DEMO_MEDIA_H_

#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <stdexcept>

#include "tools/demo/albums.h"
#include "tools/demo/mixer.h"

namespace sonotik::demo {

// What went wrong, in words for the person who ran the program.
class DemoFailure : public std::runtime_error {
 public:
  explicit DemoFailure(const QString& what) : std::runtime_error(what.toStdString()) {}
};

// A running ffmpeg that takes its input by a pipe. No shell takes part. The same input gives the
// same file: ffmpeg writes neither its version nor the time into it.
class Encoder {
 public:
  // `arguments` stand between the general options and the output file.
  Encoder(const QStringList& arguments, const QString& output);
  void Write(const char* bytes, qint64 count);
  // Waits for the end. Throws DemoFailure with ffmpeg's last words if it failed.
  void Finish();

 private:
  [[noreturn]] void Fail(const QString& doing);

  QProcess process_;
  QString output_;
};

// The input options for a Recording that comes by the pipe.
QStringList RecordingInput();

struct SongTags {
  QString title, artist, album, genre, composer;
  int year, track;
};

void EncodeMp3(const Recording& recording, const SongTags& tags, const Mp3Kind& kind,
               const QByteArray& cover, const QString& output);
void EncodeWma(const Recording& recording, const SongTags& tags, const QString& output);
void EncodeM4a(const Recording& recording, const SongTags& tags, const QString& output);
void EncodeWav(const Recording& recording, const SongTags& tags, const QString& output);

// Reads or writes a whole file; throws DemoFailure.
QByteArray ReadFile(const QString& path);
void WriteFile(const QString& path, const QByteArray& bytes);

// Puts `count` bytes of padding in front of the "moov" box of an MP4 file whose "moov" stands
// before its "mdat", and moves the chunk offsets along (ISO 14496-12). Throws DemoFailure for a
// file without "moov".
QByteArray PadBeforeMoov(const QByteArray& file, int count);

}  // namespace sonotik::demo

#endif  // SONOTIK_TOOLS_DEMO_MEDIA_H_

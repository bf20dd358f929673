#include "tools/demo/media.h"

#include <taglib/attachedpictureframe.h>
#include <taglib/commentsframe.h>
#include <taglib/id3v2tag.h>
#include <taglib/mpegfile.h>
#include <taglib/textidentificationframe.h>

#include <QFile>
#include <QtEndian>
#include <algorithm>

namespace sonotik::demo {
namespace {

constexpr char kComment[] = "Played by the machine that made it";

void Encode(const Recording& recording, const QStringList& options, const QString& output) {
  Encoder encoder(RecordingInput() + options, output);
  encoder.Write(reinterpret_cast<const char*>(recording.data()),
                static_cast<qint64>(recording.size() * sizeof(recording[0])));
  encoder.Finish();
}

QStringList Metadata(const std::initializer_list<std::pair<const char*, QString>>& entries) {
  QStringList options;
  for (const auto& [key, value] : entries) options << "-metadata" << QString(key) + "=" + value;
  return options;
}

TagLib::String ForTag(const QString& text) {
  return {text.toUtf8().toStdString(), TagLib::String::UTF8};
}

void WriteId3(const SongTags& tags, const Mp3Kind& kind, const QByteArray& cover,
              const QString& path) {
  const auto encoding = kind.utf16 ? TagLib::String::UTF16 : TagLib::String::Latin1;
  TagLib::MPEG::File file(path.toUtf8().constData(), false);
  TagLib::ID3v2::Tag* tag = file.ID3v2Tag(true);
  const std::pair<const char*, QString> texts[] = {{"TIT2", tags.title},
                                                   {"TPE1", tags.artist},
                                                   {"TALB", tags.album},
                                                   {"TDRC", QString::number(tags.year)},
                                                   {"TRCK", QString::number(tags.track)},
                                                   {"TCON", tags.genre},
                                                   {"TCOM", tags.composer}};
  for (const auto& [id, text] : texts) {
    auto* frame = new TagLib::ID3v2::TextIdentificationFrame(id, encoding);
    frame->setText(ForTag(text));
    tag->addFrame(frame);
  }
  // Always Latin-1: the jukebox reckons without the byte order mark that UTF-16 puts before the
  // comment's description.
  auto* comment = new TagLib::ID3v2::CommentsFrame(TagLib::String::Latin1);
  comment->setLanguage("eng");
  comment->setText(kComment);
  tag->addFrame(comment);
  if (kind.picture) {
    auto* picture = new TagLib::ID3v2::AttachedPictureFrame;
    picture->setMimeType("image/jpeg");
    picture->setType(TagLib::ID3v2::AttachedPictureFrame::FrontCover);
    picture->setPicture(TagLib::ByteVector(cover.constData(), static_cast<unsigned>(cover.size())));
    tag->addFrame(picture);
  }
  if (!file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripOthers, TagLib::ID3v2::v3)) {
    throw DemoFailure("cannot write the tag of " + path);
  }
}

}  // namespace

Encoder::Encoder(const QStringList& arguments, const QString& output) : output_(output) {
  process_.setProcessChannelMode(QProcess::MergedChannels);
  process_.start(
      "ffmpeg",
      QStringList{"-hide_banner", "-loglevel", "error", "-nostats", "-y"} + arguments +
          QStringList{"-fflags", "+bitexact", "-flags", "+bitexact", "-threads", "1", output});
  if (!process_.waitForStarted()) throw DemoFailure("ffmpeg cannot be started; is it installed?");
}

void Encoder::Write(const char* bytes, qint64 count) {
  process_.write(bytes, count);
  while (process_.bytesToWrite() > 0) {
    if (!process_.waitForBytesWritten(-1)) Fail("stopped reading while making");
  }
}

void Encoder::Finish() {
  process_.closeWriteChannel();
  process_.waitForFinished(-1);
  if (process_.exitStatus() != QProcess::NormalExit || process_.exitCode() != 0) {
    Fail("failed while making");
  }
}

void Encoder::Fail(const QString& doing) {
  process_.waitForFinished(5000);
  throw DemoFailure("ffmpeg " + doing + " " + output_ + ":\n" +
                    QString::fromUtf8(process_.readAll()).trimmed());
}

QStringList RecordingInput() {
  return {"-f", "s16le", "-ar", QString::number(kSampleRate), "-ac", "2", "-i", "pipe:0"};
}

void EncodeMp3(const Recording& recording, const SongTags& tags, const Mp3Kind& kind,
               const QByteArray& cover, const QString& output) {
  QStringList options{"-c:a", "libmp3lame", "-id3v2_version", "0"};
  if (kind.variable) {
    options << "-q:a"
            << "6";
  } else {
    options << "-b:a" << QString::number(kind.kbits) + "k";
  }
  if (!kind.info_frame) {
    options << "-write_xing"
            << "0";
  }
  Encode(recording, options + QStringList{"-f", "mp3"}, output);
  WriteId3(tags, kind, cover, output);
}

void EncodeWma(const Recording& recording, const SongTags& tags, const QString& output) {
  // The jukebox finds the bit rate in the words that name it, and takes title and artist only from
  // a content description that holds nothing but the two.
  Encode(recording,
         QStringList{"-c:a", "wmav2", "-b:a", "128k"} +
             Metadata({{"title", tags.title},
                       {"artist", tags.artist},
                       {"WM/AlbumTitle", tags.album},
                       {"WM/Year", QString::number(tags.year)},
                       {"WM/Genre", tags.genre},
                       {"WM/Composer", tags.composer},
                       {"WM/TrackNumber", QString::number(tags.track)},
                       {"WM/EncodingSettings", "128 kbps, 44 kHz, stereo"}}) +
             QStringList{"-f", "asf"},
         output);
}

void EncodeM4a(const Recording& recording, const SongTags& tags, const QString& output) {
  Encode(recording,
         QStringList{"-c:a", "aac", "-b:a", "96k", "-movflags", "+faststart"} +
             Metadata({{"title", tags.title},
                       {"artist", tags.artist},
                       {"album", tags.album},
                       {"date", QString::number(tags.year)},
                       {"genre", tags.genre},
                       {"composer", tags.composer},
                       {"track", QString::number(tags.track)}}) +
             QStringList{"-f", "ipod"},
         output);
  // The jukebox looks for the names of the atoms from the 30,000th byte to the 65,536th only.
  WriteFile(output, PadBeforeMoov(ReadFile(output), 30000));
}

void EncodeWav(const Recording& recording, const SongTags& tags, const QString& output) {
  Encode(recording,
         QStringList{"-c:a", "pcm_s16le", "-ar", "22050", "-ac", "1"} +
             Metadata({{"title", tags.title},
                       {"artist", tags.artist},
                       {"album", tags.album},
                       {"date", QString::number(tags.year)},
                       {"genre", tags.genre}}) +
             QStringList{"-f", "wav"},
         output);
}

QByteArray ReadFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw DemoFailure("cannot read " + path);
  return file.readAll();
}

void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
    throw DemoFailure("cannot write " + path + ": " + file.errorString());
  }
}

QByteArray PadBeforeMoov(const QByteArray& file, int count) {
  const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(file.constData() + at); };
  qsizetype moov = 0;
  while (moov + 8 <= file.size() && file.mid(moov + 4, 4) != "moov") {
    moov += std::max<qsizetype>(8, number(moov));
  }
  if (moov + 8 > file.size()) throw DemoFailure("an MP4 file without a moov box");
  QByteArray padded = file;
  // The chunk offsets lie in "stco" boxes: 4 bytes of flags, the count, then 32 bits each.
  const qsizetype end = moov + number(moov);
  for (qsizetype at = file.indexOf("stco", moov); at > 0 && at < end;
       at = file.indexOf("stco", at + 4)) {
    const quint32 chunks = number(at + 8);
    for (quint32 i = 0; i < chunks; ++i) {
      const qsizetype place = at + 12 + 4 * qsizetype{i};
      qToBigEndian<quint32>(number(place) + count, padded.data() + place);
    }
  }
  QByteArray padding(count, '\0');
  qToBigEndian<quint32>(count, padding.data());
  padding.replace(4, 4, "free");
  return padded.insert(moov, padding);
}

}  // namespace sonotik::demo

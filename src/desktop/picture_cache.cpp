#include "desktop/picture_cache.h"

#include <QImageReader>
#include <QLinearGradient>
#include <QPainter>
#include <filesystem>
#include <system_error>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"

namespace sonotik {
namespace {

// What is decoded is at most this large, whatever a file's head claims.
constexpr int kMostMegabytes = 256;

QImage Cropped(const QImage& image, QSize size) {
  const QPoint corner((image.width() - size.width()) / 2, (image.height() - size.height()) / 2);
  return image.copy(QRect(corner, size));
}

// Upside down, fading out downwards.
QImage Reflected(const QImage& image) {
  QImage mirrored = image.mirrored().convertToFormat(QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&mirrored);
  QLinearGradient fade(0, 0, 0, mirrored.height());
  fade.setColorAt(0, QColor(0, 0, 0, 110));
  fade.setColorAt(1, QColor(0, 0, 0, 0));
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  painter.fillRect(mirrored.rect(), fade);
  return mirrored;
}

void SetUp(QImageReader& reader) {
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  QImageReader::setAllocationLimit(kMostMegabytes);
}

QSize ShownSize(const QImageReader& reader) {
  const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
  return turned ? reader.size().transposed() : reader.size();
}

QString NativeFile(const std::string& path) {
  return QString::fromStdString(NativePath(path).string());
}

QImage DecodeFile(const QString& file, QSize size, PictureFit fit) {
  QImageReader reader(file);
  SetUp(reader);
  const QSize native = reader.size();
  const Qt::AspectRatioMode mode = fit == PictureFit::kStretch   ? Qt::IgnoreAspectRatio
                                   : fit == PictureFit::kContain ? Qt::KeepAspectRatio
                                                                 : Qt::KeepAspectRatioByExpanding;
  // A reflection shows the lower edge of a picture as wide as its place.
  const QSize wanted = fit == PictureFit::kReflection ? QSize(size.width(), size.width()) : size;
  const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
  if (!native.isEmpty()) {
    const QSize shown = turned ? native.transposed() : native;
    QSize scaled = shown.scaled(wanted, mode).expandedTo(QSize(1, 1));
    // Never larger than it is: the painter enlarges more cheaply than the decoder.
    if (scaled.width() <= shown.width() && scaled.height() <= shown.height()) {
      reader.setScaledSize(turned ? scaled.transposed() : scaled);
    }
  }
  QImage image = reader.read();
  if (image.isNull()) return image;
  const QSize target = image.size().scaled(wanted, mode).expandedTo(QSize(1, 1));
  if (image.size() != target) {
    image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  if (fit == PictureFit::kCover) image = Cropped(image, size);
  if (fit == PictureFit::kReflection) {
    image = Reflected(Cropped(image, wanted)).copy(QRect(QPoint(0, 0), size));
  }
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

}  // namespace

const QImage& PictureCache::Get(const std::string& path, QSize size, PictureFit fit) {
  const std::filesystem::path native = NativePath(path);
  std::error_code error;
  const auto file_size = static_cast<int64_t>(std::filesystem::file_size(native, error));
  const int64_t changed =
      std::filesystem::last_write_time(native, error).time_since_epoch().count();
  const Key key(path, size.width(), size.height(), fit);
  auto entry = entries_.find(key);
  if (entry != entries_.end() &&
      (entry->second.file_size != file_size || entry->second.changed != changed)) {
    Forget(entry);
    entry = entries_.end();
  }
  if (entry == entries_.end()) {
    ++decodes_;
    Entry made;
    made.image = DecodeFile(QString::fromStdString(native.string()), size, fit);
    made.file_size = file_size;
    made.changed = changed;
    bytes_ += made.image.sizeInBytes();
    entry = entries_.emplace(key, std::move(made)).first;
    entry->second.use = uses_.insert(uses_.end(), key);
    while (bytes_ > most_bytes_ && uses_.size() > 1) Forget(entries_.find(uses_.front()));
  } else {
    uses_.splice(uses_.end(), uses_, entry->second.use);
  }
  return entry->second.image;
}

std::optional<Rect> PictureCache::SizeOf(const std::string& path) {
  QImageReader reader(NativeFile(path));
  SetUp(reader);
  const QSize size = ShownSize(reader);
  if (size.isEmpty()) return std::nullopt;
  return Rect{0, 0, static_cast<float>(size.width()), static_cast<float>(size.height())};
}

std::optional<PixelSurface> PictureCache::Pixels(const std::string& path, int most_side) {
  const QString file = NativeFile(path);
  QImageReader reader(file);
  SetUp(reader);
  const QSize native = ShownSize(reader);
  const QSize size = std::max(native.width(), native.height()) > most_side
                         ? native.scaled(most_side, most_side, Qt::KeepAspectRatio)
                         : native;
  if (size.isEmpty()) return std::nullopt;
  const QImage image = DecodeFile(file, size, PictureFit::kStretch)
                           .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return std::nullopt;
  PixelSurface pixels{
      image.width(), image.height(), static_cast<int>(image.bytesPerLine()), {}, true};
  pixels.bytes.assign(image.constBits(), image.constBits() + image.sizeInBytes());
  return pixels;
}

std::optional<std::string> PictureCache::Bytes(const std::string& path) {
  try {
    return ReadWholeFile(path);
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

void PictureCache::Forget(const std::map<Key, Entry>::iterator& entry) {
  bytes_ -= entry->second.image.sizeInBytes();
  uses_.erase(entry->second.use);
  entries_.erase(entry);
}

}  // namespace sonotik

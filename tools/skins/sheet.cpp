#include "tools/skins/sheet.h"

#include <QDir>
#include <QFont>
#include <QFontMetricsF>
#include <cstdio>
#include <stdexcept>

namespace sonotik::skins {
namespace {

using F = FieldKind;

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr float kNarrow = 40;
constexpr int kCutFromPicture = 7;  // the shape of a button

int Number(const QColor& color) { return color.red() | color.green() << 8 | color.blue() << 16; }

std::string Points(float points) { return std::to_string(static_cast<int>(points)); }

}  // namespace

Sheet::Sheet(const Design& design, QString folder)
    : design_(design),
      folder_(std::move(folder)),
      stage_(static_cast<int>(design.width), static_cast<int>(design.height),
             QImage::Format_RGB32) {
  if (!QDir().mkpath(folder_ + "/images")) {
    throw std::runtime_error("cannot make " + folder_.toStdString());
  }
  QPainter painter(&stage_);
  painter.setRenderHint(QPainter::Antialiasing);
  brush().Stage(painter, stage_.rect());
}

QString Sheet::PathOf(const std::string& name) const {
  return folder_ + "/images/" + QString::fromStdString(name);
}

void Sheet::SetColor(const std::string& target, int index, F kind, const QColor& color) {
  Set(target, index, kind, Number(color));
}

void Sheet::SetColors(const std::string& target, int index, const QColor& back,
                      const QColor& fore) {
  SetColor(target, index, F::kBackColor, back);
  SetColor(target, index, F::kForeColor, fore);
}

void Sheet::Box(const std::string& target, int index, const Rect& place) {
  values_.Set(target, index, F::kTop, place.top);
  values_.Set(target, index, F::kLeft, place.left);
  values_.Set(target, index, F::kHeight, place.height);
  values_.Set(target, index, F::kWidth, place.width);
}

void Sheet::Text(const std::string& target, int index, const Rect& place, Type type, Ink ink) {
  Box(target, index, place);
  SetColors(target, index, design_.highlight, design_.InkOf(ink));
  Set(target, index, F::kFontName, design_.face);
  Set(target, index, F::kFontSize, Points(design_.Points(type)));
}

Type Sheet::TypeOf(Look look) const {
  return look == Look::kMenu ? Type::kMenu : look == Look::kQuiet ? Type::kKey : Type::kButton;
}

void Sheet::ButtonStyle(const std::string& target, int index, const std::string& caption, Look look,
                        Type type) {
  const char* face =
      look == Look::kPrimary || look == Look::kBack ? design_.face : design_.button_face;
  Set(target, index, F::kCaption, caption);
  Set(target, index, F::kShape, kCutFromPicture);
  Set(target, index, F::kMode, 0);
  Set(target, index, F::kFontStyle, 0);
  Set(target, index, F::kFont, std::string(face) + " " + Points(design_.Points(type)));
  SetColors(target, index, design_.panel, design_.InkOf(look).text);
}

void Sheet::Button(const std::string& target, int index, const Rect& place,
                   const std::string& caption, Look look, Icon icon) {
  // Letters in a row of 26 have little room.
  const Type type = look == Look::kQuiet && place.width < kNarrow ? Type::kBody : TypeOf(look);
  // A blank line above, where the icon is.
  const bool stacked = icon != Icon::kNone && !caption.empty();
  ButtonStyle(target, index, (stacked ? "||" : "") + caption, look, type);
  Box(target, index, place);
  Set(target, index, F::kPicture, ButtonPicture(place, look, icon, stacked));
  CheckCaption(place, caption, look, type);
  buttons_.push_back({target, index, place, caption, look, icon, type});
}

// On a skin that is delivered no caption is cut off.
void Sheet::CheckCaption(const Rect& place, const std::string& caption, Look look,
                         Type type) const {
  QFont font(design_.face);
  font.setPixelSize(static_cast<int>(design_.Points(type) * kPixelsPerPoint));
  font.setBold(look == Look::kPrimary || look == Look::kBack);
  const QFontMetricsF metrics(font);
  const double width = place.width - 16, height = place.height - 8;
  const QRectF needed = metrics.boundingRect(QRectF(0, 0, width, 1000), Qt::TextWordWrap,
                                             QString::fromStdString(caption));
  if (place.empty() || (needed.width() <= width && needed.height() <= height)) return;
  std::fprintf(stderr, "%s: \"%s\" needs %.0f x %.0f and has %.0f x %.0f\n", design_.name,
               caption.c_str(), needed.width(), needed.height(), width, height);
}

QImage PaintButtonPlate(const Design& design, int width, int height, Look look, Icon icon,
                        bool with_caption) {
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  design.brushwork->Button(painter, image.rect(), look);
  if (icon == Icon::kNone) return image;
  // The caption is the line below the middle.
  const double side =
      with_caption ? std::min(height * 0.35, 56.0) : std::min(width * 0.5, height * 0.42);
  const double middle = with_caption ? height / 2.0 - 2 - side / 2 : height / 2.0;
  PaintIcon(painter, icon, QRectF((width - side) / 2, middle - side / 2, side, side),
            design.InkOf(look).icon);
  return image;
}

std::string Sheet::ButtonPicture(const Rect& place, Look look, Icon icon, bool with_caption) {
  static constexpr const char* kLookNames[] = {"plain", "primary", "quiet", "danger",
                                               "back",  "tab",     "menu",  "player"};
  const int width = static_cast<int>(place.width), height = static_cast<int>(place.height);
  if (width <= 0 || height <= 0) return "";
  std::string name = kLookNames[static_cast<size_t>(look)];
  if (icon != Icon::kNone) name += "_icon" + std::to_string(static_cast<int>(icon));
  name += "_" + std::to_string(width) + "x" + std::to_string(height) + ".png";
  if (pictures_.emplace(name, true).second) {
    SavePng(PaintButtonPlate(design_, width, height, look, icon, with_caption), name);
  }
  return "images\\" + name;
}

std::string Sheet::SaveJpeg(const QImage& image, const std::string& name, int quality) {
  if (!image.save(PathOf(name), "JPEG", quality)) throw std::runtime_error("cannot write " + name);
  return "images\\" + name;
}

void Sheet::SaveBmp(const QImage& image, const std::string& name) {
  if (!image.convertToFormat(QImage::Format_RGB888).save(PathOf(name), "BMP")) {
    throw std::runtime_error("cannot write " + name);
  }
}

void Sheet::SavePng(const QImage& image, const std::string& name) {
  // Small enough as they are; packing them tighter takes longer than drawing them.
  if (!image.save(PathOf(name), "PNG", 60)) throw std::runtime_error("cannot write " + name);
}

PanelPicture::PanelPicture(Sheet& sheet, const Rect& place)
    : sheet_(sheet),
      place_(place),
      image_(sheet.stage().copy(ToQt(place).toRect())),
      painter_(&image_) {
  painter_.setRenderHint(QPainter::Antialiasing);
}

void PanelPicture::Words(const Rect& r, const char* text, Type type, Ink ink, int align) {
  QFont font(sheet_.design().face);
  font.setPixelSize(static_cast<int>(sheet_.design().Points(type) * kPixelsPerPoint));
  font.setBold(true);
  painter_.setFont(font);
  painter_.setPen(sheet_.design().InkOf(ink));
  painter_.drawText(ToQt(r), align | Qt::AlignVCenter, QString::fromUtf8(text));
}

const QImage& PanelPicture::image() {
  painter_.end();
  return image_;
}

void PanelPicture::Save(const std::string& name, const std::string& target, int index) {
  sheet_.Set(target, index, FieldKind::kPicture, sheet_.SaveJpeg(image(), name + ".jpg"));
}

}  // namespace sonotik::skins

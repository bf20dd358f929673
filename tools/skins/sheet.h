// One skin being made: controls get their places and looks, panels their pictures.
#ifndef SONOTIK_TOOLS_SKINS_SHEET_H_
#define SONOTIK_TOOLS_SKINS_SHEET_H_

#include <QImage>
#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tools/skins/design.h"
#include "tools/skins/values.h"

namespace sonotik::skins {

// A button as it was placed, for the preview.
struct PlacedButton {
  std::string target;
  int index;
  Rect place;
  std::string caption;
  Look look;
  Icon icon;
  Type type;
};

class Sheet {
 public:
  Sheet(const Design& design, QString folder);
  const Design& design() const { return design_; }
  const Brushwork& brush() const { return *design_.brushwork; }
  const std::vector<PlacedButton>& buttons() const { return buttons_; }
  const QImage& stage() const { return stage_; }

  void Set(const std::string& target, int index, FieldKind kind, const std::string& value) {
    values_.Set(target, index, kind, value);
  }
  void Set(const std::string& target, int index, FieldKind kind, int value) {
    values_.Set(target, index, kind, value);
  }
  void SetColor(const std::string& target, int index, FieldKind kind, const QColor& color);
  void SetColors(const std::string& target, int index, const QColor& back, const QColor& fore);

  void Box(const std::string& target, int index, const Rect& place);
  void Text(const std::string& target, int index, const Rect& place, Type type, Ink ink);
  // An icon stands above the caption, or alone where there is none.
  void Button(const std::string& target, int index, const Rect& place, const std::string& caption,
              Look look, Icon icon = Icon::kNone);
  // Its caption is built in and stands in no file.
  void ButtonKeepingCaption(const std::string& target, int index, const Rect& place,
                            const std::string& caption, Look look) {
    Button(target, index, place, caption, look);
    values_.Drop(target, index, FieldKind::kCaption);
  }
  // The look without a place.
  void ButtonStyle(const std::string& target, int index, const std::string& caption, Look look,
                   Type type);
  Type TypeOf(Look look) const;

  // Writes images/NAME and says how the skin names it.
  std::string SaveJpeg(const QImage& image, const std::string& name, int quality = 92);
  void SaveBmp(const QImage& image, const std::string& name);
  void SavePng(const QImage& image, const std::string& name);
  QString PathOf(const std::string& name) const;
  const QString& folder() const { return folder_; }

  // All files of the layout. Throws for a field that was forgotten.
  void WriteFiles() { values_.WriteTo(folder_.toStdString()); }

 private:
  std::string ButtonPicture(const Rect& place, Look look, Icon icon, bool with_caption);
  void CheckCaption(const Rect& place, const std::string& caption, Look look, Type type) const;

  const Design& design_;
  QString folder_;
  QImage stage_;
  SkinValues values_;
  std::vector<PlacedButton> buttons_;
  std::map<std::string, bool> pictures_;
};

// A button's plate and icon, without its caption.
QImage PaintButtonPlate(const Design& design, int width, int height, Look look, Icon icon,
                        bool with_caption);

// The background of a panel: the stage where the panel stands, and what is painted on it.
class PanelPicture {
 public:
  PanelPicture(Sheet& sheet, const Rect& place);
  QPainter& painter() { return painter_; }
  Rect inside() const { return {0, 0, place_.width, place_.height}; }
  // Within the margins.
  Rect content() const { return inside().Inset(sheet_.design().margin); }

  void Plate(const Rect& r) { sheet_.brush().Plate(painter_, ToQt(r)); }
  void Well(const Rect& r) { sheet_.brush().Well(painter_, ToQt(r)); }
  void Entry(const Rect& r) { sheet_.brush().Entry(painter_, ToQt(r)); }
  void Group(const Rect& r) { sheet_.brush().Group(painter_, ToQt(r)); }
  void Card() { sheet_.brush().Card(painter_, ToQt(inside())); }
  void Words(const Rect& r, const char* text, Type type, Ink ink, int align);

  const QImage& image();
  // As the picture of this panel.
  void Save(const std::string& name, const std::string& target, int index);

 private:
  Sheet& sheet_;
  Rect place_;
  QImage image_;
  QPainter painter_;
};

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_SHEET_H_

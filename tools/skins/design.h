// What a skin is made of: sizes, colours, letters, and how its surfaces are painted. The screens
// are arranged by these alone.
#ifndef SONOTIK_TOOLS_SKINS_DESIGN_H_
#define SONOTIK_TOOLS_SKINS_DESIGN_H_

#include <QColor>
#include <QPainter>
#include <array>
#include <string>
#include <vector>

#include "tools/skins/grid.h"

namespace sonotik::skins {

// Sizes of letters, in points.
enum class Type { kSmall, kBody, kLarge, kTitle, kDisplay, kButton, kMenu, kKey };
inline constexpr size_t kTypes = 8;

// What a text stands on, and how much it matters.
enum class Ink {
  kStage,        // on the background
  kStageMuted,   //
  kStageAccent,  //
  kPlate,        // on the plate of a row
  kPlateMuted,   //
  kPlateAccent,  //
  kWarning,      // on the background
};
inline constexpr size_t kInks = 7;

// Kinds of buttons.
enum class Look {
  kPlain,    // a command
  kPrimary,  // the one that people came for
  kQuiet,    // one of many: keys, letters, years
  kDanger,   // takes something away
  kBack,     // leads home
  kTab,
  kMenu,
  kPlayer,
};
inline constexpr size_t kLooks = 8;

enum class Icon {
  kNone,
  kAlbums,
  kQueue,
  kCarousel,
  kSearch,
  kGenres,
  kDecades,
  kTop20,
  kHistory,
  kOptions,
  kRestart,
  kPause,
  kNext,
  kVolumeDown,
  kVolumeUp,
  kUp,
  kDown,
  kLeft,
  kRight,
  kBackspace,
};
// Within `place`, in the pen's colour, which also fills.
void PaintIcon(QPainter& painter, Icon icon, const QRectF& place, const QColor& color);

// How the surfaces of a skin are painted.
class Brushwork {
 public:
  virtual ~Brushwork() = default;
  // The whole window behind everything.
  virtual void Stage(QPainter& p, const QRectF& whole) const = 0;
  // The bar at the top or the one at the bottom, over the stage.
  virtual void Bar(QPainter& p, const QRectF& bar, bool top) const = 0;
  // What a row of a list stands on.
  virtual void Plate(QPainter& p, const QRectF& plate) const = 0;
  // What a cover lies in.
  virtual void Well(QPainter& p, const QRectF& cover) const = 0;
  // A panel that lies over others: PIN, letters, what to search for.
  virtual void Card(QPainter& p, const QRectF& card) const = 0;
  // A group of controls on the stage.
  virtual void Group(QPainter& p, const QRectF& group) const = 0;
  // Where a text is typed.
  virtual void Entry(QPainter& p, const QRectF& entry) const = 0;
  virtual void Button(QPainter& p, const QRectF& button, Look look) const = 0;
  // Over a cover, which is smaller by `edge` all around and shows through the middle.
  virtual void Frame(QPainter& p, const QRectF& frame, double edge) const = 0;
  // The track of the volume slider, and its thumb, which is a rectangle.
  virtual void Groove(QPainter& p, const QRectF& track) const = 0;
  virtual void Thumb(QPainter& p, const QRectF& thumb) const = 0;
};

// One page of covers: *.cov.
struct CoverPage {
  const char* name;
  int columns;
  int rows;
  bool reflections;
  bool frames;
  float album_height;   // of the labels; the letters follow it
  float artist_height;  //
};

struct ButtonInk {
  QColor text;
  QColor icon;
};

struct Design {
  const char* name;
  float width, height;

  // The grid.
  float menu_height, player_height;
  float margin;         // of a screen
  float gap;            // between things that belong together
  float button_height;  // of commands
  float tab_height;
  float side;         // column of commands
  float picture_gap;  // from a plate's edge to a cover

  const char* face;
  const char* button_face;
  std::array<float, kTypes> points;
  std::array<QColor, kInks> inks;
  std::array<ButtonInk, kLooks> buttons;
  QColor highlight;        // behind a chosen row
  QColor title_highlight;  // behind the title of a chosen cover
  QColor panel;            // behind settings
  QColor dark;             // of pictures that are missing
  std::vector<CoverPage> pages;
  const Brushwork* brushwork;

  float Points(Type type) const { return points[static_cast<size_t>(type)]; }
  const QColor& InkOf(Ink ink) const { return inks[static_cast<size_t>(ink)]; }
  const ButtonInk& InkOf(Look look) const { return buttons[static_cast<size_t>(look)]; }
  // Where every screen stands, between the bars.
  Rect Screen() const { return {0, menu_height, width, height - menu_height - player_height}; }
};

const Design& Neon();
const Design& Classic();

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_DESIGN_H_

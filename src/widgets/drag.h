// What is dragged over the controls from elsewhere: files of the desktop, or a text.
#ifndef SONOTIK_WIDGETS_DRAG_H_
#define SONOTIK_WIDGETS_DRAG_H_

#include <string>
#include <vector>

#include "widgets/geometry.h"

namespace sonotik {

struct DragData {
  std::vector<std::string> files;  // program paths
  std::string text;
};

// What a drop does with the data; at most what their source proposes.
enum class DropEffect { kNone, kCopy, kMove };

enum class DragState { kEnter, kLeave, kOver };

// In the coordinates of the control that gets it. A handler sets the effect; nothing is taken by a
// control that leaves it at kNone.
struct DragEvent {
  const DragData& data;
  Point at;
  DragState state = DragState::kOver;
  DropEffect proposed = DropEffect::kCopy;
  DropEffect effect = DropEffect::kNone;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_DRAG_H_

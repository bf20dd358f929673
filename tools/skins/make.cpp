#include "tools/skins/screens.h"

namespace sonotik::skins {

void Make(const Design& design, const QString& folder) {
  Sheet sheet(design, folder + "/" + design.name);
  LayOutFrame(sheet);
  LayOutLists(sheet);
  LayOutSearch(sheet);
  LayOutDecades(sheet);
  LayOutOthers(sheet);
  WriteCoverPages(sheet);
  PaintPreview(sheet);
  sheet.WriteFiles();
}

}  // namespace sonotik::skins

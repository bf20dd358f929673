// The one reader of all layout files: walks a file's table and hands each value to its control as
// soon as it is read. Nothing is stored beside the controls.
#ifndef SONOTIK_SKINS_LAYOUT_READER_H_
#define SONOTIK_SKINS_LAYOUT_READER_H_

#include <functional>
#include <string>
#include <string_view>

#include "files/line_format.h"
#include "skins/layout_tables.h"
#include "skins/layout_targets.h"

namespace sonotik {

class LayoutReader {
 public:
  // `folder` is the skin's, as a program path.
  LayoutReader(const LayoutTargets& targets, std::string folder);

  // False, and nothing happens, if the skin has no such file. Throws RuntimeFailure, which names
  // the file and the field, for a file that is too short or holds a text where a number is due;
  // what was handed on before that stays.
  bool Read(const LayoutFile& file) const;
  // The same for the bytes of a file.
  void ReadText(const LayoutFile& file, std::string text) const;

  // The path of a picture of this skin; empty if there is no such file.
  std::string PictureAt(std::string_view name) const;

  // Numbers that are no control's: the head of a file, the size of the screen, a count of rows.
  std::function<void(std::string_view target, FieldKind kind, double number)> on_number =
      [](std::string_view, FieldKind, double) {};

 private:
  void Walk(const LayoutFile& file, FieldReader& reader) const;
  std::string ReadHead(const LayoutBlock& block, FieldReader& reader) const;
  void ReadBlock(const LayoutBlock& block, std::span<Control* const> controls,
                 FieldReader& reader) const;

  const LayoutTargets& targets_;
  std::string folder_;
};

}  // namespace sonotik

#endif  // SONOTIK_SKINS_LAYOUT_READER_H_

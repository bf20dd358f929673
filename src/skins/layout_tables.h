// The layout files of a skin as tables: which value stands where in each of the 29 files, and in
// skin.ini. A file has no keys, so a value is what it is by its number. The reader, the checker,
// the written format and whoever writes a skin walk these tables and nothing else.
#ifndef SONOTIK_SKINS_LAYOUT_TABLES_H_
#define SONOTIK_SKINS_LAYOUT_TABLES_H_

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sonotik {

// What one field is.
enum class FieldKind {
  kIgnored,      // holds its place; never looked at
  kHead,         // whole number by which the file has a rule or an optional part
  kVersion,      // text that does the same
  kCaption,      // text
  kShape,        // whole number, as are the next two
  kMode,         //
  kFontStyle,    //
  kFont,         // "Arial 12": face and size
  kForeColor,    // 32 bits, 0x00BBGGRR in decimals; below 0 one of the desktop's own
  kBackColor,    //
  kTop,          // pixels, as are the next three; they may have decimals
  kLeft,         //
  kHeight,       //
  kWidth,        //
  kPicture,      // file name in the skin's folder
  kAnimation,    // the same, a GIF
  kFontName,     // text
  kFontSize,     // points; read as a whole line
  kAlignment,    // 0 left, 1 right, 2 centre
  kRowCount,     // whole number
  kScreenWidth,  // whole numbers of pixels
  kScreenHeight,
};
// For whoever draws a skin: "top, in pixels".
const char* WordsOf(FieldKind kind);

// A run of fields that belong together. One block of buttons has three orders of its fields.
enum class BlockKind {
  kIgnored,
  kHead,
  kVersion,
  kBox,
  kButtonHeightFirst,
  kButtonTopFirst,
  kButtonShapeLast,
  kButtonKeepingCaption,  // as kButtonTopFirst, but its caption is dropped
  kLabel,
  kTabStyle,
  kColors,
  kForeColor,
  kAlignedColors,
  kColorsAndBox,
  kPicture,
  kLabelledPicture,
  kLabelledAnimation,
  kLabelledCount,
  kTopLeft,
  kLeftTop,
  kHeightWidth,
  kHeightWidthTopLeft,
  kScreenSize,
};
std::span<const FieldKind> FieldsOf(BlockKind kind);
const char* WordsOf(BlockKind kind);

// When a block is in the file, by the file's head.
enum class InFile { kAlways, kIfHeadIsNotZero, kIfHeadIsVersion2 };

struct LayoutBlock {
  BlockKind kind;
  int count = 1;  // like blocks one behind the other
  // The controls by name and index: the run begins at `first`.
  const char* target = "";
  int first = 0;
  // For whoever draws a skin: what these are.
  const char* words = "";
  InFile in_file = InFile::kAlways;
};

struct LayoutFile {
  const char* name;
  const char* words;  // what it lays out
  std::span<const LayoutBlock> blocks;
};

// All 29 in the order in which they are read: where two place the same control, the later one wins.
std::span<const LayoutFile> LayoutFiles();
// nullptr for a name that is none of theirs. Case counts.
const LayoutFile* FindLayoutFile(std::string_view name);
// skin.ini, which is read before them: names of pictures.
const LayoutFile& SkinFile();

// The number that a head stands for: "Version 2" is 2, other text 0.
double HeadNumber(std::string_view head);
bool IsInFile(const LayoutBlock& block, std::string_view head);

// One field of a file.
struct LayoutField {
  int number = 0;  // from 1
  FieldKind kind = FieldKind::kIgnored;
  const LayoutBlock* block = nullptr;
  int index = 0;  // of the target's controls
};
// The file field by field. Only menu.ini and player.ini depend on their head, which is their first
// field; all others are the same for any.
std::vector<LayoutField> FieldsOf(const LayoutFile& file, std::string_view head = "");
int FieldCount(const LayoutFile& file, std::string_view head = "");

}  // namespace sonotik

#endif  // SONOTIK_SKINS_LAYOUT_TABLES_H_

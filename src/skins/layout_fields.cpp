#include "skins/layout_tables.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

using F = FieldKind;
using B = BlockKind;

struct FieldName {
  FieldKind kind;
  const char* words;
};
constexpr FieldName kFieldNames[] = {
    {F::kIgnored, "anything"},
    {F::kHead, "number that decides"},
    {F::kVersion, "text that decides"},
    {F::kCaption, "caption"},
    {F::kShape, "shape, 0 to 8"},
    {F::kMode, "mode: 0 button, 1 check, 2 option"},
    {F::kFontStyle, "caption effect: 0 plain, 1 raised, 2 sunken"},
    {F::kFont, "font, as Arial 12"},
    {F::kForeColor, "colour of the text"},
    {F::kBackColor, "colour behind the text"},
    {F::kTop, "top"},
    {F::kLeft, "left"},
    {F::kHeight, "height"},
    {F::kWidth, "width"},
    {F::kPicture, "picture file"},
    {F::kAnimation, "GIF file"},
    {F::kFontName, "font name"},
    {F::kFontSize, "font size in points, alone on its line"},
    {F::kAlignment, "alignment: 0 left, 1 right, 2 centre"},
    {F::kRowCount, "number of rows"},
    {F::kScreenWidth, "width in whole pixels"},
    {F::kScreenHeight, "height in whole pixels"},
};

constexpr FieldKind kOneIgnored[] = {F::kIgnored};
constexpr FieldKind kOneHead[] = {F::kHead};
constexpr FieldKind kOneVersion[] = {F::kVersion};
constexpr FieldKind kBoxFields[] = {F::kTop, F::kLeft, F::kHeight, F::kWidth};
constexpr FieldKind kHeightFirst[] = {
    F::kIgnored,   F::kCaption, F::kShape, F::kMode, F::kFontStyle, F::kFont,   F::kForeColor,
    F::kBackColor, F::kHeight,  F::kWidth, F::kTop,  F::kLeft,      F::kPicture};
constexpr FieldKind kTopFirst[] = {
    F::kIgnored,   F::kCaption, F::kShape, F::kMode,   F::kFontStyle, F::kFont,   F::kForeColor,
    F::kBackColor, F::kTop,     F::kLeft,  F::kHeight, F::kWidth,     F::kPicture};
constexpr FieldKind kShapeLast[] = {
    F::kIgnored, F::kCaption, F::kMode, F::kFontStyle, F::kFont,    F::kForeColor, F::kBackColor,
    F::kHeight,  F::kWidth,   F::kTop,  F::kLeft,      F::kPicture, F::kShape};
constexpr FieldKind kKeepingCaption[] = {
    F::kIgnored,   F::kIgnored, F::kShape, F::kMode,   F::kFontStyle, F::kFont,   F::kForeColor,
    F::kBackColor, F::kTop,     F::kLeft,  F::kHeight, F::kWidth,     F::kPicture};
// The head of three is dropped: what a label says is the program's.
constexpr FieldKind kLabelFields[] = {F::kIgnored,   F::kIgnored,  F::kIgnored, F::kBackColor,
                                      F::kForeColor, F::kTop,      F::kLeft,    F::kHeight,
                                      F::kWidth,     F::kFontName, F::kFontSize};
constexpr FieldKind kTabFields[] = {F::kIgnored,   F::kCaption, F::kShape,     F::kMode,
                                    F::kFontStyle, F::kFont,    F::kForeColor, F::kBackColor};
constexpr FieldKind kColorFields[] = {F::kBackColor, F::kForeColor};
constexpr FieldKind kOneForeColor[] = {F::kForeColor};
constexpr FieldKind kAlignedFields[] = {F::kAlignment, F::kBackColor, F::kForeColor};
constexpr FieldKind kPanelFields[] = {F::kBackColor, F::kForeColor, F::kTop,
                                      F::kLeft,      F::kHeight,    F::kWidth};
constexpr FieldKind kOnePicture[] = {F::kPicture};
constexpr FieldKind kPictureFields[] = {F::kIgnored, F::kPicture};
constexpr FieldKind kAnimationFields[] = {F::kIgnored, F::kAnimation};
constexpr FieldKind kCountFields[] = {F::kIgnored, F::kRowCount};
constexpr FieldKind kTopLeftFields[] = {F::kTop, F::kLeft};
constexpr FieldKind kLeftTopFields[] = {F::kLeft, F::kTop};
constexpr FieldKind kSizeFields[] = {F::kHeight, F::kWidth};
constexpr FieldKind kSizeAndPlace[] = {F::kHeight, F::kWidth, F::kTop, F::kLeft};
constexpr FieldKind kScreenFields[] = {F::kScreenWidth, F::kScreenHeight};

struct BlockShape {
  BlockKind kind;
  const char* words;
  std::span<const FieldKind> fields;
};
constexpr BlockShape kShapes[] = {
    {B::kIgnored, "value that is not looked at", kOneIgnored},
    {B::kHead, "number that decides", kOneHead},
    {B::kVersion, "text that decides", kOneVersion},
    {B::kBox, "box", kBoxFields},
    {B::kButtonHeightFirst, "button, height first", kHeightFirst},
    {B::kButtonTopFirst, "button, top first", kTopFirst},
    {B::kButtonShapeLast, "button, shape last", kShapeLast},
    {B::kButtonKeepingCaption, "button that keeps its caption", kKeepingCaption},
    {B::kLabel, "label", kLabelFields},
    {B::kTabStyle, "tab", kTabFields},
    {B::kColors, "two colours", kColorFields},
    {B::kForeColor, "colour", kOneForeColor},
    {B::kAlignedColors, "alignment and colours", kAlignedFields},
    {B::kColorsAndBox, "colours and box", kPanelFields},
    {B::kPicture, "picture", kOnePicture},
    {B::kLabelledPicture, "picture with a label", kPictureFields},
    {B::kLabelledAnimation, "animation with a label", kAnimationFields},
    {B::kLabelledCount, "number with a label", kCountFields},
    {B::kTopLeft, "place", kTopLeftFields},
    {B::kLeftTop, "place, left first", kLeftTopFields},
    {B::kHeightWidth, "size", kSizeFields},
    {B::kHeightWidthTopLeft, "box, size first", kSizeAndPlace},
    {B::kScreenSize, "size of the screen", kScreenFields},
};

bool IsVersion2(std::string_view head) { return head.substr(0, 9) == "Version 2"; }

const BlockShape& ShapeOf(BlockKind kind) { return kShapes[static_cast<size_t>(kind)]; }

}  // namespace

const char* WordsOf(FieldKind kind) { return kFieldNames[static_cast<size_t>(kind)].words; }
const char* WordsOf(BlockKind kind) { return ShapeOf(kind).words; }
std::span<const FieldKind> FieldsOf(BlockKind kind) { return ShapeOf(kind).fields; }

double HeadNumber(std::string_view head) { return IsVersion2(head) ? 2 : LeadingNumber(head); }

bool IsInFile(const LayoutBlock& block, std::string_view head) {
  switch (block.in_file) {
    case InFile::kIfHeadIsNotZero:
      return HeadNumber(head) != 0;
    case InFile::kIfHeadIsVersion2:
      return IsVersion2(head);
    case InFile::kAlways:
      break;
  }
  return true;
}

std::vector<LayoutField> FieldsOf(const LayoutFile& file, std::string_view head) {
  std::vector<LayoutField> fields;
  for (const LayoutBlock& block : file.blocks) {
    if (!IsInFile(block, head)) continue;
    for (int i = 0; i < block.count; ++i) {
      for (const FieldKind kind : FieldsOf(block.kind)) {
        fields.push_back({static_cast<int>(fields.size()) + 1, kind, &block, block.first + i});
      }
    }
  }
  return fields;
}

int FieldCount(const LayoutFile& file, std::string_view head) {
  return static_cast<int>(FieldsOf(file, head).size());
}

}  // namespace sonotik

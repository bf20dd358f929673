#include "skins/layout_reader.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "skins/coordinates.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

// Nobody reads longer ones, and measuring them would hold everything up.
constexpr size_t kLongestText = 1024;
constexpr int kDarkerWhilePressed = 3;
constexpr double kLeastPoints = 1;
constexpr double kMostPoints = 1000;

std::string TextOf(FieldReader& reader) {
  std::string text = reader.Text();
  if (text.size() > kLongestText) text.resize(kLongestText);
  return text;
}

Color ReadColor(FieldReader& reader) { return static_cast<Color>(reader.Int32()); }

float Points(double points) {
  return static_cast<float>(std::clamp(points, kLeastPoints, kMostPoints));
}

// The one value that is a line and no field.
float ReadFontSize(FieldReader& reader) {
  const std::string line = reader.WholeLine();
  const auto points = ParseNumber(line);
  if (!points) throw RuntimeFailure("a font size is due, not \"" + line.substr(0, 40) + "\"");
  return Points(*points);
}

// "Arial 12" is a face and its size; a face alone keeps the size that was.
Font WithFont(Font font, std::string_view value) {
  value = TrimBlanks(value);
  const size_t blank = value.rfind(' ');
  if (blank != std::string_view::npos) {
    if (const auto points = ParseNumber(value.substr(blank))) {
      font.points = Points(*points);
      value = TrimBlanks(value.substr(0, blank));
    }
  }
  if (!value.empty()) font.family = value;
  return font;
}

// What a kind of control has no property for passes it by.
template <typename T, typename Action>
void ForEach(std::span<Control* const> controls, Action action) {
  for (Control* control : controls) {
    if (auto* const wanted = dynamic_cast<T*>(control)) action(*wanted);
  }
}

template <typename Action>
void ForEachButton(std::span<Control* const> controls, Action action) {
  ForEach<lvButtons_H>(controls, action);
}

void SetCoordinate(std::span<Control* const> controls, float Rect::*member, float value) {
  for (Control* control : controls) {
    Rect place = control->place();
    place.*member = value;
    control->SetPlace(place);
  }
}

void SetForeColor(std::span<Control* const> controls, Color color) {
  ForEachButton(controls, [&](auto& button) { button.SetForeColor(color); });
  ForEach<Label>(controls, [&](Label& label) { label.SetForeColor(color); });
}

void SetBackColor(std::span<Control* const> controls, Color color) {
  ForEachButton(controls, [&](auto& button) { button.SetBackColor(color); });
  ForEach<Label>(controls, [&](Label& label) {
    label.SetBackColor(color);
    // The plates are of the forms' own look; behind a skin's rows lies its picture.
    label.SetPlate(std::nullopt);
  });
  ForEach<Panel>(controls, [&](Panel& panel) { panel.SetBackColor(color); });
}

// Of a button a missing picture takes away the one before; all others keep theirs.
void SetPicture(std::span<Control* const> controls, const std::string& path) {
  ForEachButton(controls, [&](auto& button) { button.SetPicture(path); });
  if (path.empty()) return;
  ForEach<Panel>(controls, [&](Panel& panel) { panel.SetPicture(path); });
  // The main window's is set twice, as it always was.
  ForEach<Form>(controls, [&](Form& window) { window.SetPicture(path); });
  ForEach<PictureBox>(controls, [&](PictureBox& box) { box.SetPicture(path); });
}

void StartAnimation(std::span<Control* const> controls, const std::string& path) {
  if (path.empty()) return;
  ForEach<ucAniGIF>(controls, [&](ucAniGIF& animation) {
    animation.LoadAnimatedGIF_Array(ReadWholeFile(path));
    animation.SetAction(GifAction::kPlay);
  });
}

bool HasField(BlockKind kind, FieldKind wanted) {
  const auto fields = FieldsOf(kind);
  return std::find(fields.begin(), fields.end(), wanted) != fields.end();
}

void FinishButtons(BlockKind kind, std::span<Control* const> controls, int shape,
                   const Rect& size) {
  ForEachButton(controls, [&](lvButtons_H& button) {
    button.SetButtonShape(shape);
    // A finger sees that it has pressed a picture, too. Other shapes show it by themselves.
    button.SetCustomClick(kDarkerWhilePressed);
    button.Refresh();
    // The skin's colours count under the mouse as well, not those of the forms' own look.
    button.SetLockHover(0);
    if (!HasField(kind, FieldKind::kHeight)) return;
    // The size once more, now that the shape is its own.
    button.SetPlace({button.place().left, button.place().top, size.width, size.height});
    button.SetShowFocusRect(3);
  });
}

// A device or a pipe may have no end.
bool IsFile(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(NativePath(path), error);
}

}  // namespace

LayoutReader::LayoutReader(const LayoutTargets& targets, std::string folder)
    : targets_(targets), folder_(std::move(folder)) {}

std::string LayoutReader::PictureAt(std::string_view name) const {
  if (TrimBlanks(name).empty()) return "";
  std::string path = folder_ + "\\" + std::string(name);
  return IsFile(path) ? path : "";
}

bool LayoutReader::Read(const LayoutFile& file) const {
  const std::string path = folder_ + "\\" + file.name;
  if (!IsFile(path)) return false;
  ReadText(file, ReadWholeFile(path));
  return true;
}

void LayoutReader::ReadText(const LayoutFile& file, std::string text) const {
  FieldReader reader(std::move(text));
  try {
    Walk(file, reader);
  } catch (const RuntimeFailure& failure) {
    throw RuntimeFailure(std::string(file.name) + ": " + failure.what());
  }
}

void LayoutReader::Walk(const LayoutFile& file, FieldReader& reader) const {
  std::string head;
  for (const LayoutBlock& block : file.blocks) {
    if (!IsInFile(block, head)) continue;
    if (block.kind == BlockKind::kHead || block.kind == BlockKind::kVersion) {
      head = ReadHead(block, reader);
      continue;
    }
    for (int i = 0; i < block.count; ++i) {
      ReadBlock(block, targets_.At(block.target, block.first + i), reader);
    }
  }
}

std::string LayoutReader::ReadHead(const LayoutBlock& block, FieldReader& reader) const {
  const std::string head = reader.Text();
  if (block.kind == BlockKind::kHead && !ParseNumber(head)) {
    throw RuntimeFailure("field 1: a number is due, not \"" + head.substr(0, 40) + "\"");
  }
  on_number(block.target, FieldsOf(block.kind)[0], HeadNumber(head));
  return head;
}

void LayoutReader::ReadBlock(const LayoutBlock& block, std::span<Control* const> controls,
                             FieldReader& reader) const {
  int shape = 0;
  Rect size;
  for (const FieldKind kind : FieldsOf(block.kind)) {
    switch (kind) {
      case FieldKind::kIgnored:
        reader.Skip();
        break;
      case FieldKind::kCaption: {
        const std::string caption = TextOf(reader);
        ForEachButton(controls, [&](auto& button) {
          button.SetCaption(caption);
          // While it loads: a shape that is cut from the picture has none yet.
          button.SetButtonShape(0);
        });
        break;
      }
      case FieldKind::kShape:
        shape = reader.Int32();
        ForEachButton(controls, [](auto& button) { button.SetButtonShape(0); });
        break;
      case FieldKind::kMode: {
        const int mode = reader.Int32();
        ForEachButton(controls, [&](auto& button) { button.SetMode(mode); });
        break;
      }
      case FieldKind::kFontStyle: {
        const int style = reader.Int32();
        ForEachButton(controls, [&](auto& button) { button.SetFontStyle(style); });
        break;
      }
      case FieldKind::kFont: {
        const std::string font = TextOf(reader);
        ForEachButton(controls,
                      [&](auto& button) { button.SetFont(WithFont(button.font(), font)); });
        break;
      }
      case FieldKind::kFontName: {
        const std::string name = TextOf(reader);
        ForEach<Label>(controls, [&](Label& label) {
          label.SetFont(
              {name.empty() ? label.font().family : name, label.font().points, label.font().bold});
        });
        break;
      }
      case FieldKind::kFontSize: {
        const float points = ReadFontSize(reader);
        ForEach<Label>(controls, [&](Label& label) {
          label.SetFont({label.font().family, points, label.font().bold});
        });
        break;
      }
      case FieldKind::kAlignment: {
        const int align = reader.Int32();
        if (align < 0 || align > 2) break;
        ForEach<Label>(controls, [&](Label& label) { label.SetAlign(static_cast<Align>(align)); });
        break;
      }
      case FieldKind::kForeColor:
        SetForeColor(controls, ReadColor(reader));
        break;
      case FieldKind::kBackColor:
        SetBackColor(controls, ReadColor(reader));
        break;
      case FieldKind::kTop:
        SetCoordinate(controls, &Rect::top, ReadCoordinate(reader));
        break;
      case FieldKind::kLeft:
        SetCoordinate(controls, &Rect::left, ReadCoordinate(reader));
        break;
      case FieldKind::kHeight:
        size.height = ReadLength(reader);
        SetCoordinate(controls, &Rect::height, size.height);
        break;
      case FieldKind::kWidth:
        size.width = ReadLength(reader);
        SetCoordinate(controls, &Rect::width, size.width);
        break;
      case FieldKind::kPicture:
        SetPicture(controls, PictureAt(TextOf(reader)));
        break;
      case FieldKind::kAnimation:
        StartAnimation(controls, PictureAt(TextOf(reader)));
        break;
      case FieldKind::kRowCount:
      case FieldKind::kScreenWidth:
      case FieldKind::kScreenHeight:
        on_number(block.target, kind, reader.Int32());
        break;
      case FieldKind::kHead:
      case FieldKind::kVersion:
        // Read before the blocks that go by them.
        break;
    }
  }
  if (HasField(block.kind, FieldKind::kShape)) FinishButtons(block.kind, controls, shape, size);
}

}  // namespace sonotik

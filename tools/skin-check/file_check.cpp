#include "tools/skin-check/file_check.h"

#include <cmath>
#include <limits>
#include <optional>

#include "files/files.h"
#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "forms/TrackListScreen.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

enum class ValueKind { kAnything, kFile, kNumber, kWhole, kLength };

struct Meaning {
  ValueKind value = ValueKind::kAnything;
  double least = std::numeric_limits<int32_t>::min();
  double most = std::numeric_limits<int32_t>::max();
};

Meaning MeaningOf(FieldKind kind) {
  switch (kind) {
    case FieldKind::kIgnored:
    case FieldKind::kVersion:
    case FieldKind::kCaption:
    case FieldKind::kFont:
    case FieldKind::kFontName:
      break;
    case FieldKind::kPicture:
    case FieldKind::kAnimation:
      return {ValueKind::kFile};
    case FieldKind::kShape:
      return {ValueKind::kWhole, 0, 8};
    case FieldKind::kMode:
    case FieldKind::kFontStyle:
    case FieldKind::kAlignment:
      return {ValueKind::kWhole, 0, 2};
    case FieldKind::kRowCount:
      return {ValueKind::kWhole, 0, kMostTrackRows};
    case FieldKind::kScreenWidth:
    case FieldKind::kScreenHeight:
      return {ValueKind::kWhole, 1, 8192};
    case FieldKind::kHead:
    case FieldKind::kForeColor:
    case FieldKind::kBackColor:
      return {ValueKind::kWhole};
    case FieldKind::kTop:
    case FieldKind::kLeft:
      return {ValueKind::kNumber};
    case FieldKind::kHeight:
    case FieldKind::kWidth:
      return {ValueKind::kLength, 0};
    case FieldKind::kFontSize:
      return {ValueKind::kNumber, 1, 1000};
  }
  return {};
}

// Of one file.
class FileCheck {
 public:
  FileCheck(const std::string& folder, const LayoutFile& file, Findings& findings)
      : folder_(folder), file_(file), findings_(findings) {}

  bool Run() {
    const std::string path = folder_ + "\\" + file_.name;
    if (!FileExists(path)) {
      Say("is missing");
      return true;
    }
    FieldReader reader(ReadWholeFile(path));
    const auto fields = FieldsOf(file_, HeadOf(folder_, file_));
    for (const LayoutField& field : fields) {
      if (!CheckField(field, fields.size(), reader)) return false;
    }
    CountSurplus(fields.size(), reader);
    return true;
  }

 private:
  void Say(const std::string& what) { findings_.push_back(std::string(file_.name) + ": " + what); }

  void SayOf(const LayoutField& field, const std::string& what) {
    std::string text = "field " + std::to_string(field.number) + ", " + WordsOf(field.kind);
    if (*field.block->target != '\0') {
      text += " of " + std::string(field.block->target);
      if (field.block->count > 1) {
        text += " " + std::to_string(field.index - field.block->first + 1);
      }
    }
    Say(text + ": " + what);
  }

  // False where the jukebox stops reading.
  bool CheckField(const LayoutField& field, size_t due, FieldReader& reader) {
    std::string text;
    try {
      text = field.kind == FieldKind::kFontSize ? reader.WholeLine() : reader.Text();
    } catch (const RuntimeFailure&) {
      Say("is too short: it ends after " + std::to_string(field.number - 1) + " of " +
          std::to_string(due) + " values");
      return false;
    }
    const Meaning meaning = MeaningOf(field.kind);
    if (meaning.value == ValueKind::kAnything) return true;
    if (meaning.value == ValueKind::kFile) {
      if (!text.empty() && !FileExists(folder_ + "\\" + text)) {
        SayOf(field, "there is no file \"" + text + "\"");
      }
      return true;
    }
    const std::optional<double> number = ParseNumber(text);
    if (!number) {
      SayOf(field, "a number is due, not \"" + text.substr(0, 40) + "\"");
      return false;
    }
    if (meaning.value == ValueKind::kWhole && *number != std::floor(*number)) {
      SayOf(field, "a whole number is due, not " + text);
    }
    if (*number < meaning.least || *number > meaning.most) SayOf(field, text + " has no meaning");
    return true;
  }

  void CountSurplus(size_t due, FieldReader& reader) {
    size_t more = 0;
    bool says_something = false;
    while (!reader.AtEnd()) {
      ++more;
      if (!reader.Text().empty()) says_something = true;
    }
    // Empty lines at the end do no harm.
    if (!says_something) return;
    Say("is too long: " + std::to_string(more) + " values more than " + std::to_string(due) +
        "; a text may hold a comma");
  }

  const std::string& folder_;
  const LayoutFile& file_;
  Findings& findings_;
};

}  // namespace

std::string HeadOf(const std::string& folder, const LayoutFile& file) {
  const std::string path = folder + "\\" + file.name;
  const BlockKind first = file.blocks[0].kind;
  if ((first != BlockKind::kHead && first != BlockKind::kVersion) || !FileExists(path)) return "";
  FieldReader reader(ReadWholeFile(path));
  return reader.AtEnd() ? "" : reader.Text();
}

bool CheckFiles(const std::string& folder, Findings& findings) {
  bool readable = FileCheck(folder, SkinFile(), findings).Run();
  for (const LayoutFile& file : LayoutFiles()) {
    readable = FileCheck(folder, file, findings).Run() && readable;
  }
  for (const char* name : {"preview.jpg", "images\\ImageNotFound.jpg"}) {
    if (!FileExists(folder + "\\" + name)) findings.push_back(std::string(name) + ": is missing");
  }
  return readable;
}

}  // namespace sonotik

// Layout files written by their tables, with a value of its own in each field.
#ifndef SONOTIK_TESTS_SUPPORT_SKIN_FILES_H_
#define SONOTIK_TESTS_SUPPORT_SKIN_FILES_H_

#include <functional>
#include <string>
#include <vector>

#include "skins/layout_tables.h"

namespace sonotik {

using FieldText = std::function<std::string(const LayoutField& field)>;

// A value that fits the field and, but for small numbers, tells which one it is.
inline std::string PlainValue(const LayoutField& field) {
  const std::string number = std::to_string(field.number);
  switch (field.kind) {
    case FieldKind::kHead:
      return "1";
    case FieldKind::kVersion:
      return "Version 2";
    case FieldKind::kShape:
      return std::to_string(field.number % 7);
    case FieldKind::kMode:
    case FieldKind::kFontStyle:
    case FieldKind::kAlignment:
      return std::to_string(field.number % 3);
    case FieldKind::kFont:
      return "Face " + std::to_string(field.number % 90 + 1);
    case FieldKind::kFontName:
      return "Name" + number;
    case FieldKind::kFontSize:
      return std::to_string(field.number % 90 + 1);
    case FieldKind::kForeColor:
    case FieldKind::kBackColor:
      return std::to_string(field.number * 97);
    case FieldKind::kTop:
    case FieldKind::kLeft:
    case FieldKind::kHeight:
    case FieldKind::kWidth:
      return number + ".5";
    case FieldKind::kCaption:
      return "Caption " + number;
    case FieldKind::kPicture:
    case FieldKind::kAnimation:
      return "";
    case FieldKind::kRowCount:
      return "7";
    case FieldKind::kScreenWidth:
      return "1024";
    case FieldKind::kScreenHeight:
      return "768";
    case FieldKind::kIgnored:
      break;
  }
  return "ignored";
}

inline std::vector<LayoutField> WrittenFields(const LayoutFile& file) {
  return FieldsOf(file, file.blocks[0].kind == BlockKind::kVersion ? "Version 2" : "1");
}

inline std::string LayoutText(const LayoutFile& file, const FieldText& value = PlainValue,
                              const std::string& line_end = "\r\n") {
  std::string text;
  for (const LayoutField& field : WrittenFields(file)) text += value(field) + line_end;
  return text;
}

// All fields plain but one.
inline FieldText PlainBut(int number, const std::string& text) {
  return [number, text](const LayoutField& field) {
    return field.number == number ? text : PlainValue(field);
  };
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_SUPPORT_SKIN_FILES_H_

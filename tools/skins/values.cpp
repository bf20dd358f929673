#include "tools/skins/values.h"

#include <cmath>
#include <fstream>
#include <stdexcept>

namespace sonotik::skins {
namespace {

std::string Name(const std::string& target, int index) {
  return target + " " + std::to_string(index);
}

}  // namespace

void SkinValues::Set(const std::string& target, int index, FieldKind kind,
                     const std::string& value) {
  // A comma would end the field, and what follows would slip.
  if (value.find_first_of(",\"\r\n") != std::string::npos) {
    throw std::runtime_error(Name(target, index) + ": \"" + value + "\" can't be written");
  }
  values_[{target, index, kind}] = value;
}

void SkinValues::Set(const std::string& target, int index, FieldKind kind, float value) {
  Set(target, index, kind, static_cast<int>(std::lround(value)));
}

void SkinValues::Set(const std::string& target, int index, FieldKind kind, int value) {
  Set(target, index, kind, std::to_string(value));
}

const std::string& SkinValues::Get(const std::string& target, int index, FieldKind kind) {
  const auto found = values_.find({target, index, kind});
  if (found == values_.end()) {
    throw std::runtime_error(Name(target, index) + " has no " + WordsOf(kind));
  }
  written_.insert(found->first);
  return found->second;
}

std::string SkinValues::TextOf(const LayoutFile& file) {
  std::string head;
  const LayoutBlock& first = file.blocks.front();
  if (first.kind == BlockKind::kHead || first.kind == BlockKind::kVersion) {
    head = Get(first.target, 0, FieldsOf(first.kind).front());
  }
  std::string text;
  for (const LayoutField& field : FieldsOf(file, head)) {
    const std::string target = field.block->target;
    if (field.kind != FieldKind::kIgnored) {
      text += Get(target, field.index, field.kind);
    } else {
      // Nobody reads it; it says to people what follows.
      text += target.empty() ? "-" : Name(target, field.index);
    }
    text += "\r\n";
  }
  return text;
}

void SkinValues::WriteTo(const std::string& folder) {
  const auto write = [&](const LayoutFile& file) {
    std::ofstream out(folder + "/" + file.name, std::ios::binary);
    out << TextOf(file);
    if (!out.flush()) throw std::runtime_error("cannot write " + folder + "/" + file.name);
  };
  write(SkinFile());
  for (const LayoutFile& file : LayoutFiles()) write(file);
  for (const auto& [key, value] : values_) {
    const auto& [target, index, kind] = key;
    if (!written_.contains(key)) {
      throw std::runtime_error("no file has a place for the " + std::string(WordsOf(kind)) +
                               " of " + Name(target, index));
    }
  }
}

}  // namespace sonotik::skins

#include "access/key_map.h"

#include "files/files.h"
#include "files/line_format.h"
#include "files/runtime_failure.h"

namespace sonotik {

void KeyMap::LoadKeyMap() {
  const std::string path = app_path_ + "\\keyboard.dat";
  if (!FileExists(path)) return;
  FieldReader reader(ReadWholeFile(path));
  for (int& code : codes_) {
    const int selected = reader.Int16();
    if (selected < -1 || selected > 130) {
      throw RuntimeFailure("there is no key " + std::to_string(selected));
    }
    code = selected;
  }
}

void KeyMap::SaveKeyMap() const {
  LineWriter writer;
  for (const int code : codes_) writer.Number(static_cast<long>(code));
  ReplaceFile(app_path_ + "\\keyboard.dat", writer.text());
}

}  // namespace sonotik

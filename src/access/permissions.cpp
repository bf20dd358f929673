#include "access/permissions.h"

#include "files/files.h"
#include "files/line_format.h"
#include "files/runtime_failure.h"

namespace sonotik {

void Permissions::LoadPermissions() {
  const std::string path = app_path_ + "\\permissions.ini";
  if (!FileExists(path)) return;
  try {
    FieldReader reader(ReadWholeFile(path));
    for (bool& allowed : allowed_) allowed = reader.Check();
  } catch (const RuntimeFailure&) {
    messages_.Show("Permissions INI is corrupt");
  }
}

void Permissions::SavePermissions() const {
  LineWriter writer;
  for (const bool allowed : allowed_) writer.Check(allowed);
  ReplaceFile(app_path_ + "\\permissions.ini", writer.text());
}

}  // namespace sonotik

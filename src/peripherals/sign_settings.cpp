#include "peripherals/sign_settings.h"

#include <algorithm>

#include "files/files.h"
#include "files/line_format.h"

namespace sonotik {
namespace {

constexpr int kPorts = 4;
constexpr int kModels = 3;

}  // namespace

void SignSettings::LoadSign() {
  const std::string path = app_path_ + "\\betabrite.ini";
  if (!FileExists(path)) return;
  FieldReader reader(ReadWholeFile(path));
  reader.Skip();
  // The whole line: its commas belong to it.
  port_settings = reader.WholeLine();
  port = std::clamp<int>(reader.Int16(), -1, kPorts - 1);
  model = std::clamp<int>(reader.Int16(), -1, kModels - 1);
  enabled = reader.Check();
}

void SignSettings::SaveSign() const {
  LineWriter writer;
  writer.Text("Betabrite config");
  writer.Text(port_settings);
  writer.Number(static_cast<long>(port));
  writer.Number(static_cast<long>(model));
  writer.Check(enabled);
  ReplaceFile(app_path_ + "\\betabrite.ini", writer.text());
}

}  // namespace sonotik

// What a delegate may do: ten check boxes.
#ifndef SONOTIK_ACCESS_PERMISSIONS_H_
#define SONOTIK_ACCESS_PERMISSIONS_H_

#include <array>
#include <string>

#include "platform/message_box.h"

namespace sonotik {

inline constexpr size_t kPermissions = 10;

class Permissions {
 public:
  Permissions(const std::string& app_path, MessageBox& messages)
      : app_path_(app_path), messages_(messages) {}

  // permissions.ini, ten numbers 0 or 1. Without the file nothing changes; a read error shows its
  // message, and the boxes read so far keep their values.
  void LoadPermissions();

  // Throws RuntimeFailure, and then the old file still stands.
  void SavePermissions() const;

  bool allowed(size_t line) const { return allowed_[line]; }
  // The box of a line, for the options page.
  bool& box(size_t line) { return allowed_[line]; }

 private:
  const std::string& app_path_;
  MessageBox& messages_;
  std::array<bool, kPermissions> allowed_{};
};

}  // namespace sonotik

#endif  // SONOTIK_ACCESS_PERMISSIONS_H_

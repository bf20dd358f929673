// Which key stands for which action: 35 selections, each the virtual-key code, -1 for none.
#ifndef SONOTIK_ACCESS_KEY_MAP_H_
#define SONOTIK_ACCESS_KEY_MAP_H_

#include <array>
#include <string>

namespace sonotik {

class KeyMap {
 public:
  explicit KeyMap(const std::string& app_path) : app_path_(app_path) { codes_.fill(-1); }

  // keyboard.dat, 35 numbers; without the file no key is mapped.
  void LoadKeyMap();
  void SaveKeyMap() const;

  int code(size_t slot) const { return codes_[slot]; }
  void SetCode(size_t slot, int code) { codes_[slot] = code; }
  // The selection of a slot, for the options page.
  int& selection(size_t slot) { return codes_[slot]; }

 private:
  const std::string& app_path_;
  std::array<int, 35> codes_;
};

}  // namespace sonotik

#endif  // SONOTIK_ACCESS_KEY_MAP_H_

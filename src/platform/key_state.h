// Which keys are down at this moment, by Windows virtual-key codes 0 to 130.
#ifndef SONOTIK_PLATFORM_KEY_STATE_H_
#define SONOTIK_PLATFORM_KEY_STATE_H_

namespace sonotik {

class KeyState {
 public:
  virtual ~KeyState() = default;
  // False for a code that stands for no key, such as -1.
  virtual bool IsDown(int virtual_key) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_KEY_STATE_H_

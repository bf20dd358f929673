// The few failures that speak.
#ifndef SONOTIK_PLATFORM_MESSAGE_BOX_H_
#define SONOTIK_PLATFORM_MESSAGE_BOX_H_

#include <string>

namespace sonotik {

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  // One modal message; returns when it has been taken away.
  virtual void Show(const std::string& text) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_MESSAGE_BOX_H_

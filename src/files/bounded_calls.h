// Calls into a folder of another machine, which may not answer for minutes.
#ifndef SONOTIK_FILES_BOUNDED_CALLS_H_
#define SONOTIK_FILES_BOUNDED_CALLS_H_

#include <chrono>
#include <functional>
#include <future>
#include <memory>

namespace sonotik {

class BoundedCalls {
 public:
  // How long the program may stand still for a folder that has just gone.
  std::chrono::milliseconds patience{500};

  BoundedCalls() = default;
  // A call that hasn't ended is left to itself.
  ~BoundedCalls();
  BoundedCalls(const BoundedCalls&) = delete;
  BoundedCalls& operator=(const BoundedCalls&) = delete;

  // Runs the call on a thread beside and waits for its end; what it throws is thrown here. False
  // if it has not ended in time: it goes on alone then, and until it ends any other is refused at
  // once. So a call holds by itself whatever it touches.
  bool Run(std::function<void()> call);

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;
  std::future<void> last_;
};

}  // namespace sonotik

#endif  // SONOTIK_FILES_BOUNDED_CALLS_H_

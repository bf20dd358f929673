#include "files/bounded_calls.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace sonotik {

// Between the two threads: the one call that waits. It outlives the object as long as a call does.
struct BoundedCalls::Desk {
  std::mutex mutex;
  std::condition_variable changed;
  std::packaged_task<void()> call;
  bool closed = false;
  std::thread thread;

  void Work() {
    for (;;) {
      std::unique_lock lock(mutex);
      changed.wait(lock, [this] { return closed || call.valid(); });
      if (closed) return;
      auto next = std::exchange(call, {});
      lock.unlock();
      next();
    }
  }
};

BoundedCalls::~BoundedCalls() {
  if (!desk_) return;
  {
    const std::lock_guard lock(desk_->mutex);
    desk_->closed = true;
  }
  desk_->changed.notify_one();
  const bool idle =
      !last_.valid() || last_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
  if (idle) {
    desk_->thread.join();
  } else {
    desk_->thread.detach();
  }
}

bool BoundedCalls::Run(std::function<void()> call) {
  if (last_.valid() && last_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
    return false;
  }
  if (!desk_) {
    desk_ = std::make_shared<Desk>();
    desk_->thread = std::thread([desk = desk_] { desk->Work(); });
  }
  {
    const std::lock_guard lock(desk_->mutex);
    desk_->call = std::packaged_task<void()>(std::move(call));
    last_ = desk_->call.get_future();
  }
  desk_->changed.notify_one();
  if (last_.wait_for(patience) != std::future_status::ready) return false;
  last_.get();
  return true;
}

}  // namespace sonotik

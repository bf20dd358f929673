// The machine's event loop, as far as the logic knows of it.
#ifndef SONOTIK_PLATFORM_EVENT_LOOP_H_
#define SONOTIK_PLATFORM_EVENT_LOOP_H_

namespace sonotik {

class EventLoop {
 public:
  virtual ~EventLoop() = default;
  // Lets pending events run: queued input, due timers, painting. Any handler may run inside.
  virtual void PumpEvents() = 0;
  // Paints what has to be painted and lets nothing else run: for a handler that keeps the thread.
  virtual void PaintNow() = 0;
  // The same as PumpEvents for a while: whoever waits for something else asks again this often.
  virtual void WaitForEvents(int most_ms) = 0;
  // Ends the loop with this exit status as soon as the running handler has returned.
  virtual void Leave(int exit_status) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_EVENT_LOOP_H_

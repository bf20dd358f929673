// Waiting as the program waits: with the toolkit's loop running.
#ifndef SONOTIK_TESTS_DESKTOP_EVENT_LOOP_H_
#define SONOTIK_TESTS_DESKTOP_EVENT_LOOP_H_

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <functional>

namespace sonotik {

// For ten seconds at most.
inline bool Becomes(const std::function<bool()>& true_at_last) {
  const QDeadlineTimer give_up(10000);
  while (!true_at_last() && !give_up.hasExpired()) {
    QEventLoop events;
    QTimer::singleShot(5, &events, &QEventLoop::quit);
    events.exec();
  }
  return true_at_last();
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_DESKTOP_EVENT_LOOP_H_

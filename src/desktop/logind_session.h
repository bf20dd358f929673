// Session ends through the login manager (org.freedesktop.login1), where there is one.
#ifndef SONOTIK_DESKTOP_LOGIND_SESSION_H_
#define SONOTIK_DESKTOP_LOGIND_SESSION_H_

#include <QDBusConnection>

#include "platform/session.h"

namespace sonotik {

class LogindSession : public Session {
 public:
  explicit LogindSession(const QDBusConnection& bus) : bus_(bus) {}
  void End(SessionEnd how) override;

 private:
  QDBusConnection bus_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_LOGIND_SESSION_H_

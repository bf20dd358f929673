#include "desktop/logind_session.h"

#include <QDBusMessage>

namespace sonotik {
namespace {

// So long a login manager that doesn't answer may hold the program's end.
constexpr int kAnswerMs = 2000;

}  // namespace

void LogindSession::End(SessionEnd how) {
  const bool log_off = how == SessionEnd::kLogOff;
  // A machine that is shut down without power-off would stand there with a black screen: both
  // switch it off.
  const QString method = log_off                      ? "TerminateSession"
                         : how == SessionEnd::kReboot ? "Reboot"
                                                      : "PowerOff";
  QDBusMessage request =
      QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                     "org.freedesktop.login1.Manager", method);
  if (log_off) {
    // "auto" is the session of the caller's user.
    request << qEnvironmentVariable("XDG_SESSION_ID", "auto");
  } else {
    // Nobody is asked for a password: there is no keyboard.
    request << false;
  }
  bus_.call(request, QDBus::Block, kAnswerMs);
}

}  // namespace sonotik

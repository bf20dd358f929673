#include "desktop/logind_session.h"

#include <gtest/gtest.h>

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QThread>
#include <memory>

#include "desktop/event_loop.h"

namespace sonotik {
namespace {

// Stands where the login manager stands and keeps what it was asked.
class StandIn : public QDBusVirtualObject {
 public:
  QStringList asked;
  bool refuse = false;
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    QStringList arguments;
    for (const QVariant& argument : message.arguments()) arguments << argument.toString();
    asked << message.interface() + "." + message.member() + "(" + arguments.join(",") + ")";
    return bus.send(refuse ? message.createErrorReply(QDBusError::AccessDenied, "no")
                           : message.createReply());
  }
};

TEST(LogindSession, AsksTheLoginManagerWithoutAPassword) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead());
  const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
  QDBusConnection service = QDBusConnection::connectToBus(address, "stand-in");
  StandIn manager;
  ASSERT_TRUE(service.registerVirtualObject("/org/freedesktop/login1", &manager));
  ASSERT_TRUE(service.registerService("org.freedesktop.login1"));
  qputenv("XDG_SESSION_ID", "c7");
  {
    // The asker waits for the answer, so it has a thread of its own.
    const std::unique_ptr<QThread> asker(QThread::create([&] {
      LogindSession session(QDBusConnection::connectToBus(address, "asker"));
      for (const SessionEnd end : {SessionEnd::kLogOff, SessionEnd::kShutdown, SessionEnd::kReboot,
                                   SessionEnd::kPowerOff}) {
        session.End(end);
      }
      manager.refuse = true;
      session.End(SessionEnd::kReboot);
    }));
    asker->start();
    EXPECT_TRUE(Becomes([&] { return asker->isFinished(); }));
    asker->wait();
  }
  const QString manager_name = "org.freedesktop.login1.Manager.";
  EXPECT_EQ(manager.asked,
            (QStringList{manager_name + "TerminateSession(c7)", manager_name + "PowerOff(false)",
                         manager_name + "Reboot(false)", manager_name + "PowerOff(false)",
                         manager_name + "Reboot(false)"}));
  QDBusConnection::disconnectFromBus("asker");
  QDBusConnection::disconnectFromBus("stand-in");
  daemon.kill();
  daemon.waitForFinished();
}

TEST(LogindSession, WithoutALoginManagerNothingHappens) {
  LogindSession session(QDBusConnection("no such bus"));
  session.End(SessionEnd::kPowerOff);
  EXPECT_FALSE(QDBusConnection("no such bus").isConnected());
}

}  // namespace
}  // namespace sonotik

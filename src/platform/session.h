// The session that the program runs in, and the machine under it.
#ifndef SONOTIK_PLATFORM_SESSION_H_
#define SONOTIK_PLATFORM_SESSION_H_

namespace sonotik {

// Each of them closes what runs without asking it.
enum class SessionEnd { kLogOff, kShutdown, kReboot, kPowerOff };

class Session {
 public:
  virtual ~Session() = default;
  // Asks for an end and returns; a refusal is not reported, since nobody here would look at it.
  virtual void End(SessionEnd how) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_SESSION_H_

// The ports together: all that the system asks of a machine. desktop/ fills it with adapters, a
// test with stand-ins that it moves by hand.
#ifndef SONOTIK_PLATFORM_MACHINE_H_
#define SONOTIK_PLATFORM_MACHINE_H_

#include "platform/clock.h"
#include "platform/coin_intake.h"
#include "platform/displays.h"
#include "platform/event_loop.h"
#include "platform/key_state.h"
#include "platform/message_box.h"
#include "platform/mixer.h"
#include "platform/player.h"
#include "platform/processes.h"
#include "platform/random_source.h"
#include "platform/serial_port.h"
#include "platform/session.h"
#include "platform/timers.h"
#include "platform/visualiser.h"

namespace sonotik {

struct Machine {
  Clock& clock;
  RandomSource& random;
  EventLoop& events;
  Timers& timers;
  KeyState& keys;
  Player& player;
  Displays& displays;
  Processes& processes;
  MessageBox& messages;
  CoinIntake& coins;
  Session& session;
  SerialPort& sign_port;
  Mixer& mixer;
  Visualiser& visualiser;
};

}  // namespace sonotik

#endif  // SONOTIK_PLATFORM_MACHINE_H_

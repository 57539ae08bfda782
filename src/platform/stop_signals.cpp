#include "platform/stop_signals.h"

#include <csignal>

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace coilrun {

StopSignals::StopSignals() {
  sigset_t requests;
  sigemptyset(&requests);
  for (const int request : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&requests, request);
  signals_ = FileHandle(signalfd(-1, &requests, SFD_NONBLOCK | SFD_CLOEXEC));
  if (signals_.IsOpen()) pthread_sigmask(SIG_BLOCK, &requests, nullptr);
}

bool StopSignals::Arrived() {
  signalfd_siginfo request{};
  if (read(signals_.Descriptor(), &request, sizeof request) > 0) arrived_ = true;
  return arrived_;
}

void StoppableKeys::Gather(WindowListener& listener) {
  if (signals_.Arrived()) listener.OnWindowEvent(WindowEvent::kClose);
  keys_.Gather(listener);
}

}  // namespace coilrun

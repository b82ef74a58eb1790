#include "console/dialogue/prompt_signals.h"

#include <algorithm>
#include <atomic>
#include <cerrno>

#include <poll.h>

namespace console {
namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): all that a signal handler can reach
std::array<std::atomic<bool>, NSIG> came;

std::atomic<bool>& came_of(int number) { return came[static_cast<std::size_t>(number)]; }

}  // namespace

void PromptSignals::note(int number) { came_of(number) = true; }

void PromptSignals::catch_signal(std::size_t index) {
  sigaction(kHeld[index], nullptr, &usual_[index]);
  if (usual_[index].sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = &PromptSignals::note;
  sigaction(kHeld[index], &action, nullptr);
}

PromptSignals::PromptSignals() {
  sigset_t held;
  sigemptyset(&held);
  for (const int number : kHeld) sigaddset(&held, number);
  pthread_sigmask(SIG_BLOCK, &held, &before_);
  for (std::size_t i = 0; i < kHeld.size(); ++i) catch_signal(i);
}

PromptSignals::~PromptSignals() {
  for (std::size_t i = 0; i < kHeld.size(); ++i) sigaction(kHeld[i], &usual_[i], nullptr);
  for (const int number : kHeld)
    if (came_of(number).exchange(false)) raise(number);  // with the key that ended the line
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

int PromptSignals::wait(int descriptor) const {
  while (true) {
    for (const int number : kHeld)
      if (came_of(number).exchange(false)) return number;
    pollfd input{descriptor, POLLIN, 0};
    if (ppoll(&input, 1, nullptr, &before_) >= 0 || errno != EINTR) return 0;
  }
}

void PromptSignals::let_through(int number) {
  const auto index = static_cast<std::size_t>(std::find(kHeld.begin(), kHeld.end(), number) - kHeld.begin());
  sigset_t passing;
  sigemptyset(&passing);
  sigaddset(&passing, number);
  sigaddset(&passing, SIGCONT);  // the end of a stop is no news then
  sigaction(number, &usual_[index], nullptr);
  raise(number);
  pthread_sigmask(SIG_UNBLOCK, &passing, nullptr);
  pthread_sigmask(SIG_BLOCK, &passing, nullptr);
  catch_signal(index);
  came_of(SIGCONT) = false;
}

}  // namespace console

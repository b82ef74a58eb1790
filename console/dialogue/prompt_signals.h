// Signals while a line is typed at the terminal: they wait until the reader does, and are then told to it one by one.
#pragma once

#include <array>

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is not in <csignal>

namespace console {

/// Holds back what stops, ends or resizes the program for as long as it lives; what is ignored stays so. One at a time.
class PromptSignals {
 public:
  PromptSignals();
  PromptSignals(const PromptSignals&) = delete;
  PromptSignals& operator=(const PromptSignals&) = delete;
  ~PromptSignals();

  /// Waits until `descriptor` can be read, which is 0, or a signal came, which is its number; the ending ones first.
  [[nodiscard]] int wait(int descriptor) const;

  /// Lets the signal do what it would have done without this. Returns when that did not end the program: when it goes
  /// on after a stop.
  void let_through(int number);

 private:
  static constexpr std::array kHeld = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP, SIGCONT, SIGWINCH};

  static void note(int number);
  void catch_signal(std::size_t index);

  std::array<struct sigaction, kHeld.size()> usual_{};
  sigset_t before_{};
};

}  // namespace console

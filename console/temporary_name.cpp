#include "console/temporary_name.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <random>
#include <string_view>

#include <unistd.h>

#include "console/file_failure.h"

namespace console {
namespace {

constexpr std::size_t kMostFiles = 8;  // at once; a drawing, its backup, a prepared file and its log are four
constexpr int kMostTries = 100;
constexpr std::array kHarmless = {SIGCHLD, SIGCONT, SIGURG, SIGWINCH, SIGTSTP, SIGTTIN, SIGTTOU};

// A handler may touch nothing but plain memory. A name is written before `used` says so.
struct Slot {
  std::atomic<bool> used = false;
  std::array<char, 4096> name{};  // as long as any path that the system takes
};

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): all that a signal handler can reach
std::array<Slot, kMostFiles> slots;
std::array<struct sigaction, NSIG> usual_actions{};
std::size_t slots_used = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

extern "C" void remove_and_end(int signal_number) {
  for (const Slot& slot : slots)
    if (slot.used) unlink(slot.name.data());
  sigaction(signal_number, &usual_actions[static_cast<std::size_t>(signal_number)], nullptr);
  raise(signal_number);
}

template <class Visit>
void for_each_ending_signal(Visit visit) {
  for (int number = 1; number < NSIG; ++number)
    if (std::find(kHarmless.begin(), kHarmless.end(), number) == kHarmless.end())
      visit(number, usual_actions[static_cast<std::size_t>(number)]);
}

// What the system refuses to have caught stays as it is.
void catch_signals() {
  for_each_ending_signal([](int number, struct sigaction& usual) {
    if (sigaction(number, nullptr, &usual) != 0 || usual.sa_handler == SIG_IGN) return;
    struct sigaction action {};
    action.sa_handler = remove_and_end;
    sigfillset(&action.sa_mask);
    sigaction(number, &action, nullptr);
  });
}

void leave_signals() {
  for_each_ending_signal([](int number, const struct sigaction& usual) { sigaction(number, &usual, nullptr); });
}

// Where there is no room for the name the file has no guard: kMostFiles.
std::size_t guard(const std::string& name) {
  const auto free = std::find_if(slots.begin(), slots.end(), [](const Slot& slot) { return !slot.used; });
  if (free == slots.end() || name.size() >= free->name.size()) return kMostFiles;
  std::memcpy(free->name.data(), name.c_str(), name.size() + 1);
  free->used = true;
  if (slots_used++ == 0) catch_signals();
  return static_cast<std::size_t>(free - slots.begin());
}

void end_guard(std::size_t slot) {
  if (slot == kMostFiles) return;
  slots[slot].used = false;
  if (--slots_used == 0) leave_signals();
}

std::string random_name(const std::filesystem::path& folder) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  constexpr int kLength = 6;
  std::random_device random;
  std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
  std::string name = ".vexo-xyz-";
  for (int i = 0; i < kLength; ++i) name += kLetters[letter(random)];
  return (folder.empty() ? std::filesystem::path(name) : folder / name).string();
}

}  // namespace

SignalsHeld::SignalsHeld() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before_);
}

SignalsHeld::~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

TemporaryName::TemporaryName(const std::filesystem::path& folder, const std::function<bool(const char*)>& make) {
  const SignalsHeld held;  // none may come between the file and its guard
  for (int i = 0; i < kMostTries; ++i) {
    name_ = random_name(folder);
    if (make(name_.c_str())) {
      slot_ = guard(name_);
      return;
    }
    if (errno != EEXIST) break;
  }
  throw FileFailure(FileStep::create, errno);
}

TemporaryName::~TemporaryName() {
  unlink(name_.c_str());
  end_guard(slot_);
}

}  // namespace console

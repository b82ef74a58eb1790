#include "console/progress.h"

#include <algorithm>
#include <functional>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "console/dialogue/shown_text.h"
#include "console/temporary_name.h"

namespace console {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kPatience = std::chrono::seconds(1);  // what is done before needs no line
constexpr auto kInterval = std::chrono::milliseconds(100);
constexpr std::size_t kBar = 30;  // character cells

// Signals are for the thread that works. Where the system gives no other, nothing is drawn.
std::thread started(std::function<void()> work) {
  const SignalsHeld held;
  try {
    return std::thread(std::move(work));
  } catch (const std::system_error&) {
    return {};
  }
}

void write_to(int terminal, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(terminal, text.data(), text.size());
    if (written <= 0) return;  // a line less
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

Progress::Progress(int descriptor) : descriptor_(descriptor), drawer_(started([this] { draw_while_working(); })) {}

Progress::~Progress() {
  {
    const std::lock_guard lock(mutex_);
    clear();
    ends_ = true;
  }
  changed_.notify_one();
  if (drawer_.joinable()) drawer_.join();
}

void Progress::go_on(std::string name, Measure measure, std::uint64_t total) {
  const std::lock_guard lock(mutex_);
  if (!std::exchange(works_, true)) since_ = Clock::now();
  name_ = std::move(name);
  measure_ = measure;
  total_ = total;
  done(0);
  changed_.notify_one();
}

void Progress::stop() {
  const std::lock_guard lock(mutex_);
  works_ = false;
  clear();
}

void Progress::draw_while_working() {
  std::unique_lock lock(mutex_);
  while (!ends_) {
    if (works_) {
      changed_.wait_for(lock, kInterval);
    } else {
      changed_.wait(lock);
    }
    if (works_ && !ends_ && Clock::now() - since_ >= kPatience) draw();
  }
}

std::string Progress::line() const {
  const std::uint64_t done = done_.load(std::memory_order_relaxed);
  if (measure_ == Measure::bytes) return name_ + ": " + std::to_string(done / 1'000'000) + " MB";
  if (measure_ == Measure::seconds || total_ == 0) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - since_);
    return name_ + ": " + std::to_string(seconds.count()) + " s";
  }
  const auto share = static_cast<std::size_t>(std::min(done, total_) * 100 / total_);
  const std::size_t full = share * kBar / 100;
  return name_ + ": [" + std::string(full, '#') + std::string(kBar - full, '.') + "] " + std::to_string(share) + " %";
}

void Progress::draw() {
  const pid_t owner = tcgetpgrp(descriptor_);
  if (owner >= 0 && owner != getpgrp()) return;  // the terminal is another's now
  std::string drawn = line();
  const std::size_t cells = cells_of(drawn);
  if (cells >= terminal_width(descriptor_)) return;  // it would not stay one line
  if (drawn_ > cells) drawn.append(drawn_ - cells, ' ');
  write_to(descriptor_, "\r" + drawn);
  drawn_ = cells;
}

void Progress::clear() {
  if (drawn_ > 0) write_to(descriptor_, "\r" + std::string(drawn_, ' ') + "\r");
  drawn_ = 0;
}

Progress::Pause::Pause(Progress* progress) : progress_(progress) {
  if (progress_ == nullptr) return;
  held_ = std::unique_lock(progress_->mutex_);
  began_ = Clock::now();
  progress_->clear();
}

Progress::Pause::~Pause() {
  if (progress_ != nullptr) progress_->since_ += Clock::now() - began_;
}

}  // namespace console

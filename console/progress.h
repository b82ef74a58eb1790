// How far the work has come: one line on the terminal, once the work has lasted a second.
//
// A thread of its own draws the line; who works only leaves a number for it now and then. Whatever else writes to the
// terminal does so within a `Pause`. The thread is there for as long as the object: no process may be forked meanwhile.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "console/byte_sink.h"
#include "console/dialogue/line_source.h"

namespace console {

class Progress {
 public:
  /// What there is to show: seconds gone, the share of a total, bytes written.
  enum class Measure { seconds, share, bytes };

  /// Draws on the terminal at `descriptor`; not at all where the system gives no thread.
  explicit Progress(int descriptor);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// Work goes on under that name; `total` is of a share.
  void go_on(std::string name, Measure measure, std::uint64_t total = 0);

  /// Nothing is worked at any more; the line is gone.
  void stop();

  /// How much is done of it. Cheap enough for every few thousand steps.
  void done(std::uint64_t steps) { done_.store(steps, std::memory_order_relaxed); }

  /// While it lives work of that name goes on. Does nothing without a progress.
  class Work {
   public:
    Work(Progress* progress, std::string name, Measure measure) : progress_(progress) {
      if (progress_ != nullptr) progress_->go_on(std::move(name), measure);
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() {
      if (progress_ != nullptr) progress_->stop();
    }

   private:
    Progress* progress_;
  };

  /// While it lives the line is gone and its time stands still. Does nothing without a progress.
  class Pause {
   public:
    explicit Pause(Progress* progress);
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause();

   private:
    Progress* progress_;
    std::unique_lock<std::mutex> held_;
    std::chrono::steady_clock::time_point began_;
  };

 private:
  void draw_while_working();
  void draw();
  void clear();
  [[nodiscard]] std::string line() const;

  int descriptor_;
  std::atomic<std::uint64_t> done_ = 0;
  std::mutex mutex_;  // of all that follows, and of the terminal
  std::condition_variable changed_;
  bool ends_ = false;
  bool works_ = false;
  std::string name_;
  Measure measure_ = Measure::seconds;
  std::uint64_t total_ = 0;
  std::chrono::steady_clock::time_point since_;
  std::size_t drawn_ = 0;  // character cells
  std::thread drawer_;     // last, for it uses the rest
};

/// Lines asked for within pauses.
class PausedLines final : public LineSource {
 public:
  PausedLines(LineSource& lines, Progress* progress) : lines_(lines), progress_(progress) {}
  std::optional<std::string> read_line(std::string_view prompt, Completion completion) override {
    const Progress::Pause pause(progress_);
    return lines_.read_line(prompt, completion);
  }
  [[nodiscard]] bool at_end() const override { return lines_.at_end(); }

 private:
  LineSource& lines_;
  Progress* progress_;
};

/// Bytes counted on their way.
class CountedBytes final : public ByteSink {
 public:
  CountedBytes(ByteSink& sink, Progress* progress) : sink_(sink), progress_(progress) {}
  void write(std::string_view bytes) override {
    sink_.write(bytes);
    written_ += bytes.size();
    if (progress_ != nullptr) progress_->done(written_);
  }

 private:
  ByteSink& sink_;
  Progress* progress_;
  std::uint64_t written_ = 0;
};

}  // namespace console

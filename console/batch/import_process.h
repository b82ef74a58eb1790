// A file imported by a process of its own, and what that leaves to the one that started it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/types.h>

#include "console/dxf/tag_writer.h"
#include "console/existing_drawing.h"
#include "console/exit_code.h"
#include "console/report/findings.h"
#include "console/session.h"

namespace console {

/// A file in memory, which a process leaves to the one that started it. Fails with std::system_error.
class MemoryFile final : public ByteSink {
 public:
  MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() override;

  void write(std::string_view bytes) override;
  [[nodiscard]] std::string content() const;

 private:
  int descriptor_;
};

/// A file's import by a process of its own.
struct ImportProcess {
  std::string file;
  pid_t process = 0;  ///< 0 before it is started
  bool has_ended = false;
  ExitCode code = kFailure;
  std::string words;   ///< what the import said
  std::string report;  ///< as JSON; empty where there is none
  Reason reason;       ///< for there being none
  struct Output {
    MemoryFile words;
    MemoryFile report;
    MemoryFile drawing;  // the one that all go into, with this file's points
  };
  std::unique_ptr<Output> output;  // while it runs: descriptors are few

  void fail(Reason why) {
    code = kFailure;
    report.clear();
    reason = std::move(why);
  }
};

/// Starts the import of `one`, one of `all`. Whether the system gave a process; else `one` has the reason.
bool start(std::vector<ImportProcess>& all, ImportProcess& one, const SessionOptions& options);

/// Waits for one to end and takes over what it left: what it added to `existing`, if there is a drawing that all go
/// into, is the ground for the next. Whether one of `all` has ended.
bool wait_for_one(std::vector<ImportProcess>& all, ExistingDrawing* existing);

}  // namespace console

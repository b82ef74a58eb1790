// What came of several files: told one after the other, a table at the end, the reports as one list.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "console/batch/import_process.h"
#include "console/exit_code.h"

namespace console {

class Summary {
 public:
  /// `reports`, which may be none, gets the list in JSON at the end. The module must be entered.
  Summary(std::ostream& out, std::ostream* reports);

  /// What came of the next file.
  void add(const ImportProcess& process);

  /// Of a file that nothing was tried with.
  void add_failed(const std::string& file);

  [[nodiscard]] long long imported() const { return files_; }

  /// What was to be saved for all was not.
  void nothing_was_saved();

  /// Prints the table and the reports. The worst of the files' exit codes; kFailure where the reports got lost.
  [[nodiscard]] ExitCode end();

 private:
  std::ostream& out_;
  std::ostream* reports_;
  std::vector<std::string> told_;               // in JSON
  std::vector<std::vector<std::string>> rows_;  // of the table, its head first
  long long files_ = 0;                         // imported
  long long points_ = 0;
  ExitCode worst_ = kImported;
};

}  // namespace console

// `vexo-xyz prepare`: a foreign table of points made into the file that the importer reads without a question. What the
// file tells is taken, what it does not is asked, nothing is guessed.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

#include "console/dialogue/line_source.h"
#include "console/exit_code.h"
#include "console/sibling_registry.h"
#include "intake/prepared_file.h"

namespace console {

struct PrepareOptions {
  std::string file;
  std::optional<std::filesystem::path> output;  ///< without it a free name beside the file
  std::optional<std::string> columns;           ///< roles by position or by name
  std::optional<std::string> sheet;             ///< of a workbook; without it the one that a person sees first
  intake::MissingHeight missing_height = intake::MissingHeight::skip;
  bool force = false;           ///< an existing output may be replaced
  bool shows_progress = false;  ///< standard output is a terminal, and long work is shown there
};

struct PrepareResult {
  ExitCode code = kFailure;         ///< kImported when a file was written
  std::filesystem::path output;     ///< that file
  bool east_first = false;          ///< its coordinates are E and N; else X and Y in the order of the table
  intake::PreparedAccount account;  ///< what became of the table's rows
};

/// Reads, asks on `lines` where it must, writes the file and beside it its log (its name with ".log"). The user has
/// been told everything. The module must be entered.
[[nodiscard]] PrepareResult prepare(const PrepareOptions& options, LineSource& lines);

/// The same with the texts of the user's choice, for a run of its own.
[[nodiscard]] ExitCode run_prepare(const PrepareOptions& options, const Choice& choice, LineSource& lines,
                                   std::ostream& out);

}  // namespace console

#include "console/prepare.h"

#include <system_error>
#include <vector>

#include <unistd.h>

#include "console/dialogue/dialogue.h"
#include "console/dialogue/shown_text.h"
#include "console/drawing/database.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "console/prepare_columns.h"
#include "console/prepare_log.h"
#include "console/report/reasons.h"
#include "console/shell_word.h"
#include "console/speaking.h"
#include "console/texts/say.h"
#include "intake/foreign_table.h"
#include "intake/seen_table.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"

namespace console {
namespace {

using intake::NotedRow;
using intake::PreparedAccount;
using intake::Roles;
using intake::RowNote;
using vexo_xyz_impl::print;

constexpr int kMostNames = 10000;  // prepared files of one name in one folder
constexpr std::string_view kLogEnding = ".log";
constexpr std::size_t kLinesNamed = 5;  // of each kind of rows left out

std::filesystem::path log_of(std::filesystem::path output) { return output += kLogEnding; }

std::filesystem::path free_name(const std::filesystem::path& file) {
  std::error_code ignored;
  for (int number = 1; number < kMostNames; ++number) {
    const std::string suffix = number == 1 ? "_prepared.csv" : "_prepared_" + std::to_string(number) + ".csv";
    std::filesystem::path name = named_after(file, suffix, kLogEnding.size());
    if (!std::filesystem::exists(name, ignored) && !std::filesystem::exists(log_of(name), ignored)) return name;
  }
  throw std::system_error(EEXIST, std::generic_category(), "finding a free name");
}

PrepareResult refused(ExitCode code) {
  PrepareResult result;
  result.code = code;
  return result;
}

class Preparation {
 public:
  Preparation(const PrepareOptions& options, LineSource& lines) : options_(options), lines_(lines) {}

  PrepareResult run() {
    if (output_is_refused()) return refused(kFailure);
    const std::filesystem::path folder = std::filesystem::path(options_.file).parent_path();
    if (const auto failure = options_.output ? refusal_of(*options_.output) : refusal_in(folder))
      return cannot_write(options_.output ? *options_.output : free_name(options_.file), *failure);
    const intake::FileKind kind = intake::file_kind(options_.file);
    table_ = intake::open_table(options_.file, kind, options_.sheet);
    if (!table_) {
      const std::string_view code = kind_code(kind);
      say("konsola.powod", {reason_named(code.empty() ? "unreadable" : code).text});
      return refused(kind == intake::FileKind::unreadable || code.empty() ? kFailure : kNothingImported);
    }
    if (!sheet_is_there()) return refused(options_.sheet ? kUsage : kNothingImported);
    const auto by_position = options_.columns ? intake::roles_of(*options_.columns) : std::nullopt;
    const intake::SeenTable seen(*table_, by_position ? &*by_position : nullptr);
    const ChosenColumns columns = choose_columns(seen, options_.columns, lines_);
    if (!columns.roles) return refused(columns.code);
    return written(seen, *columns.roles);
  }

 private:
  // Of a workbook the sheet is told where there are several.
  bool sheet_is_there() {
    std::string all;
    for (const std::string& sheet : table_->sheets) all += (all.empty() ? "" : ", ") + sheet;
    if (table_->records == nullptr) {
      say("konsola.prep_bez_arkusza", {all});
      return false;
    }
    if (table_->sheets.size() > 1) say("konsola.prep_arkusz", {table_->sheet, all});
    return true;
  }

  bool output_is_refused() {
    if (!options_.output) return false;
    std::error_code ignored;
    for (const auto& path : {*options_.output, log_of(*options_.output)}) {
      const char* key = nullptr;
      const auto status = std::filesystem::status(path, ignored);
      if (std::filesystem::equivalent(path, options_.file, ignored)) {
        key = "konsola.prep_zrodlo";
      } else if (std::filesystem::exists(status) && (!options_.force || !std::filesystem::is_regular_file(status))) {
        key = "konsola.plik_istnieje";
      }
      if (key == nullptr) continue;
      say(key, {path.string()});
      return true;
    }
    return false;
  }

  static PrepareResult cannot_write(const std::filesystem::path& path, const std::system_error& failure) {
    const std::string reason = failure_text(failure);
    say("konsola.prep_blad_zapisu", {path.string(), reason});
    vexo_xyz_impl::notify_failure(vexo_xyz_impl::OSError(shown_text(path.string()) + ": " + reason));
    return refused(kFailure);
  }

  PrepareResult written(const intake::SeenTable& seen, const Roles& roles) {
    std::filesystem::path writing = options_.file;  // for the message of a failure
    try {
      const std::filesystem::path output = writing = options_.output ? *options_.output : free_name(options_.file);
      AtomicFile file(final_target(output).parent_path());
      const PreparedAccount account = intake::write_prepared(seen.records(), seen.form(roles, options_.missing_height),
                                                             [&file](std::string_view piece) { file.write(piece); });
      if (account.points == 0) {
        tell(account);
        say("konsola.prep_bez_punktow");
        return refused(kNothingImported);
      }
      file.flush();
      if (options_.force) {
        file.replace(output);
      } else if (!file.take_free(output)) {
        say("konsola.plik_istnieje", {output.string()});
        return refused(kFailure);
      }
      const std::string name = output.string();
      print("konsola.prep_zapisano", {std::string_view(name), static_cast<long long>(account.points)});
      tell(account);
      writing = log_of(output);
      write_log(output, account);
      say("konsola.prep_powtorz", {repeating(roles, output)});
      return {kImported, output, intake::has_role(roles, intake::Role::easting), account};
    } catch (const std::system_error& failure) {
      return cannot_write(writing, failure);
    }
  }

  // Each kind of note with the first lines it is of.
  static void tell(const PreparedAccount& account) {
    for (int kind = 0; kind <= static_cast<int>(RowNote::hidden); ++kind) {
      const auto note = static_cast<RowNote>(kind);
      std::size_t count = 0;
      std::string lines;
      for (const NotedRow& row : account.noted) {
        if (row.note != note) continue;
        if (++count <= kLinesNamed) lines += (lines.empty() ? "" : ", ") + std::to_string(row.line);
      }
      if (count == 0) continue;
      if (count > kLinesNamed) lines += " ...";
      const std::string what = note_text(note);
      const std::string_view key = note == RowNote::hidden     ? "konsola.prep_ukryte"
                                   : intake::is_left_out(note) ? "konsola.prep_pominieto"
                                                               : "konsola.prep_zmieniono";
      print(key, {static_cast<long long>(count), std::string_view(what), std::string_view(lines)});
      if (note == RowNote::no_height) say("konsola.prep_bez_wysokosci_rada");
    }
  }

  void write_log(const std::filesystem::path& output, const PreparedAccount& account) {
    const std::filesystem::path path = log_of(output);
    AtomicFile log(final_target(path).parent_path());
    log.write(prepare_log(options_.file, output.string(), *table_, account));
    log.flush();
    if (options_.force) {
      log.replace(path);
    } else if (!log.take_free(path)) {
      throw std::system_error(EEXIST, std::generic_category(), "renaming");
    }
    say("konsola.prep_dziennik", {path.string()});
  }

  [[nodiscard]] std::string repeating(const Roles& roles, const std::filesystem::path& output) const {
    std::string command = "vexo-xyz prepare " + shell_word(options_.file) + " -o " + shell_word(output.string()) +
                          " --columns " + intake::spelled(roles);
    if (options_.sheet || table_->sheets.size() > 1) command += " --sheet " + shell_word(table_->sheet);
    if (options_.missing_height == intake::MissingHeight::zero) command += " --missing-height zero";
    return command;
  }

  const PrepareOptions& options_;
  LineSource& lines_;
  std::optional<intake::ForeignTable> table_;
};

}  // namespace

PrepareResult prepare(const PrepareOptions& options, LineSource& lines) {
  try {
    return Preparation(options, lines).run();
  } catch (const vexo_xyz_impl::Failure& failure) {
    say("konsola.prep_blad_odczytu", {failure.kind(), failure.what()});
    vexo_xyz_impl::notify_failure(failure);
    return refused(kFailure);
  }
}

ExitCode run_prepare(const PrepareOptions& options, const Choice& choice, LineSource& lines, std::ostream& out) {
  const auto progress = options.shows_progress ? std::make_unique<Progress>(STDOUT_FILENO) : nullptr;
  PausedLines paused(lines, progress.get());
  const Speaking speaking(choice, paused, out, progress.get());
  if (progress) progress->go_on(vexo_xyz_impl::T("konsola.postep_czytanie"), Progress::Measure::seconds);
  return prepare(options, paused).code;
}

}  // namespace console

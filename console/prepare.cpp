#include "console/prepare.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <system_error>
#include <utility>
#include <vector>

#include "console/dialogue/shown_text.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "console/prepare_log.h"
#include "console/report/reasons.h"
#include "intake/columns.h"
#include "intake/foreign_table.h"
#include "intake/pair_records.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using intake::Decision;
using intake::Ground;
using intake::NotedRow;
using intake::PreparedAccount;
using intake::Role;
using intake::Roles;
using intake::RowNote;
using intake::TableShape;
using intake::Verdict;
using vexo_xyz_impl::filled;
using vexo_xyz_impl::T;
using vexo_xyz_impl::TemplateValue;

constexpr int kMostNames = 10000;        // prepared files of one name in one folder
constexpr std::size_t kLinesNamed = 5;   // of each kind of rows left out
constexpr std::size_t kCellsShown = 12;  // of a row in a question

std::filesystem::path log_of(std::filesystem::path output) { return output += ".log"; }

std::filesystem::path free_name(const std::filesystem::path& file) {
  std::error_code ignored;
  for (int number = 1; number < kMostNames; ++number) {
    const std::string suffix = number == 1 ? "_prepared.csv" : "_prepared_" + std::to_string(number) + ".csv";
    std::filesystem::path name = file.parent_path() / (file.stem().string() + suffix);
    if (!std::filesystem::exists(name, ignored) && !std::filesystem::exists(log_of(name), ignored)) return name;
  }
  throw std::system_error(EEXIST, std::generic_category(), "finding a free name");
}

// As a shell takes it for one word.
std::string quoted(const std::string& word) {
  constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-./,=:+@%";
  if (!word.empty() && word.find_first_not_of(kPlain) == std::string::npos) return word;
  std::string in_quotes = "'";
  for (const char c : word) in_quotes += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return in_quotes + "'";
}

std::string_view ground_key(Ground ground) {
  switch (ground) {
    case Ground::names:
      return "konsola.prep_z_nazw";
    case Ground::projection_line:
      return "konsola.prep_z_ukladu";
    case Ground::labels:
      return "konsola.prep_z_etykiet";
    case Ground::numbering:
      return "konsola.prep_z_numeracji";
    case Ground::order:
      break;
  }
  return "konsola.prep_z_kolejnosci";
}

class Preparation {
 public:
  Preparation(const PrepareOptions& options, LineSource& lines, std::ostream& out)
      : options_(options), lines_(lines), out_(out) {}

  PrepareResult run() {
    if (output_is_refused()) return {kFailure, {}};
    const intake::FileKind kind = intake::file_kind(options_.file);
    table_ = intake::open_table(options_.file, kind, options_.sheet);
    if (!table_) {
      const std::string_view code = kind_code(kind);
      say("konsola.powod", {T("konsola.powod_" + std::string(code.empty() ? "unreadable" : code))});
      return {kind == intake::FileKind::unreadable || code.empty() ? kFailure : kNothingImported, {}};
    }
    if (!sheet_is_there()) return {code_, {}};
    const auto roles = decided_roles();
    if (!roles) return {code_, {}};
    return written(*roles);
  }

 private:
  void say(std::string_view key, const std::vector<std::string>& values = {}) {
    print(filled(key, {values.begin(), values.end()}));
  }
  void print(std::string_view text) { out_ << shown_text(text) << std::flush; }

  // Of a workbook the sheet is told where there are several.
  bool sheet_is_there() {
    std::string all;
    for (const std::string& sheet : table_->sheets) all += (all.empty() ? "" : ", ") + sheet;
    if (table_->records == nullptr) {
      say("konsola.prep_bez_arkusza", {all});
      code_ = options_.sheet ? kUsage : kNothingImported;
      return false;
    }
    if (table_->sheets.size() > 1) say("konsola.prep_arkusz", {table_->sheet, all});
    return true;
  }

  std::optional<Roles> refused(ExitCode code) {
    code_ = code;
    return std::nullopt;
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

  // The records with the column that holds both coordinates as two.
  void see_shape(const Roles* roles) {
    records_ = table_->records.get();
    shape_ = intake::shape_of(*records_, table_->comments);
    const auto both = intake::pair_column(shape_, roles);
    if (!both) return;
    parted_.emplace(*records_, *both);
    records_ = &*parted_;
    shape_ = intake::shape_of(*records_, table_->comments);
  }

  std::optional<Roles> decided_roles() {
    if (options_.columns) return given_roles();
    see_shape(nullptr);
    const Decision decision = intake::decide(shape_);
    switch (decision.verdict) {
      case Verdict::clear:
        say("konsola.prep_kolumny",
            {told(decision.proposals.front().roles), T(ground_key(decision.proposals.front().ground))});
        return decision.proposals.front().roles;
      case Verdict::maybe_degrees:
        say("konsola.prep_moze_stopnie");
        return chosen(decision);
      case Verdict::unclear:
        return chosen(decision);
      case Verdict::degrees:
        say("konsola.prep_stopnie");
        break;
      case Verdict::sexagesimal:
        say("konsola.powod", {T("konsola.powod_dms")});
        break;
      case Verdict::no_coordinates:
        say("konsola.prep_bez_wspolrzednych");
        break;
    }
    return refused(kNothingImported);
  }

  std::optional<Roles> given_roles() {
    const auto by_position = intake::roles_of(*options_.columns);
    see_shape(by_position ? &*by_position : nullptr);
    auto roles = intake::roles_for(shape_, *options_.columns);
    if (!roles) {
      std::string names;
      for (std::size_t i = 0; i < shape_.width; ++i) {
        names += (i == 0 ? "" : ", ") + std::to_string(i + 1);
        if (!shape_.names[i].empty()) names += " " + shape_.names[i];
      }
      say("konsola.prep_zle_kolumny", {*options_.columns, names});
      return refused(kUsage);
    }
    return are_degrees(*roles) ? refused(kNothingImported) : roles;
  }

  bool are_degrees(const Roles& roles) {
    const Verdict verdict = intake::judged(shape_, roles);
    if (verdict == Verdict::maybe_degrees) say("konsola.prep_moze_stopnie");
    if (verdict == Verdict::clear || verdict == Verdict::maybe_degrees) return false;
    if (verdict == Verdict::sexagesimal) {
      say("konsola.powod", {T("konsola.powod_dms")});
    } else {
      say("konsola.prep_stopnie");
    }
    return true;
  }

  // "nr = POINT, n = NORTH", or the roles alone where there are no names.
  [[nodiscard]] std::string told(const Roles& roles) const {
    std::string all;
    for (std::size_t i = 0; i < roles.size(); ++i) {
      if (roles[i] == Role::other) continue;
      all += (all.empty() ? "" : ", ") + intake::spelled({roles[i]}) + " = ";
      all += i < shape_.names.size() && !shape_.names[i].empty() ? shape_.names[i] : std::to_string(i + 1);
    }
    return all;
  }

  std::optional<Roles> chosen(const Decision& decision) {
    say("konsola.prep_pytanie");
    if (shape_.header_line != 0) print(row_text(shape_.names));
    for (const auto& row : shape_.preview) print(row_text(row));
    say("konsola.prep_mozliwe");
    for (std::size_t i = 0; i < decision.proposals.size(); ++i) {
      const Roles& roles = decision.proposals[i].roles;
      print("  " + std::to_string(i + 1) + ": " + intake::spelled(roles) + "  (" + told(roles) + ")\n");
    }
    while (const auto typed = lines_.read_line(without_control_characters(T("konsola.prep_wybor")), Completion::none)) {
      const std::string answer(vexo_xyz_impl::text::trim(*typed));
      const auto roles = meant(decision, answer);
      if (roles) return are_degrees(*roles) ? refused(kNothingImported) : roles;
      say("konsola.prep_zly_wybor", {answer});
      if (lines_.at_end()) break;
    }
    say("konsola.prep_bez_wyboru", {"--columns " + intake::spelled(decision.proposals.front().roles)});
    return refused(kNothingImported);
  }

  [[nodiscard]] std::optional<Roles> meant(const Decision& decision, const std::string& answer) const {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(answer.data(), answer.data() + answer.size(), number);
    if (error == std::errc() && end == answer.data() + answer.size()) {
      const bool is_listed = number >= 1 && number <= decision.proposals.size();
      return is_listed ? std::optional(decision.proposals[number - 1].roles) : std::nullopt;
    }
    return intake::roles_for(shape_, answer);
  }

  static std::string row_text(const std::vector<std::string>& cells) {
    std::string text = "  ";
    for (std::size_t i = 0; i < std::min(cells.size(), kCellsShown); ++i) text += (i == 0 ? "" : " | ") + cells[i];
    return text + (cells.size() > kCellsShown ? " | ...\n" : "\n");
  }

  [[nodiscard]] intake::PreparedForm form_of(const Roles& roles) const {
    intake::PreparedForm form;
    form.roles = roles;
    form.missing_height = options_.missing_height;
    form.header_line = shape_.header_line;
    form.first_data_line = shape_.first_data_line;
    if (table_->dialect && table_->dialect->separator == ' ') {
      form.kinds = shape_.kinds;
      for (std::size_t i = 0; i < std::min(roles.size(), shape_.width); ++i)
        if (roles[i] == Role::number) form.kinds[i] = intake::CellKind::any;  // of a point: a text at any time
    }
    return form;
  }

  PrepareResult written(const Roles& roles) {
    std::filesystem::path output;
    try {
      output = options_.output ? *options_.output : free_name(options_.file);
      AtomicFile file(output.parent_path());
      const PreparedAccount account =
          intake::write_prepared(*records_, form_of(roles), [&file](std::string_view piece) { file.write(piece); });
      if (account.points == 0) {
        tell(account);
        say("konsola.prep_bez_punktow");
        return {kNothingImported, {}};
      }
      file.flush();
      if (!file.commit(output, options_.force)) {
        say("konsola.plik_istnieje", {output.string()});
        return {kFailure, {}};
      }
      say("konsola.prep_zapisano", output.string(), account.points);
      tell(account);
      write_log(output, account);
      say("konsola.prep_powtorz", {repeating(roles, output)});
      return {kImported, output};
    } catch (const std::system_error& failure) {
      say("konsola.prep_blad_zapisu", {output.string(), failure_text(failure)});
      return {kFailure, {}};
    }
  }

  void say(std::string_view key, const std::string& text, std::size_t count) {
    print(filled(key, {std::string_view(text), static_cast<long long>(count)}));
  }

  // Each kind of note with the first lines it is of.
  void tell(const PreparedAccount& account) {
    for (int kind = 0; kind <= static_cast<int>(RowNote::number_made); ++kind) {
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
      print(filled(intake::is_left_out(note) ? "konsola.prep_pominieto" : "konsola.prep_zmieniono",
                   {static_cast<long long>(count), std::string_view(what), std::string_view(lines)}));
      if (note == RowNote::no_height) say("konsola.prep_bez_wysokosci_rada");
    }
  }

  void write_log(const std::filesystem::path& output, const PreparedAccount& account) {
    const std::filesystem::path path = log_of(output);
    AtomicFile log(output.parent_path());
    log.write(prepare_log(options_.file, output.string(), *table_, account));
    log.flush();
    if (!log.commit(path, options_.force)) throw std::system_error(EEXIST, std::generic_category(), "renaming");
    say("konsola.prep_dziennik", {path.string()});
  }

  [[nodiscard]] std::string repeating(const Roles& roles, const std::filesystem::path& output) const {
    std::string command = "vexo-xyz prepare " + quoted(options_.file) + " -o " + quoted(output.string()) +
                          " --columns " + intake::spelled(roles);
    if (options_.sheet || table_->sheets.size() > 1) command += " --sheet " + quoted(table_->sheet);
    if (options_.missing_height == intake::MissingHeight::zero) command += " --missing-height zero";
    return command;
  }

  const PrepareOptions& options_;
  LineSource& lines_;
  std::ostream& out_;
  ExitCode code_ = kNothingImported;
  std::optional<intake::ForeignTable> table_;
  std::optional<intake::PairRecords> parted_;
  intake::Records* records_ = nullptr;
  TableShape shape_;
};

}  // namespace

PrepareResult prepare(const PrepareOptions& options, LineSource& lines, std::ostream& out) {
  try {
    return Preparation(options, lines, out).run();
  } catch (const vexo_xyz_impl::Failure& failure) {
    const std::string text = filled("konsola.prep_blad_odczytu", {failure.kind(), std::string_view(failure.what())});
    out << shown_text(text) << std::flush;
    return {kFailure, {}};
  }
}

ExitCode run_prepare(const PrepareOptions& options, const Choice& choice, LineSource& lines, std::ostream& out) {
  Database database;
  Dialogue dialogue(lines, out, database.drawing().variables, std::nullopt, {});
  SiblingRegistry siblings = family(database, choice);
  const vexo_xyz_impl::Entered entered({{dialogue, database, siblings}, vexo_xyz_impl::bind_siblings(siblings)});
  return prepare(options, lines, out).code;
}

}  // namespace console

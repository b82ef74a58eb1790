#include "console/session.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "console/drawing/heights.h"
#include "console/dxf/dxf_writer.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "console/prepare.h"
#include "console/prepare_log.h"
#include "console/preview/svg.h"
#include "console/report/reasons.h"
#include "console/report/report_file.h"
#include "console/texts/say.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"

namespace console {
namespace {

using vexo_xyz_impl::host::CommandOutcome;

constexpr int kMostNames = 10000;  // drawings of one name in one folder

// The code page that converters expect of a drawing in the market's language.
std::string_view code_page_of(std::string_view market) { return market == "DE" ? "ANSI_1252" : "ANSI_1250"; }

std::vector<Findings::RowNotTakenOver> rows_not_taken_over(const intake::PreparedAccount& account) {
  std::vector<Findings::RowNotTakenOver> rows;
  for (const intake::NotedRow& row : account.noted)
    if (is_left_out(row.note)) rows.push_back({row.line, note_text(row.note), row.text});
  return rows;
}

}  // namespace

Session::Session(SessionOptions options, LineSource& lines, std::ostream& out)
    : options_(std::move(options)),
      lines_(lines),
      database_(options_.wishes.group_selectable),
      dialogue_(lines, out, database_.drawing().variables, options_.file, options_.answers),
      siblings_(family(database_, options_.choice)),
      entered_({{dialogue_, database_, siblings_, nullptr, this, &watcher_}, vexo_xyz_impl::bind_siblings(siblings_)}) {
  vexo_xyz_impl::register_command(*this);
  if (options_.preview) watcher_.take_pictures();
}

void Session::command(std::string_view local_name, std::string_view /*global_name*/, std::string_view /*group_name*/,
                      vexo_xyz_impl::host::CommandFunction function) {
  if (local_name == vexo_xyz_impl::kCommandName) import_ = std::move(function);
}

// Whether the path names what points are read from, as the user chose it or as it was made of that.
bool Session::is_file_of_points(const std::filesystem::path& path) const {
  const auto is_same = [&path](const std::filesystem::path& points) {
    std::error_code ignored;
    return std::filesystem::equivalent(path, points, ignored);
  };
  return is_same(vexo_xyz_impl::clean_path(options_.file.value_or(dialogue_.path()))) || is_same(source()) ||
         is_same(dialogue_.path());
}

// Whether the drawing may not have the name asked for, the user told: an existing file is replaced only when that is
// asked for, and the file of points never.
bool Session::output_is_refused() {
  if (!options_.output) return false;
  std::error_code ignored;
  if (is_file_of_points(*options_.output)) {
    say("konsola.plik_zrodlowy", {options_.output->string()});
    return true;
  }
  const auto status = std::filesystem::status(*options_.output, ignored);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    say("konsola.blad_zapisu", {options_.output->string(), vexo_xyz_impl::T("konsola.powod_nie_plik")});
    return true;
  }
  if (!options_.force && std::filesystem::exists(status)) {
    say("konsola.plik_istnieje", {options_.output->string()});
    return true;
  }
  return false;
}

// The module takes such a market for the Polish one without a word.
void Session::warn_of_unknown_market() {
  using vexo_xyz_impl::host::load_sibling;
  const std::string market = load_sibling<vexo_xyz_impl::host::Market>(siblings_, "vexo_rynek")->rynek();
  if (!siblings_.has("vexo_xyz_dane_" + market)) say("konsola.nieznany_rynek", {market});
}

// The reason why what is written beside the drawing may not have that name, none when it may: what was written there
// before is replaced, the files of points and of the drawing never.
std::string_view Session::reason_against(const std::filesystem::path& path,
                                         bool (*may_be_replaced)(const std::filesystem::path& path)) const {
  std::error_code ignored;
  const auto is_name_of = [&path](const std::optional<std::filesystem::path>& other) {
    return other && path.lexically_normal() == other->lexically_normal();
  };
  const auto status = std::filesystem::status(path, ignored);
  if (is_file_of_points(path)) return "konsola.powod_plik_punktow";
  if (is_name_of(options_.output)) return "konsola.powod_rysunek";
  if (!std::filesystem::exists(status)) return {};
  if (!std::filesystem::is_regular_file(status)) return "konsola.powod_nie_plik";
  return may_be_replaced(path) ? "" : "konsola.powod_nie_raport";
}

bool Session::report_is_refused() {
  if (!options_.report) return false;
  const std::string_view reason = reason_against(*options_.report, is_report);
  if (!reason.empty()) say("konsola.raport_blad", {options_.report->string(), vexo_xyz_impl::T(reason)});
  return !reason.empty();
}

bool Session::preview_is_refused() {
  if (!options_.preview) return false;
  std::string_view reason = reason_against(*options_.preview, is_picture);
  if (options_.report && options_.report->lexically_normal() == options_.preview->lexically_normal())
    reason = "konsola.powod_raport";
  if (!reason.empty()) say("konsola.podglad_blad", {options_.preview->string(), vexo_xyz_impl::T(reason)});
  return !reason.empty();
}

ExitCode Session::run() {
  warn_of_unknown_market();
  if (report_is_refused() || preview_is_refused()) return kFailure;  // before any question
  const ExitCode code = output_is_refused() ? kFailure : import_and_save();
  if (code == kFailure) watcher_.drawing_failed();
  return save_report(save_preview(code));
}

CommandOutcome Session::import_once() {
  const CommandOutcome outcome = import_();
  print_findings(watcher_.findings());
  return outcome;
}

// Whether a file that gave no points is to be made into one that does; if so, it is, and stands ready to be imported.
bool Session::prepares_instead() {
  if (database_.drawing().entity_count() > 0 || !can_be_prepared(watcher_.findings().reason)) return false;
  if (!options_.prepare) {
    if (!options_.interactive) return false;
    if (!dialogue_.confirms("konsola.prompt_przygotuj")) return false;
  }
  const std::filesystem::path file = source();
  PrepareOptions options;
  options.file = file.string();
  const PrepareResult prepared = prepare(options, lines_);
  if (prepared.code != kImported) return false;
  prepared_from_ = file;
  // What was told of the axes is the file's order, which the prepared one no longer has where it knows E and N.
  if (prepared.east_first) options_.axes.reset();
  dialogue_.choose_file(prepared.output.string());
  watcher_.made_of(file.string(), rows_not_taken_over(prepared.account));
  return true;
}

// The file that the user chose, whatever it was made into.
std::filesystem::path Session::source() const {
  return prepared_from_ ? *prepared_from_ : std::filesystem::path(vexo_xyz_impl::clean_path(dialogue_.path()));
}

ExitCode Session::import_and_save() {
  CommandOutcome outcome = import_once();
  if (prepares_instead()) outcome = import_once();
  for (const std::string_view option : dialogue_.unused_options()) say("konsola.opcja_zbedna", {std::string(option)});
  if (outcome == CommandOutcome::failed) {
    if (database_.drawing().entity_count() > 0) say("konsola.nie_zapisano");
    return kFailure;
  }
  if (database_.refused_count() > 0) {
    vexo_xyz_impl::print("konsola.odrzucone", {static_cast<long long>(database_.refused_count())});
  }
  if (database_.drawing().entity_count() == 0) return kNothingImported;
  if (options_.wishes.height_decimals && watcher_.findings().layout.ends_with('Z')) {
    add_heights(database_.drawing(), *options_.wishes.height_decimals);
  }
  return save();
}

ExitCode Session::save() {
  if (output_is_refused()) return kFailure;  // a path that was typed is known only now
  const std::string wanted = options_.output ? options_.output->string() : drawing_name(source(), 1).string();
  try {
    say("konsola.zapisano", {write_drawing().string()});
    return kImported;
  } catch (const std::system_error& failure) {
    say("konsola.blad_zapisu", {wanted, failure_text(failure)});
    return kFailure;
  }
}

ExitCode Session::save_preview(ExitCode so_far) {
  if (!options_.preview || so_far != kImported) return so_far;
  if (preview_is_refused()) return kFailure;  // a path that was typed is known only now
  Picture& picture = watcher_.picture();
  picture.file = source().filename().string();
  if (!database_.drawing().groups().empty()) picture.group = database_.drawing().groups().front().name;
  try {
    write_picture(picture, *options_.preview);
    say("konsola.podglad_zapisano", {options_.preview->string()});
    return so_far;
  } catch (const std::system_error& failure) {
    say("konsola.podglad_blad", {options_.preview->string(), failure_text(failure)});
    return kFailure;
  }
}

ExitCode Session::save_report(ExitCode so_far) {
  if (!options_.report) return so_far;
  if (report_is_refused()) return kFailure;  // a path that was typed is known only now
  try {
    write_report(watcher_.findings(), *options_.report);
    say("konsola.raport_zapisano", {options_.report->string()});
    return so_far;
  } catch (const std::system_error& failure) {
    say("konsola.raport_blad", {options_.report->string(), failure_text(failure)});
    return kFailure;
  }
}

std::filesystem::path Session::write_drawing() {
  const std::filesystem::path points = source();
  AtomicFile file(options_.output ? options_.output->parent_path() : points.parent_path());
  const std::string market =
      vexo_xyz_impl::host::load_sibling<vexo_xyz_impl::host::Market>(siblings_, "vexo_rynek")->rynek();
  write_dxf(database_.drawing(), options_.wishes, code_page_of(market), file);
  file.flush();
  if (options_.output) {
    if (file.commit(*options_.output, options_.force)) return *options_.output;
    throw FileFailure(FileStep::rename, EEXIST);
  }
  for (int number = 1; number <= kMostNames; ++number) {
    std::filesystem::path name = drawing_name(points, number);
    if (file.commit(name, false)) return name;
  }
  throw FileFailure(FileStep::rename, EEXIST);
}

}  // namespace console

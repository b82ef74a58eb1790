#include "console/session.h"

#include <string_view>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "console/dialogue/shown_text.h"
#include "console/drawing/heights.h"
#include "console/prepare.h"
#include "console/prepare_log.h"
#include "console/repeat.h"
#include "console/report/reasons.h"
#include "console/texts/say.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using vexo_xyz_impl::host::CommandOutcome;

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
      progress_(options_.shows_progress ? std::make_unique<Progress>(STDOUT_FILENO) : nullptr),
      outputs_(
          {options_.output, options_.force, options_.report, options_.preview}, options_.into, options_.wishes,
          [this](const std::filesystem::path& path) { return is_file_of_points(path); }, progress_.get()),
      lines_(lines, progress_.get()),
      database_(options_.wishes.group_selectable),
      dialogue_(lines_, out, database_.drawing().variables, options_.file, options_.answers),
      siblings_(family(database_, options_.choice)),
      watcher_(options_.unattended),
      entered_({{dialogue_, database_, siblings_, nullptr, this, &watcher_}, vexo_xyz_impl::bind_siblings(siblings_)}) {
  vexo_xyz_impl::register_command(*this);
  if (options_.preview) watcher_.take_pictures();
  if (options_.existing) outputs_.share(options_.existing, *options_.existing_goes_to);
  if (options_.quiet) dialogue_.hold();
  dialogue_.pause_for_texts(progress_.get());
  watcher_.tell_points([this](std::size_t points) {
    if (!progress_) return;
    progress_->go_on(vexo_xyz_impl::T("konsola.postep_wstawianie"), Progress::Measure::share, 2 * points);
    database_.count_for(progress_.get());  // a point and its label each
  });
  dialogue_.check_typed_path([this](const std::string& path) {
    is_refused_ =
        told_failure(outputs_.refusal_beside_drawing()) || is_drawing_refused(vexo_xyz_impl::clean_path(path));
    return !is_refused_;
  });
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

// Whether there is one: then the user is told, and the log.
bool Session::told_failure(const std::optional<std::string>& text) {
  if (!text) return false;
  dialogue_.gcutPrintf(*text);
  vexo_xyz_impl::notify_failure(vexo_xyz_impl::OSError(shown_text(vexo_xyz_impl::text::trim(*text))));
  return true;
}

// Whether the drawing cannot be written, the user told. The import begins with what an existing one holds.
bool Session::is_drawing_refused(const std::filesystem::path& points) {
  if (told_failure(outputs_.refusal_of_drawing(points))) return true;
  if (outputs_.existing() != nullptr && !has_ground_) {
    database_.drawing() = Drawing(outputs_.existing()->ground());
    watcher_.beside(outputs_.existing()->places());
    has_ground_ = true;
  }
  return false;
}

ExitCode Session::run() {
  if (told_failure(outputs_.refusal_beside_drawing())) {  // before any question
    watcher_.drawing_failed();
    dialogue_.say_held();
    return kFailure;
  }
  const std::filesystem::path given = vexo_xyz_impl::clean_path(options_.file.value_or(std::string()));
  ExitCode code = is_drawing_refused(given) ? kFailure : import_and_save();
  if (code == kFailure) watcher_.drawing_failed();
  if (code == kImported) code = save_preview();
  code = save_report(code);
  if (options_.quiet) end_quietly(code);
  return code;
}

// Of an import that went well only the doubts are told.
void Session::end_quietly(ExitCode code) {
  if (code != kImported && !watcher_.is_set_aside()) {
    dialogue_.say_held();
    return;
  }
  dialogue_.drop_held();  // of a file set aside, what was told after the question left open
  const bool is_plain = watcher_.findings().doubts.empty() && database_.refused_count() == 0;
  if (is_plain && code == kImported) return;
  print_findings(watcher_.findings());
  dialogue_.say_held();
}

CommandOutcome Session::import_once() {
  const Progress::Work work(progress_.get(), vexo_xyz_impl::T("konsola.postep_czytanie"), Progress::Measure::seconds);
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
  const Progress::Work work(progress_.get(), vexo_xyz_impl::T("konsola.postep_czytanie"), Progress::Measure::seconds);
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
  if (is_refused_) return kFailure;
  if (prepares_instead()) outcome = import_once();
  for (const std::string_view option : dialogue_.unused_options()) say("konsola.opcja_zbedna", {std::string(option)});
  if (outcome == CommandOutcome::failed) {
    if (database_.drawing().entity_count() > 0) say("konsola.nie_zapisano");
    return kFailure;
  }
  if (database_.refused_count() > 0) {
    vexo_xyz_impl::print("konsola.odrzucone", {static_cast<long long>(database_.refused_count())});
  }
  if (database_.drawing().entity_count() == 0 || watcher_.is_set_aside()) return kNothingImported;
  if (options_.wishes.height_decimals && watcher_.findings().has_heights) {
    add_heights(database_.drawing(), *options_.wishes.height_decimals);
  }
  return save();
}

ExitCode Session::save() {
  if (is_drawing_refused(source())) return kFailure;  // also of what was prepared meanwhile
  const std::string market =
      vexo_xyz_impl::host::load_sibling<vexo_xyz_impl::host::Market>(siblings_, "vexo_rynek")->rynek();
  const Saved saved = outputs_.save(database_.drawing(), source(), code_page_of(market));
  if (told_failure(saved.failure)) return kFailure;
  dialogue_.gcutPrintf(outputs_.told_of(saved));
  const std::string repeat = repeating_command(dialogue_.path(), options_.words, watcher_.findings().answers);
  watcher_.saved(saved.path, repeat);
  say("konsola.prep_powtorz", {repeat});
  return kImported;
}

ExitCode Session::save_preview() {
  if (!outputs_.has_preview() || watcher_.picture().points.empty()) return kImported;
  Picture& picture = watcher_.picture();
  picture.file = source().filename().string();
  if (!database_.drawing().groups().empty()) picture.group = database_.drawing().groups().front().name;
  const Saved saved = outputs_.save_preview(picture);
  if (told_failure(saved.failure)) return kFailure;
  say("konsola.podglad_zapisano", {saved.path});
  return kImported;
}

ExitCode Session::save_report(ExitCode so_far) {
  if (!outputs_.has_report()) return so_far;
  const Saved saved = outputs_.save_report(watcher_.findings());
  if (told_failure(saved.failure)) return kFailure;
  say("konsola.raport_zapisano", {saved.path});
  return so_far;
}

}  // namespace console

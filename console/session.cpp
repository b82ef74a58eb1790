#include "console/session.h"

#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "console/dialogue/shown_text.h"
#include "console/drawing/heights.h"
#include "console/dxf/dxf_writer.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "console/prepare.h"
#include "console/prepare_log.h"
#include "console/preview/svg.h"
#include "console/repeat.h"
#include "console/report/reasons.h"
#include "console/report/report_file.h"
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
      targets_{options_.output, options_.force, options_.report, options_.preview},
      progress_(options_.shows_progress ? std::make_unique<Progress>(STDOUT_FILENO) : nullptr),
      lines_(lines, progress_.get()),
      database_(options_.wishes.group_selectable),
      dialogue_(lines_, out, database_.drawing().variables, options_.file, options_.answers),
      siblings_(family(database_, options_.choice)),
      watcher_(options_.unattended),
      entered_({{dialogue_, database_, siblings_, nullptr, this, &watcher_}, vexo_xyz_impl::bind_siblings(siblings_)}) {
  vexo_xyz_impl::register_command(*this);
  if (options_.preview) watcher_.take_pictures();
  if (options_.existing) begin_with(options_.existing);
  if (options_.quiet) dialogue_.hold();
  dialogue_.pause_for_texts(progress_.get());
  watcher_.tell_points([this](std::size_t points) {
    if (!progress_) return;
    progress_->go_on(vexo_xyz_impl::T("konsola.postep_wstawianie"), Progress::Measure::share, 2 * points);
    database_.count_for(progress_.get());  // a point and its label each
  });
  dialogue_.check_typed_path([this](const std::string& path) {
    is_refused_ = report_is_refused() || preview_is_refused() || drawing_is_refused(vexo_xyz_impl::clean_path(path));
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

bool Session::failed(const std::optional<std::string>& text) {
  if (!text) return false;
  dialogue_.gcutPrintf(*text);
  vexo_xyz_impl::notify_failure(vexo_xyz_impl::OSError(shown_text(vexo_xyz_impl::text::trim(*text))));
  return true;
}

bool Session::report_is_refused() { return failed(report_refused(targets_, is_points())); }

bool Session::preview_is_refused() { return failed(preview_refused(targets_, is_points())); }

bool Session::drawing_is_refused(const std::filesystem::path& points) {
  return failed(options_.into ? existing_refused() : drawing_refused(targets_, points, is_points()));
}

// Opens the drawing that points are to be added to, which the import then begins with.
std::optional<std::string> Session::existing_refused() {
  const std::string path = options_.into->string();
  if (is_file_of_points(path)) return vexo_xyz_impl::filled("konsola.rys_plik_punktow", {std::string_view(path)});
  if (existing_) return std::nullopt;
  OpenedDrawing opened = open_existing(path);
  if (const auto* const why_not = std::get_if<std::string>(&opened)) return *why_not;
  begin_with(std::move(std::get<std::unique_ptr<ExistingDrawing>>(opened)));
  return std::nullopt;
}

void Session::begin_with(std::shared_ptr<ExistingDrawing> existing) {
  existing_ = std::move(existing);
  database_.drawing() = Drawing(existing_->ground());
  watcher_.beside(existing_->places());
}

IsFileOfPoints Session::is_points() const {
  return [this](const std::filesystem::path& path) { return is_file_of_points(path); };
}

ExitCode Session::run() {
  if (report_is_refused() || preview_is_refused()) {  // before any question
    watcher_.drawing_failed();
    dialogue_.say_held();
    return kFailure;
  }
  const std::filesystem::path given = vexo_xyz_impl::clean_path(options_.file.value_or(std::string()));
  const ExitCode code = drawing_is_refused(given) ? kFailure : import_and_save();
  if (code == kFailure) watcher_.drawing_failed();
  const ExitCode all_told = save_report(save_preview(code));
  if (options_.quiet) end_quietly(all_told);
  return all_told;
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
  const auto work = shown("konsola.postep_czytanie", Progress::Measure::seconds);
  const CommandOutcome outcome = import_();
  print_findings(watcher_.findings());
  return outcome;
}

std::shared_ptr<void> Session::shown(std::string_view key, Progress::Measure measure) {
  if (!progress_) return nullptr;
  progress_->go_on(vexo_xyz_impl::T(key), measure);
  return {progress_.get(), [](Progress* progress) { progress->stop(); }};
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
  const auto work = shown("konsola.postep_czytanie", Progress::Measure::seconds);
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
  if (options_.wishes.height_decimals && watcher_.findings().layout.ends_with('Z')) {
    add_heights(database_.drawing(), *options_.wishes.height_decimals);
  }
  return save();
}

ExitCode Session::save() {
  if (drawing_is_refused(source())) return kFailure;  // also of what was prepared meanwhile
  if (existing_) return save_into_existing();
  const std::string wanted = options_.output ? options_.output->string() : drawing_name(source(), 1).string();
  try {
    const std::string drawing = write_drawing().string();
    say("konsola.zapisano", {drawing});
    tell_repeating_command(drawing);
    return kImported;
  } catch (const std::system_error& failure) {
    const std::string reason = failure_text(failure);
    failed(vexo_xyz_impl::filled("konsola.blad_zapisu", {std::string_view(wanted), std::string_view(reason)}));
    return kFailure;
  }
}

ExitCode Session::save_into_existing() {
  auto work = shown("konsola.postep_zapis", Progress::Measure::seconds);
  const Layers& layers = options_.wishes.layers;
  if (options_.existing_goes_to != nullptr) {
    existing_->write(database_.drawing(), layers, *options_.existing_goes_to);
  } else if (failed(save_existing(*existing_, &database_.drawing(), layers))) {
    return kFailure;
  }
  work.reset();
  const std::string drawing = existing_->path().string();
  say("konsola.rys_zapisano", {drawing, existing_->backup().string()});
  dialogue_.gcutPrintf(existing_->notes(options_.wishes));
  tell_repeating_command(drawing);
  return kImported;
}

void Session::tell_repeating_command(const std::string& drawing) {
  const std::string repeat = repeating_command(dialogue_.path(), options_.words, watcher_.findings().answers);
  watcher_.saved(drawing, repeat);
  say("konsola.prep_powtorz", {repeat});
}

ExitCode Session::save_preview(ExitCode so_far) {
  if (!options_.preview || so_far != kImported) return so_far;
  if (preview_is_refused()) return kFailure;  // also of what was prepared meanwhile
  const std::string path = options_.preview->string();
  Picture& picture = watcher_.picture();
  picture.file = source().filename().string();
  if (!database_.drawing().groups().empty()) picture.group = database_.drawing().groups().front().name;
  try {
    write_picture(picture, *options_.preview);
    say("konsola.podglad_zapisano", {path});
    return so_far;
  } catch (const std::system_error& failure) {
    const std::string reason = failure_text(failure);
    failed(vexo_xyz_impl::filled("konsola.podglad_blad", {std::string_view(path), std::string_view(reason)}));
    return kFailure;
  }
}

ExitCode Session::save_report(ExitCode so_far) {
  if (!options_.report) return so_far;
  if (report_is_refused()) return kFailure;  // also of what was prepared meanwhile
  try {
    write_report(watcher_.findings(), *options_.report);
    say("konsola.raport_zapisano", {options_.report->string()});
    return so_far;
  } catch (const std::system_error& failure) {
    const std::string path = options_.report->string();
    const std::string reason = failure_text(failure);
    failed(vexo_xyz_impl::filled("konsola.raport_blad", {std::string_view(path), std::string_view(reason)}));
    return kFailure;
  }
}

std::filesystem::path Session::write_drawing() {
  const std::filesystem::path points = source();
  const auto work = shown("konsola.postep_zapis", Progress::Measure::bytes);
  AtomicFile file((options_.output ? final_target(*options_.output) : points).parent_path());
  CountedBytes counted(file, progress_.get());
  const std::string market =
      vexo_xyz_impl::host::load_sibling<vexo_xyz_impl::host::Market>(siblings_, "vexo_rynek")->rynek();
  write_dxf(database_.drawing(), options_.wishes, code_page_of(market), counted);
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

#include "console/outputs.h"

#include <cerrno>
#include <functional>
#include <system_error>
#include <utility>
#include <variant>

#include "console/dxf/dxf_writer.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "console/preview/svg.h"
#include "console/report/report_file.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

constexpr int kMostNames = 10000;  // drawings of one name in one folder

// Does it; where it fails, the text of `key` says of `path` why.
Saved saved_by(const std::function<std::filesystem::path()>& write, std::string_view key, const std::string& path) {
  try {
    return {write().string(), std::nullopt};
  } catch (const std::system_error& failure) {
    return {path, text_about(key, path, failure)};
  }
}

}  // namespace

Outputs::Outputs(Targets targets, std::optional<std::filesystem::path> into, DrawingWishes wishes,
                 IsFileOfPoints is_file_of_points, Progress* progress)
    : targets_(std::move(targets)),
      into_(std::move(into)),
      wishes_(std::move(wishes)),
      is_file_of_points_(std::move(is_file_of_points)),
      progress_(progress) {}

void Outputs::share(std::shared_ptr<ExistingDrawing> existing, ByteSink& sink) {
  existing_ = std::move(existing);
  sink_ = &sink;
}

std::optional<std::string> Outputs::refusal_beside_drawing() const {
  auto refused = report_refused(targets_, is_file_of_points_);
  return refused ? refused : preview_refused(targets_, is_file_of_points_);
}

std::optional<std::string> Outputs::refusal_of_drawing(const std::filesystem::path& points) {
  return into_ ? open_existing_one() : drawing_refused(targets_, points, is_file_of_points_);
}

std::optional<std::string> Outputs::open_existing_one() {
  const std::string path = into_->string();
  if (is_file_of_points_(path)) return text_about("konsola.rys_plik_punktow", path);
  if (existing_) return std::nullopt;
  OpenedDrawing opened = open_existing(path);
  if (const auto* const why_not = std::get_if<std::string>(&opened)) return *why_not;
  existing_ = std::move(std::get<std::unique_ptr<ExistingDrawing>>(opened));
  return std::nullopt;
}

Saved Outputs::save(const Drawing& added, const std::filesystem::path& points, std::string_view code_page) const {
  if (existing_) return save_into_existing(added);
  const std::string wanted = targets_.output ? targets_.output->string() : drawing_name(points, 1).string();
  return saved_by([&] { return write_new(added, points, code_page); }, "konsola.blad_zapisu", wanted);
}

std::filesystem::path Outputs::write_new(const Drawing& drawing, const std::filesystem::path& points,
                                         std::string_view code_page) const {
  const Progress::Work work(progress_, vexo_xyz_impl::T("konsola.postep_zapis"), Progress::Measure::bytes);
  AtomicFile file((targets_.output ? final_target(*targets_.output) : points).parent_path());
  CountedBytes counted(file, progress_);
  write_dxf(drawing, wishes_, code_page, counted);
  file.flush();
  if (targets_.output) {
    if (targets_.force) {
      file.replace(*targets_.output);
    } else if (!file.take_free(*targets_.output)) {
      throw FileFailure(FileStep::rename, EEXIST);
    }
    return *targets_.output;
  }
  for (int number = 1; number <= kMostNames; ++number) {
    std::filesystem::path name = drawing_name(points, number);
    if (file.take_free(name)) return name;
  }
  throw FileFailure(FileStep::rename, EEXIST);
}

Saved Outputs::save_into_existing(const Drawing& added) const {
  const Progress::Work work(progress_, vexo_xyz_impl::T("konsola.postep_zapis"), Progress::Measure::seconds);
  const std::string path = existing_->path().string();
  if (sink_ == nullptr) return {path, save_existing(*existing_, &added, wishes_.layers)};
  existing_->write(added, wishes_.layers, *sink_);
  return {path, std::nullopt};
}

std::string Outputs::told_of(const Saved& saved) const {
  if (!existing_) return text_about("konsola.zapisano", saved.path);
  return text_about("konsola.rys_zapisano", saved.path, existing_->backup().string()) + existing_->notes(wishes_);
}

Saved Outputs::save_preview(const Picture& picture) const {
  if (auto refused = preview_refused(targets_, is_file_of_points_)) return {targets_.preview->string(), refused};
  const auto write = [&] {
    write_picture(picture, *targets_.preview);
    return *targets_.preview;
  };
  return saved_by(write, "konsola.podglad_blad", targets_.preview->string());
}

Saved Outputs::save_report(const Findings& findings) const {
  if (auto refused = report_refused(targets_, is_file_of_points_)) return {targets_.report->string(), refused};
  const auto write = [&] {
    write_report(findings, *targets_.report);
    return *targets_.report;
  };
  return saved_by(write, "konsola.raport_blad", targets_.report->string());
}

}  // namespace console

#include "console/targets.h"

#include <system_error>

#include "console/failure_text.h"
#include "console/files.h"
#include "console/preview/svg.h"
#include "console/report/report_file.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using vexo_xyz_impl::T;

// Folders of the system's own, in which no drawing is looked for: a table piped in is a file of theirs.
bool is_of_the_system(const std::filesystem::path& path) {
  std::error_code ignored;
  const std::string absolute = std::filesystem::absolute(path, ignored).lexically_normal().string();
  return (absolute.starts_with("/dev/") && !absolute.starts_with("/dev/shm/")) || absolute.starts_with("/proc/");
}

std::optional<std::string> refused_beside(const std::filesystem::path& points) {
  if (points.empty()) return std::nullopt;
  if (is_of_the_system(points)) return text_about("konsola.urzadzenie", points);
  std::error_code ignored;
  if (!std::filesystem::exists(points, ignored)) return std::nullopt;  // which is told when it is read
  // Whether names are taken is no matter: another one is made.
  const auto refusal = refusal_in(points.parent_path());
  if (!refusal) return std::nullopt;
  return text_about("konsola.blad_zapisu", drawing_name(points, 1), *refusal) + T("konsola.rada_nazwa");
}

bool is_name(const std::filesystem::path& path, const std::optional<std::filesystem::path>& other) {
  return other && path.lexically_normal() == other->lexically_normal();
}

// Of what is written beside the drawing: only what was written there before is replaced.
std::optional<std::string> reason_against(const std::filesystem::path& path, const Targets& targets,
                                          const IsFileOfPoints& is_file_of_points,
                                          bool (*may_be_replaced)(const std::filesystem::path& path)) {
  std::error_code ignored;
  const auto status = std::filesystem::status(path, ignored);
  if (is_file_of_points(path)) return T("konsola.powod_plik_punktow");
  if (is_name(path, targets.output)) return T("konsola.powod_rysunek");
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) return T("konsola.powod_nie_plik");
  if (std::filesystem::exists(status) && !may_be_replaced(path)) return T("konsola.powod_nie_raport");
  if (const auto refusal = refusal_of(path)) return failure_text(*refusal);
  return std::nullopt;
}

}  // namespace

std::optional<std::string> drawing_refused(const Targets& targets, const std::filesystem::path& points,
                                           const IsFileOfPoints& is_file_of_points) {
  if (!targets.output) return refused_beside(points);
  const std::filesystem::path& output = *targets.output;
  std::error_code ignored;
  if (is_file_of_points(output)) return text_about("konsola.plik_zrodlowy", output);
  const auto status = std::filesystem::status(output, ignored);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
    return text_about("konsola.blad_zapisu", output, T("konsola.powod_nie_plik"));
  if (std::filesystem::exists(status) && !targets.force) return text_about("konsola.plik_istnieje", output);
  if (const auto refusal = refusal_of(output)) return text_about("konsola.blad_zapisu", output, *refusal);
  return std::nullopt;
}

std::optional<std::string> report_refused(const Targets& targets, const IsFileOfPoints& is_file_of_points) {
  if (!targets.report) return std::nullopt;
  const auto reason = reason_against(*targets.report, targets, is_file_of_points, is_report);
  return reason ? std::optional(text_about("konsola.raport_blad", *targets.report, *reason)) : std::nullopt;
}

std::optional<std::string> preview_refused(const Targets& targets, const IsFileOfPoints& is_file_of_points) {
  if (!targets.preview) return std::nullopt;
  const auto reason = is_name(*targets.preview, targets.report)
                          ? std::optional(T("konsola.powod_raport"))
                          : reason_against(*targets.preview, targets, is_file_of_points, is_picture);
  return reason ? std::optional(text_about("konsola.podglad_blad", *targets.preview, *reason)) : std::nullopt;
}

std::filesystem::path with_extension(std::filesystem::path output) {
  std::error_code ignored;
  if (output.has_filename() && !output.has_extension() && !std::filesystem::is_directory(output, ignored))
    output += ".dxf";
  return output;
}

}  // namespace console

// Where what comes of an import may be written: what can be known before any question is asked.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace console {

/// What is to be written, as the command line asks for it.
struct Targets {
  std::optional<std::filesystem::path> output;  ///< the drawing's name; without it one that is free is made
  bool force = false;                           ///< an existing output may be replaced
  std::optional<std::filesystem::path> report;
  std::optional<std::filesystem::path> preview;
};

/// Whether a path names what points are read from, which nothing replaces.
using IsFileOfPoints = std::function<bool(const std::filesystem::path&)>;

/// Why the drawing cannot be written, a text for the user; nothing when it can. `points` is the file that it is named
/// after; empty while that is not known. The module must be entered, here and below.
[[nodiscard]] std::optional<std::string> drawing_refused(const Targets& targets, const std::filesystem::path& points,
                                                         const IsFileOfPoints& is_file_of_points);

/// The same of the report: an earlier report is replaced, the files of points and of the drawing never.
[[nodiscard]] std::optional<std::string> report_refused(const Targets& targets,
                                                        const IsFileOfPoints& is_file_of_points);

/// The same of the picture, which does not take the report's name either.
[[nodiscard]] std::optional<std::string> preview_refused(const Targets& targets,
                                                         const IsFileOfPoints& is_file_of_points);

/// A drawing's name as typed, with .dxf where it has no extension of its own.
[[nodiscard]] std::filesystem::path with_extension(std::filesystem::path output);

}  // namespace console

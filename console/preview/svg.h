// A picture of points as an SVG that any browser shows and that fits a page: no scripts, no fonts or files of others.
#pragma once

#include <filesystem>
#include <string>

#include "console/preview/picture.h"

namespace console {

/// Whether an earlier picture of this program stands there, or an empty file: one that may be replaced.
[[nodiscard]] bool is_picture(const std::filesystem::path& path);

/// The picture as an SVG document, in the user's language. There must be a point.
[[nodiscard]] std::string svg_of(const Picture& picture);

/// Writes the picture whole or not at all, in the place of an earlier one. Fails with std::system_error.
void write_picture(const Picture& picture, const std::filesystem::path& path);

}  // namespace console

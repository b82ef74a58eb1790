// The drawing that points are added to: read, kept as it was read, and saved in its place with the former one beside
// it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "console/byte_sink.h"
#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"
#include "console/dxf/outline.h"

namespace console {

class ExistingDrawing {
 public:
  /// Reads the file. Fails with DrawingFault where it is no drawing that can be added to, with std::system_error where
  /// it cannot be read.
  explicit ExistingDrawing(const std::filesystem::path& path);
  ExistingDrawing(const ExistingDrawing&) = delete;
  ExistingDrawing& operator=(const ExistingDrawing&) = delete;
  ~ExistingDrawing() = default;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] std::filesystem::path backup() const { return path_.string() + ".bak"; }
  [[nodiscard]] std::string_view bytes() const { return bytes_; }
  [[nodiscard]] const Outline& outline() const { return outline_; }
  [[nodiscard]] Ground ground() const;
  [[nodiscard]] const Column<PlanPoint>& places() const { return outline_.places; }  ///< what model space holds

  /// What the user should know of it once points were added: that their layers do not show, that its unit is not the
  /// metre. Lines; empty for nothing.
  [[nodiscard]] std::string notes(const DrawingWishes& wishes) const;

  /// Writes the drawing with `added` in it.
  void write(const Drawing& added, const Layers& layers, ByteSink& sink) const;

  /// Goes on with bytes that were written of it. Fails with DrawingFault, and is then as before.
  void go_on_with(std::string bytes);

  /// Writes the file, with `added` in the drawing if there is something; the former file becomes the backup. At every
  /// moment one of the two is whole. False, and nothing is changed, when another program changed the file meanwhile.
  /// Fails with FileFailure.
  [[nodiscard]] bool save(const Drawing* added, const Layers& layers) const;

 private:
  struct Identity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::int64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    friend bool operator==(const Identity&, const Identity&) = default;
  };

  [[nodiscard]] static Identity identity_of(int descriptor);
  void read();
  [[nodiscard]] bool is_unchanged() const;  // on the disk, since it was read

  std::filesystem::path path_;
  std::unique_ptr<char[]> memory_;  // NOLINT(modernize-avoid-c-arrays): bytes that nobody clears before they are read
  std::unique_ptr<const std::string> written_;  // in the place of those read
  std::string_view bytes_;
  Identity identity_;
  Outline outline_;
};

/// A drawing, or why there is no adding to it: a text for the user, as below.
using OpenedDrawing = std::variant<std::unique_ptr<ExistingDrawing>, std::string>;
[[nodiscard]] OpenedDrawing open_existing(const std::filesystem::path& path);

/// The same of a drawing that is only looked at.
[[nodiscard]] OpenedDrawing read_existing(const std::filesystem::path& path);

/// Saves it, with what was added if there is something, unless another program changed it meanwhile; why it was not
/// saved.
[[nodiscard]] std::optional<std::string> save_existing(const ExistingDrawing& drawing, const Drawing* added,
                                                       const Layers& layers);

}  // namespace console

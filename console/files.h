// Files of the console: a drawing written whole or not at all, names that are free.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "console/dxf/tag_writer.h"

namespace console {

/// What was being done to a file when it failed.
enum class FileStep { create, write, flush, rename };

/// A file operation that failed, with the system's error number; failure_text.h says it in the user's language.
class FileFailure : public std::system_error {
 public:
  FileFailure(FileStep step, int error_number) : system_error(error_number, std::generic_category()), step_(step) {}
  [[nodiscard]] FileStep step() const { return step_; }

 private:
  FileStep step_;
};

/// A file that appears under its name only when it is complete.
///
/// Bytes go to a temporary file beside the target; `commit` flushes them to the disk and renames. Without a commit, and
/// when the program is interrupted by a signal, the temporary file is removed. Every operation fails with
/// FileFailure.
class AtomicFile final : public ByteSink {
 public:
  /// Creates the temporary file in the folder where the target is to stand.
  explicit AtomicFile(const std::filesystem::path& folder);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile() override;

  void write(std::string_view bytes) override;

  /// Makes sure that all bytes are on the disk; nothing may be written after it.
  void flush();

  /// Gives the flushed file its name. With `replace` an existing file of that name is replaced; else false is returned
  /// when there is one, and another name may be tried.
  [[nodiscard]] bool commit(const std::filesystem::path& target, bool replace);

 private:
  static constexpr std::size_t kStep = std::size_t{32} << 20U;  // bytes; most drawings are smaller

  void begin_step();

  std::string temporary_;
  int descriptor_;
  std::size_t size_ = 0;
  std::size_t next_step_ = kStep;
  bool has_room_ahead_ = false;
};

/// `stem`.dxf beside the file at `path`, `stem`_2.dxf and so on for `number` 2 and up.
[[nodiscard]] std::filesystem::path drawing_name(const std::filesystem::path& path, int number);

}  // namespace console

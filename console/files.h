// Files of the console: a drawing written whole or not at all, names that are free.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "console/byte_sink.h"
#include "console/file_failure.h"
#include "console/temporary_name.h"

namespace console {

/// A file that appears under its name only when it is complete.
///
/// Bytes go to a temporary file beside the target, which is given its name at the end. Where that does not come to it,
/// and when a signal ends the program, the temporary file is removed. A file that is replaced hands its owner, mode and
/// access list on to the new one, a symbolic link to it stays. Every operation fails with FileFailure.
class AtomicFile final : public ByteSink {
 public:
  /// Creates the temporary file in the folder where the target is to stand, which for a target that may be a symbolic
  /// link is the folder of its `final_target`. It gets the rights that any new file gets there.
  explicit AtomicFile(const std::filesystem::path& folder);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile() override;

  void write(std::string_view bytes) override;

  /// Makes sure that all bytes are on the disk; nothing may be written after it.
  void flush();

  /// Gives the flushed file its name, in the place of the file at `target` if there is one.
  void replace(const std::filesystem::path& target);

  /// Gives the flushed file a name that no other file has; false when one has it, and another may be tried.
  [[nodiscard]] bool take_free(const std::filesystem::path& target);

  /// Replaces the file at `target`, if there is one, which gets the name `backup` in the place of an older backup. At
  /// every moment one of the two names is a whole file.
  void replace_keeping(const std::filesystem::path& target, const std::filesystem::path& backup);

 private:
  static constexpr std::size_t kStep = std::size_t{32} << 20U;  // bytes; most drawings are smaller

  void begin_step();
  void rename_over(const std::filesystem::path& target, const std::filesystem::path& rights_of);
  static void copy(const std::filesystem::path& original, const std::filesystem::path& backup);
  [[nodiscard]] bool rename_to_free_name(const std::filesystem::path& target);

  int descriptor_ = -1;
  TemporaryName temporary_;
  std::size_t size_ = 0;
  std::size_t next_step_ = kStep;
  bool has_room_ahead_ = false;
};

/// Writes a file whole or not at all, in the place of the one at `path` if there is one. Fails with FileFailure.
void write_whole(const std::filesystem::path& path, std::string_view bytes);

/// Whether the file begins with one of these, or is empty: one of this program's that may be replaced.
[[nodiscard]] bool begins_with_any(const std::filesystem::path& path,
                                   std::initializer_list<std::string_view> beginnings);

/// What a path stands for that may be a symbolic link, or a link to a link; it need not exist.
[[nodiscard]] std::filesystem::path final_target(std::filesystem::path path);

/// The failure that making a file in `folder` would end in now, nothing when it could be made. Nothing is made or
/// changed; what only writing shows, as a full disk, stays unseen.
[[nodiscard]] std::optional<FileFailure> refusal_in(const std::filesystem::path& folder);

/// The same of giving a file the name `target`, in the place of the one that has it where there is one.
[[nodiscard]] std::optional<FileFailure> refusal_of(const std::filesystem::path& target);

/// The stem of the file at `path` with `ending` instead of its extension, beside it. Of a long stem as many characters
/// as leave room in a name for the ending and `spare` bytes.
[[nodiscard]] std::filesystem::path named_after(const std::filesystem::path& path, const std::string& ending,
                                                std::size_t spare = 0);

/// `stem`.dxf beside the file at `path`, `stem`_2.dxf and so on for `number` 2 and up.
[[nodiscard]] std::filesystem::path drawing_name(const std::filesystem::path& path, int number);

}  // namespace console

// A file operation that failed; failure_text.h says it in the user's language.
#pragma once

#include <system_error>

namespace console {

/// What was being done to a file when it failed.
enum class FileStep { create, write, flush, rename };

/// A file operation that failed, with the system's error number.
class FileFailure : public std::system_error {
 public:
  FileFailure(FileStep step, int error_number) : system_error(error_number, std::generic_category()), step_(step) {}
  [[nodiscard]] FileStep step() const { return step_; }

 private:
  FileStep step_;
};

}  // namespace console

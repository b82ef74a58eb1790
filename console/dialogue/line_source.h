// Where typed answers come from: a terminal with line editing, or a pipe.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace console {

/// What is offered for completion while a line is typed.
enum class Completion { none, file_names };

class LineSource {
 public:
  virtual ~LineSource() = default;

  /// Shows the prompt and reads a line, without its end. Empty for Escape, and for the end of input.
  virtual std::optional<std::string> read_line(std::string_view prompt, Completion completion) = 0;

  /// Whether the input has ended, so that asking again would not help.
  [[nodiscard]] virtual bool at_end() const = 0;
};

/// Lines of a stream. The prompt and, so that a transcript can be read, the answer go to `out`. An Escape character in
/// a line is Escape.
[[nodiscard]] std::unique_ptr<LineSource> lines_of_stream(std::istream& in, std::ostream& out);

/// Lines typed at the terminal on standard input and output, with editing; Ctrl-D on an empty line and a lone Escape
/// key are Escape.
[[nodiscard]] std::unique_ptr<LineSource> lines_of_terminal(std::ostream& out);

}  // namespace console

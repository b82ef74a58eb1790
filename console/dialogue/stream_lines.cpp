#include <istream>
#include <ostream>

#include "console/dialogue/line_source.h"
#include "console/dialogue/shown_text.h"

namespace console {
namespace {

constexpr char kEscape = '\x1b';

class StreamLines final : public LineSource {
 public:
  StreamLines(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

  std::optional<std::string> read_line(std::string_view prompt, Completion /*completion*/) override {
    out_ << prompt << std::flush;
    std::string line;
    const bool read = static_cast<bool>(std::getline(in_, line));
    if (read && line.ends_with('\r')) line.pop_back();  // else the echo would show it as a character
    const bool answered = read && line.find(kEscape) == std::string::npos;
    out_ << (answered ? shown_text(line) : std::string()) << '\n';
    return answered ? std::optional(std::move(line)) : std::nullopt;
  }

  [[nodiscard]] bool at_end() const override { return !in_.good(); }

 private:
  std::istream& in_;
  std::ostream& out_;
};

}  // namespace

std::unique_ptr<LineSource> lines_of_stream(std::istream& in, std::ostream& out) {
  return std::make_unique<StreamLines>(in, out);
}

}  // namespace console

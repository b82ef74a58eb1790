// Line editing by libedit. Its own key reading is replaced for one reason: a lone Escape key must cancel, although
// Escape also begins the sequences of arrow keys. What follows it within a moment makes the difference.
#include <array>
#include <cerrno>
#include <cstdio>
#include <cwchar>
#include <ostream>

#include <histedit.h>
#include <poll.h>
#include <unistd.h>

#include "console/dialogue/line_source.h"
#include "console/dialogue/path_completion.h"
#include "console/dialogue/prompt_signals.h"
#include "console/dialogue/shown_text.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

constexpr char kEscape = '\x1b';
constexpr int kSequenceGapMs = 50;  // the bytes of one key arrive together, a person's next key does not

bool more_keys_follow() {
  pollfd input{STDIN_FILENO, POLLIN, 0};
  return poll(&input, 1, kSequenceGapMs) > 0;
}

std::size_t sequence_length(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

class TerminalLines final : public LineSource {
 public:
  explicit TerminalLines(std::ostream& out) : out_(out), editor_(el_init("vexo-xyz", stdin, stdout, stderr)) {
    el_set(editor_.get(), EL_CLIENTDATA, this);
    el_set(editor_.get(), EL_SIGNAL, 0);  // its own handlers are gone after the first stop
    el_set(editor_.get(), EL_EDITOR, "emacs");
    el_set(editor_.get(), EL_PROMPT, &TerminalLines::prompt_of);
    el_wset(editor_.get(), EL_GETCFN, &TerminalLines::read_key);
    el_wset(editor_.get(), EL_ADDFN, L"complete-path", L"Complete a path", &TerminalLines::complete);
  }

  std::optional<std::string> read_line(std::string_view prompt, Completion completion) override {
    // The editor redraws the prompt's last line only; what stands above it is printed once.
    const std::size_t last_line = prompt.rfind('\n') + 1;
    out_ << prompt.substr(0, last_line) << std::flush;
    prompt_ = prompt.substr(last_line);
    el_set(editor_.get(), EL_BIND, "\t", completion == Completion::file_names ? "complete-path" : "ed-unassigned",
           nullptr);
    escaped_ = false;
    el_resize(editor_.get());
    PromptSignals signals;
    signals_ = &signals;
    int count = 0;
    const char* typed = el_gets(editor_.get(), &count);
    signals_ = nullptr;
    if (typed == nullptr || count <= 0 || escaped_) {
      at_end_ = !escaped_;
      out_ << '\n' << std::flush;
      return std::nullopt;
    }
    std::string line(typed, static_cast<std::size_t>(count));
    while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
    return line;
  }

  [[nodiscard]] bool at_end() const override { return at_end_; }

 private:
  struct EndEditor {
    void operator()(EditLine* editor) const { el_end(editor); }
  };

  static TerminalLines& self_of(EditLine* editor) {
    void* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return *static_cast<TerminalLines*>(self);
  }

  static char* prompt_of(EditLine* editor) { return self_of(editor).prompt_.data(); }

  // The library is in C, which no exception can pass.
  static unsigned char complete(EditLine* editor, int /*key*/) {
    try {
      return complete_path_of(editor);
    } catch (...) {
      return CC_ERROR;
    }
  }

  // The library's own completion spells blanks and quotes as a shell would, which no path prompt takes.
  static unsigned char complete_path_of(EditLine* editor) {
    const LineInfo* line = el_line(editor);
    const std::string_view typed(line->buffer, static_cast<std::size_t>(line->cursor - line->buffer));
    const PathCompletion completion = complete_path(typed);
    if (!completion.addition.empty()) {
      return el_insertstr(editor, completion.addition.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
    }
    if (completion.names.size() < 2) return CC_ERROR;
    self_of(editor).out_ << '\n' << in_columns(completion.names, terminal_width(STDOUT_FILENO)) << std::flush;
    return CC_REDISPLAY;
  }

  // The line is drawn anew where the cursor is, after what was drawn of it is gone as far as `rows` above.
  void redraw(std::size_t rows) {
    char* up = nullptr;
    char* clear_below = nullptr;
    el_get(editor_.get(), EL_GETTC, "up", &up);
    el_get(editor_.get(), EL_GETTC, "cd", &clear_below);
    out_ << '\r';
    for (; rows > 0 && up != nullptr; --rows) out_ << up;
    if (clear_below != nullptr) out_ << clear_below;
    out_ << std::flush;
    el_set(editor_.get(), EL_REFRESH);
  }

  // Terminals fold a line anew when their width changes, and keep the cursor on its character.
  [[nodiscard]] std::size_t rows_above_cursor() const {
    const LineInfo* line = el_line(editor_.get());
    const std::string_view before(line->buffer, static_cast<std::size_t>(line->cursor - line->buffer));
    return (cells_of(prompt_) + cells_of(before)) / terminal_width(STDOUT_FILENO);
  }

  void act_on(int signal_number) {
    if (signal_number == SIGWINCH) {
      el_resize(editor_.get());
      redraw(rows_above_cursor());
      return;
    }
    el_set(editor_.get(), EL_PREP_TERM, 0);
    if (signal_number != SIGCONT) signals_->let_through(signal_number);
    el_set(editor_.get(), EL_PREP_TERM, 1);  // others had the terminal meanwhile
    el_resize(editor_.get());
    redraw(0);
  }

  // One byte from the terminal: 1, 0 at the end of input, -1 on error.
  int read_byte(char& byte) {
    while (const int signal_number = signals_->wait(STDIN_FILENO)) act_on(signal_number);
    while (true) {
      const ssize_t got = read(STDIN_FILENO, &byte, 1);
      if (got >= 0 || errno != EINTR) return static_cast<int>(got);
    }
  }

  static int read_key(EditLine* editor, wchar_t* key) {
    TerminalLines& self = self_of(editor);
    std::array<char, 4> bytes{};
    int got = self.read_byte(bytes[0]);
    if (got <= 0) return got;
    if (bytes[0] == kEscape && !more_keys_follow()) {
      self.escaped_ = true;
      return 0;
    }
    const std::size_t length = sequence_length(bytes[0]);
    for (std::size_t i = 1; i < length && got > 0; ++i) got = self.read_byte(bytes[i]);
    if (got <= 0) return got;
    const auto code_point = vexo_xyz_impl::text::decode({bytes.data(), length}, 0);
    *key = code_point ? static_cast<wchar_t>(code_point->value) : L'?';
    return 1;
  }

  std::ostream& out_;
  std::unique_ptr<EditLine, EndEditor> editor_;
  PromptSignals* signals_ = nullptr;  // of the line being read
  std::string prompt_;
  bool escaped_ = false;
  bool at_end_ = false;
};

}  // namespace

std::unique_ptr<LineSource> lines_of_terminal(std::ostream& out) { return std::make_unique<TerminalLines>(out); }

}  // namespace console

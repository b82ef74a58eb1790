#include "console/dxf/edit_list.h"

#include <algorithm>
#include <utility>

namespace console {
namespace {

// Lines that were ended with LF, with CR LF where they are to be.
class LineEnds final : public ByteSink {
 public:
  LineEnds(ByteSink& sink, bool crlf) : sink_(sink), crlf_(crlf) {}

  void write(std::string_view bytes) override {
    if (!crlf_) return sink_.write(bytes);
    changed_.clear();
    for (const char c : bytes) {
      if (c == '\n') changed_ += '\r';
      changed_ += c;
    }
    sink_.write(changed_);
  }

 private:
  ByteSink& sink_;
  bool crlf_;
  std::string changed_;
};

// In steps, so that a disk is kept busy while what follows is still copied.
void write_kept(ByteSink& sink, std::string_view bytes) {
  constexpr std::size_t kStep = std::size_t{8} << 20U;
  for (; bytes.size() > kStep; bytes.remove_prefix(kStep)) sink.write(bytes.substr(0, kStep));
  sink.write(bytes);
}

}  // namespace

void EditList::insert(std::size_t offset, std::string_view tags) {
  insert(offset, [text = std::string(tags)](TagWriter& writer) { writer.lines(text); });
}

void EditList::replace(const Tag& tag, Writer writer) {
  const auto offset = static_cast<std::size_t>(tag.value.data() - bytes_.data());
  edits_.push_back({offset, tag.value.size(), std::move(writer)});
}

void EditList::replace(const Tag& tag, std::string_view value) {
  replace(tag, [text = std::string(value)](TagWriter& tags) { tags.lines(text); });
}

void EditList::write(ByteSink& sink) {
  std::stable_sort(edits_.begin(), edits_.end(),
                   [](const Edit& one, const Edit& other) { return one.offset < other.offset; });
  LineEnds line_ends(sink, crlf_);
  TagWriter tags(line_ends);
  std::size_t at = 0;
  for (const Edit& edit : edits_) {
    if (edit.offset > at) {
      tags.flush();
      write_kept(sink, bytes_.substr(at, edit.offset - at));
    }
    edit.writer(tags);
    at = edit.offset + edit.removed;
  }
  tags.flush();
  write_kept(sink, bytes_.substr(at));
}

}  // namespace console

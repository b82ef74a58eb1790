// Changes of a file's bytes, written as slices of the old ones and what stands between them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "console/dxf/tag_reader.h"
#include "console/dxf/tag_writer.h"

namespace console {

class EditList {
 public:
  using Writer = std::function<void(TagWriter&)>;

  /// `bytes` outlive the list. With `crlf` what is new has lines that end so.
  EditList(std::string_view bytes, bool crlf) : bytes_(bytes), crlf_(crlf) {}

  /// Tags before the one at `offset`, behind those inserted there earlier. They are made when the bytes are written.
  void insert(std::size_t offset, Writer writer) { edits_.push_back({offset, 0, std::move(writer)}); }
  void insert(std::size_t offset, std::string_view tags);

  /// Another value for a tag of the bytes, its code line left as it is.
  void replace(const Tag& tag, Writer writer);
  void replace(const Tag& tag, std::string_view value);

  void write(ByteSink& sink);

 private:
  struct Edit {
    std::size_t offset;
    std::size_t removed;
    Writer writer;
  };

  std::string_view bytes_;
  bool crlf_;
  std::vector<Edit> edits_;
};

}  // namespace console

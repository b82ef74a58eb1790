// Which of a picture's points are drawn, and where: on a page no more stand side by side than can be seen.
#pragma once

#include <cstddef>
#include <vector>

#include "console/preview/page.h"
#include "console/preview/picture.h"

namespace console {

struct Mark {
  const PicturePoint* point = nullptr;
  double x = 0.0;  ///< on the page, tenths of millimetres
  double y = 0.0;
};

struct Marks {
  std::vector<Mark> usual;
  std::vector<Mark> suspect;
  std::vector<Mark> outside;  ///< of the frame: where its edge is crossed on the way to them, each direction once
  std::size_t outside_count = 0;
  std::size_t inside_count = 0;

  [[nodiscard]] std::size_t drawn() const { return usual.size() + suspect.size(); }
};

[[nodiscard]] Marks marks_of(const Picture& picture, const Page& page);

}  // namespace console

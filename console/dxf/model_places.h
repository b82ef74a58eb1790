// Positions of the entities of model space, picked from their tags as these pass.
#pragma once

#include <string_view>
#include <vector>

#include "console/dxf/outline.h"

namespace console {

class ModelPlaces {
 public:
  explicit ModelPlaces(Column<PlanPoint>& places) : places_(places) {}

  /// An entity of this kind begins; the one before it has ended.
  void begin(std::string_view kind);
  void tag(const Tag& tag) {
    if (takes_ && tag.code < 1000) take(tag);
  }
  void end();

 private:
  void take(const Tag& tag);

  Column<PlanPoint>& places_;
  std::vector<PlanPoint> own_;  // of the entity that is read
  bool takes_ = false;
  bool takes_all_ = false;        // not its first position only
  bool is_line_ = false;          // its end too
  bool first_is_height_ = false;  // what stands first is no position
  bool is_on_own_plane_ = false;  // its coordinates are those of its plane
  bool is_in_paper_ = false;
  int awaited_ = 0;  // the code of a y
  double x_ = 0.0;
  double normal_[3] = {0.0, 0.0, 1.0};  // NOLINT(modernize-avoid-c-arrays)
};

}  // namespace console

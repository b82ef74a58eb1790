// The program speaking to the user without an import: what `say` and `T` need.
#pragma once

#include <iosfwd>
#include <optional>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/command/module.h"

namespace console {

/// While it lives, things are said on `out` in the words of the user's choice, and asked on `lines`. With
/// a `progress` that is drawn, in its pauses.
class Speaking {
 public:
  Speaking(const Choice& choice, LineSource& lines, std::ostream& out, Progress* progress = nullptr)
      : dialogue_(lines, out, database_.drawing().variables, std::nullopt, {}),
        siblings_(family(database_, choice)),
        entered_({{dialogue_, database_, siblings_}, vexo_xyz_impl::bind_siblings(siblings_)}) {
    dialogue_.pause_for_texts(progress);
  }

 private:
  Database database_;
  Dialogue dialogue_;
  SiblingRegistry siblings_;
  vexo_xyz_impl::Entered entered_;
};

}  // namespace console

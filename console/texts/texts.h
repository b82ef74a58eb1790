// The stand-alone program's own texts, beside the family's: keys that begin with "konsola.", in the same languages and
// held against their list of values by the same check of the build. The texts stand by topic, in topics.h.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "siblings/vexo_teksty/keys.h"
#include "siblings/vexo_teksty/teksty.h"

namespace console {

/// All keys of the program's own, with the values that their templates take.
[[nodiscard]] std::vector<vexo_teksty::Key> own_keys();

/// The program's own entries in the language of that code, sorted by key; Polish for a code that names none.
[[nodiscard]] std::vector<vexo_teksty::Entry> own_entries(std::string_view language);

/// The family's texts and the program's own, and where the family speaks of what one does in a CAD program, words that
/// make sense outside of one. `selectable_groups`: whether picking one member of a group picks them all.
[[nodiscard]] std::shared_ptr<vexo_xyz_impl::host::Texts> texts_in(std::string_view language,
                                                                   bool selectable_groups = true);

}  // namespace console

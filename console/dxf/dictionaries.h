// The dictionaries of a drawing that an edit must know, found among its objects.
#pragma once

#include <string_view>

#include "console/dxf/outline.h"

namespace console {

/// Fills in what the outline holds of dictionaries, from the section of objects that stands at `objects`.
void find_dictionaries(std::string_view bytes, const Stretch& objects, Outline& outline);

}  // namespace console

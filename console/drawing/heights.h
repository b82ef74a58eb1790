// Heights written beside the numbers of their points.
#pragma once

#include "console/drawing/drawing.h"

namespace console {

/// Writes the height of each point below its number, as large as that, with so many decimals. All groups of the drawing
/// take in all heights. A point without a label gets none.
void add_heights(Drawing& drawing, int decimals);

}  // namespace console

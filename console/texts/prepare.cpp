// What is said while a foreign table is made into a file of points.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> prepare_texts() { return {}; }

}  // namespace console

#include "siblings/vexo_reaktywne_core/reaktywne_core.h"

namespace vexo_reaktywne_core {

bool ReactiveCore::zapisz_reakt(vexo_xyz_impl::host::GcDbObjectId oid, std::string_view kind,
                                const std::vector<std::string>& handles) {
  const auto position = entities_.position_of(oid);
  return position && entities_.keep(oid, {std::string(kind), handles, *position});
}

}  // namespace vexo_reaktywne_core

#include "vexo_xyz_impl/drawing/control.h"

#include <exception>
#include <memory>
#include <string_view>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"

namespace vexo_xyz_impl {
namespace {

bool mark(host::ReactiveCore& core, host::GcDbObjectId oid) {
  try {
    const std::string h = core.handle_z_oid(oid);
    return !h.empty() && core.zapisz_reakt(oid, kRecordKind, {h});
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

MarkingResult _oznacz_do_kontroli(std::span<const host::GcDbObjectId> oidy) {
  if (oidy.empty()) return {};
  if (oidy.size() > _MAX_KONTROLA) {
    const auto points = static_cast<long long>(oidy.size());
    return {0, filled("xyz.kontrola_za_duzo", {points, static_cast<long long>(_MAX_KONTROLA)})};
  }
  std::shared_ptr<host::ReactiveCore> core;
  try {
    core = host::load_sibling<host::ReactiveCore>(bound().host.siblings, "vexo_reaktywne_core");
  } catch (const std::exception& failure) {
    const auto [kind, text] = describe(failure);
    return {0, filled("xyz.kontrola_niedostepna", {std::string_view(kind), std::string_view(text)})};
  }
  MarkingResult result;
  for (const host::GcDbObjectId oid : oidy) result.ile += mark(*core, oid) ? 1 : 0;
  return result;
}

}  // namespace vexo_xyz_impl

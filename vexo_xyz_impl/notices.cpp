#include "vexo_xyz_impl/notices.h"

#include "vexo_xyz_impl/bindings.h"

namespace vexo_xyz_impl {
namespace {

template <class Notice>
void notify(Notice notice) {
  try {
    notice(*host::load_sibling<host::Notices>(bound().host.siblings, "vexo_boot"));
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): nobody waits for a notice
  }
}

}  // namespace

void notify_start() {
  notify([](host::Notices& boot) { boot.zdarzenie(kCommandName); });
}

void notify_failure(const std::exception& failure) {
  notify([&](host::Notices& boot) { boot.blad(kCommandName, failure); });
}

}  // namespace vexo_xyz_impl

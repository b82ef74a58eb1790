#include "vexo_xyz_impl/host/bindings.h"

#include <optional>

namespace vexo_xyz_impl::host {
namespace {

std::optional<Bindings>& slot() {
  static std::optional<Bindings> bindings;
  return bindings;
}

}  // namespace

void bind(const Bindings& bindings) { slot().emplace(bindings); }

const Bindings& bound() {
  if (!slot()) throw ImportError("the module has not been loaded into a host");
  return *slot();
}

bool is_bound() { return slot().has_value(); }

void unbind() { slot().reset(); }

void run_work(const std::function<void()>& work) {
  if (Worker* worker = bound().host.worker) {
    worker->run(work);
  } else {
    work();
  }
}

}  // namespace vexo_xyz_impl::host

#include "vexo_xyz_impl/bindings.h"

#include <utility>

namespace vexo_xyz_impl {
namespace {

thread_local const Bindings* innermost = nullptr;

}  // namespace

Entered::Entered(Bindings bindings) : bindings_(std::move(bindings)), outer_(innermost) { innermost = &bindings_; }

Entered::~Entered() { innermost = outer_; }

const Bindings& bound() {
  if (innermost == nullptr) throw ImportError("no run has entered the module on this thread");
  return *innermost;
}

void without_lock(const std::function<void()>& work) {
  host::HostLock* const lock = bound().host.lock;
  lock != nullptr ? lock->let_go(work) : work();
}

void with_lock(const std::function<void()>& work) {
  host::HostLock* const lock = bound().host.lock;
  lock != nullptr ? lock->hold(work) : work();
}

}  // namespace vexo_xyz_impl

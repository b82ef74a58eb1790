#include "python/lock.h"

namespace scripting {

Unlocked::~Unlocked() {
  or_asleep([this] { PyEval_RestoreThread(state_); });
}

Locked::Locked() : state_(or_asleep(PyGILState_Ensure)) {}

}  // namespace scripting

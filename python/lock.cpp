#include "python/lock.h"

#include <chrono>
#include <thread>

#ifdef __GLIBCXX__
#include <cxxabi.h>
#endif

namespace scripting {
namespace {

template <class Taking>
auto taken_or_asleep(Taking taking) {
#ifdef __GLIBCXX__
  try {
    return taking();
  } catch (const abi::__forced_unwind&) {  // the interpreter ends this thread
    while (true) std::this_thread::sleep_for(std::chrono::hours(1));
  }
#else
  return taking();
#endif
}

}  // namespace

Unlocked::~Unlocked() {
  taken_or_asleep([this] { PyEval_RestoreThread(state_); });
}

Locked::Locked() : state_(taken_or_asleep(PyGILState_Ensure)) {}

}  // namespace scripting

// The interpreter's lock, let go of and taken.
//
// When the interpreter ends while another thread waits for the lock, that thread would be ended in the middle of C++
// frames, which ends the process. Such a thread sleeps instead until the process is gone, be it here or in a call of
// scripts (`or_asleep`).
#pragma once

#include <chrono>
#include <memory>
#include <thread>
#include <utility>

#include <Python.h>
#ifdef __GLIBCXX__
#include <cxxabi.h>
#endif

namespace scripting {

/// What `call` returns; a thread that the interpreter ends meanwhile stays here for good.
template <class Call>
auto or_asleep(Call call) -> decltype(call()) {
#ifdef __GLIBCXX__
  try {
    return call();
  } catch (const abi::__forced_unwind&) {
    while (true) std::this_thread::sleep_for(std::chrono::hours(1));
  }
#else
  return call();
#endif
}

/// Lets go of the lock while it lives; the thread must have it.
class Unlocked {
 public:
  Unlocked() : state_(PyEval_SaveThread()) {}
  Unlocked(const Unlocked&) = delete;
  Unlocked& operator=(const Unlocked&) = delete;
  ~Unlocked();

 private:
  PyThreadState* state_;
};

/// Has the lock while it lives, whether the thread had it before or not.
class Locked {
 public:
  Locked();
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;
  ~Locked() { PyGILState_Release(state_); }

 private:
  PyGILState_STATE state_;
};

/// Makes an object that holds script objects and may be let go of by whoever does not have the lock.
template <class Object, class... Arguments>
[[nodiscard]] std::shared_ptr<Object> make_guarded(Arguments&&... arguments) {
  return {new Object(std::forward<Arguments>(arguments)...), [](Object* object) {
            const Locked lock;
            delete object;  // NOLINT(cppcoreguidelines-owning-memory): what a deleter is for
          }};
}

}  // namespace scripting

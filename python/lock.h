// The interpreter's lock, let go of and taken.
#pragma once

#include <memory>
#include <utility>

#include <Python.h>

namespace scripting {

/// Lets go of the lock while it lives; the thread must have it.
class Unlocked {
 public:
  Unlocked() : state_(PyEval_SaveThread()) {}
  Unlocked(const Unlocked&) = delete;
  Unlocked& operator=(const Unlocked&) = delete;
  ~Unlocked() { PyEval_RestoreThread(state_); }

 private:
  PyThreadState* state_;
};

/// Has the lock while it lives, whether the thread had it before or not.
class Locked {
 public:
  Locked() : state_(PyGILState_Ensure()) {}
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

// The interpreter's lock, let go of and taken.
//
// When the interpreter ends while another thread waits for the lock, that thread would be ended in the middle of C++
// frames, which ends the process. Such a thread sleeps instead until the process is gone.
#pragma once

#include <Python.h>

namespace scripting {

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

}  // namespace scripting

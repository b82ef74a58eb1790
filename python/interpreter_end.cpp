// What becomes of a thread that the interpreter ends.
//
// When the interpreter goes while another thread waits for its lock, be it in a script that we called, the thread is
// ended where it stands: its C++ frames are unwound without the lock, and that ends the process. So the calls of ours
// that may run scripts or wait for the lock are routed through here by the linker (CMakeLists.txt): the thread sleeps
// instead, as newer interpreters let it, until the process is gone.
#include <chrono>
#include <thread>

#include <Python.h>
#include <cxxabi.h>

namespace {

// What ends a thread is no object, and the sanitizer minds that it is caught by reference.
template <class Call>
__attribute__((no_sanitize("undefined"))) auto or_asleep(Call call) -> decltype(call()) {
  try {
    return call();
  } catch (const abi::__forced_unwind&) {
    while (true) std::this_thread::sleep_for(std::chrono::hours(1));
  }
}

}  // namespace

// NOLINTBEGIN: the linker's names
#define STAYS(result, name, parameters, arguments)             \
  extern "C" result __real_##name parameters;                  \
  extern "C" result __wrap_##name parameters {                 \
    return or_asleep([&] { return __real_##name arguments; }); \
  }

STAYS(PyObject*, PyObject_Call, (PyObject * a, PyObject* b, PyObject* c), (a, b, c))
STAYS(PyObject*, PyObject_CallObject, (PyObject * a, PyObject* b), (a, b))
STAYS(PyObject*, PyObject_GetAttr, (PyObject * a, PyObject* b), (a, b))
STAYS(PyObject*, PyObject_GetAttrString, (PyObject * a, const char* b), (a, b))
STAYS(int, PyObject_SetAttrString, (PyObject * a, const char* b, PyObject* c), (a, b, c))
STAYS(PyObject*, PyObject_GetItem, (PyObject * a, PyObject* b), (a, b))
STAYS(int, PyObject_SetItem, (PyObject * a, PyObject* b, PyObject* c), (a, b, c))
STAYS(PyObject*, PyObject_GetIter, (PyObject * a), (a))
STAYS(PyObject*, PyIter_Next, (PyObject * a), (a))
STAYS(PyObject*, PyObject_Str, (PyObject * a), (a))
STAYS(int, PyObject_IsTrue, (PyObject * a), (a))
STAYS(int, PyObject_RichCompareBool, (PyObject * a, PyObject* b, int c), (a, b, c))
STAYS(PyObject*, PySequence_List, (PyObject * a), (a))
STAYS(PyObject*, PySequence_Tuple, (PyObject * a), (a))
STAYS(int, PySequence_Contains, (PyObject * a, PyObject* b), (a, b))
STAYS(PyObject*, PySequence_GetItem, (PyObject * a, Py_ssize_t b), (a, b))
STAYS(Py_ssize_t, PySequence_Size, (PyObject * a), (a))
STAYS(double, PyFloat_AsDouble, (PyObject * a), (a))
STAYS(PyObject*, PyNumber_Float, (PyObject * a), (a))
STAYS(PyObject*, PyNumber_Long, (PyObject * a), (a))
STAYS(PyObject*, PyImport_ImportModule, (const char* a), (a))
STAYS(PyObject*, PyRun_StringFlags, (const char* a, int b, PyObject* c, PyObject* d, PyCompilerFlags* e),
      (a, b, c, d, e))
STAYS(void, _Py_Dealloc, (PyObject * a), (a))
STAYS(void, PyEval_RestoreThread, (PyThreadState * a), (a))
STAYS(void, PyEval_AcquireThread, (PyThreadState * a), (a))
STAYS(PyGILState_STATE, PyGILState_Ensure, (), ())
// NOLINTEND

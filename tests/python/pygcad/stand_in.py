"""A strict little host behind the scripting interface: prompts that are answered beforehand, a drawing in memory.

What a CAD host lets pass in silence is an error here. Every call wants its number and types of arguments exactly, by
position and on the thread that the commands run on. Statuses, modes and ids are opaque: made anew for each answer,
equal by == only, neither true nor false. An object is closed once and not used after that.

The interface itself stands in the modules that the host offers by name. `session` is the side that tests work with:
entities, groups and styles are plain data there, by handle, so that the count of live host objects tells what the
module still holds.
"""
import copy
import functools
import gc
import inspect
import itertools
import math
import threading
from types import SimpleNamespace


class HostObject:
    """Counted while it lives."""
    count = [0]

    def __new__(cls, *_):
        cls.count[0] += 1
        return super().__new__(cls)

    def __del__(self):
        self.count[0] -= 1


class Opaque(HostObject):
    def __init__(self, value):
        self.value = value

    def __eq__(self, other):
        if type(self) is not type(other):
            raise TypeError(f"{self!r} compared with {other!r}")
        return self.value == other.value

    def __bool__(self):
        raise TypeError(f"{self!r} is neither true nor false")

    def __repr__(self):
        return f"<{type(self).__name__} {self.value}>"


class ErrorStatus(Opaque): pass
class PromptStatus(Opaque): pass
class ResultType(Opaque): pass
class OpenMode(Opaque): pass
class GcDbObjectId(Opaque): pass


class Gcad:
    eOk, eWasOpenForRead, eWasOpenForWrite = map(ErrorStatus, ["eOk", "eWasOpenForRead", "eWasOpenForWrite"])
    eNotOpenForWrite, eKeyNotFound = map(ErrorStatus, ["eNotOpenForWrite", "eKeyNotFound"])
    eDuplicateKey, eInvalidInput = map(ErrorStatus, ["eDuplicateKey", "eInvalidInput"])


class GcDb:
    kForRead, kForWrite = OpenMode("read"), OpenMode("write")


RTNORM, RTNONE, RTCAN, RTERROR = map(PromptStatus, ["RTNORM", "RTNONE", "RTCAN", "RTERROR"])
RTSHORT, RTREAL = ResultType("RTSHORT"), ResultType("RTREAL")
STATUS = "status"  # a way to fail; the other way is an exception to raise


class Session:
    def __init__(self):
        self.lock = threading.RLock()  # a collection may close something meanwhile
        self.commands, self.thread = {}, threading.get_ident()  # None: commands run on any thread
        self.clear()

    def clear(self):
        """A new drawing, no answers, nothing shown, nothing to fail."""
        self.file, self.typed = None, []  # None cancels the dialog or the prompt; file "" leaves the buffer unset
        self.shown, self.keywords = "", None  # all that was printed, prompts with their answers among it
        self.entities, self.groups, self.styles, self.records, self.variables = {}, {}, {}, [], {}
        self.handles, self.open, self.closed_twice = itertools.count(0x40), [], []
        self.callback = None  # what the host does at its next call: it is handed the call's name
        self.fail(math.inf, STATUS)

    def fail(self, at, way, lasting=False):
        """Of the calls from now on that can fail in this way, the one at that index does, or all from it on."""
        self.fatal, self.way, self.lasting, self.calls = at, way, lasting, []

    def fails(self, call, has_status):
        """Whether the call is to answer with a failing status; raises what it is to raise."""
        if self.callback:
            self.callback(call)
        if self.way == STATUS and not has_status:
            return False
        self.calls.append(call)
        index = len(self.calls) - 1
        if index != self.fatal and not (self.lasting and index > self.fatal):
            return False
        if self.way == STATUS:
            return True
        raise self.way

    def failed_call(self):
        """The first call that failed, with its number among those of its name; None when none did."""
        if self.fatal >= len(self.calls):
            return None
        call = self.calls[self.fatal]
        return f"{call} {self.calls[:self.fatal + 1].count(call)}"

    def ask(self, prompt):
        answer = self.typed.pop(0) if self.typed else None
        self.shown += f"{prompt}{answer or ''}\n"
        return answer

    def opened(self, kind, key, mode):
        """A new opening of what the drawing keeps, or the status that says which opening is in the way."""
        for other in self.open:
            if other.key == key and GcDb.kForWrite in (other.mode, mode):
                return Gcad.eWasOpenForRead if other.mode == GcDb.kForRead else Gcad.eWasOpenForWrite, None
        return Gcad.eOk, kind(key, mode)

    def live_objects(self):
        gc.collect()
        return HostObject.count[0]


session = Session()


def check(call, values, kinds):
    if len(values) != len(kinds):
        raise TypeError(f"{call} takes {len(kinds)} arguments, not {len(values)}")
    for value, kind in zip(values, kinds):
        if not (type(value) is kind if kind in (bool, int, float, str) else isinstance(value, kind)):
            raise TypeError(f"{call} takes a {kind.__name__}, not {value!r}")
    if session.thread not in (None, threading.get_ident()):
        raise RuntimeError(f"{call} on another thread than the commands'")


def fresh(answer):
    """The answer with statuses and ids of its own."""
    if isinstance(answer, tuple):
        return tuple(map(fresh, answer))
    return copy.copy(answer) if isinstance(answer, Opaque) else answer


def host_call(failure=None, acts_first=False):
    """A call whose annotations are the types it wants. It may fail by raising and, with a `failure`, by that answer."""
    def decorate(function):
        kinds = [object if parameter.annotation is parameter.empty else parameter.annotation
                 for parameter in inspect.signature(function).parameters.values()]

        @functools.wraps(function)
        def call(*arguments):
            owner = arguments[0] if arguments and "." in function.__qualname__ else None
            name = (f"{type(owner).__name__}." if owner is not None else "") + function.__name__
            check(name, arguments, kinds)
            if isinstance(owner, Opening):
                owner.use(name)
            answer = function(*arguments) if acts_first else None
            if session.fails(name.removesuffix(".__init__"), failure is not None):
                return fresh(failure)
            return fresh(answer if acts_first else function(*arguments))
        return call
    return decorate


class Opening(HostObject):
    """Of what the drawing keeps under `key`, or of a newcomer that has none yet."""
    is_open = None  # until its making is done

    def __init__(self, key, mode):
        self.key, self.mode, self.is_open = key, mode, True
        with session.lock:
            session.open.append(self)

    def use(self, call):
        if self.is_open is not False:
            return
        if call.endswith(".close"):
            session.closed_twice.append(call)
        raise RuntimeError(f"{call} after close")

    @host_call(Gcad.eInvalidInput, acts_first=True)
    def close(self):
        self.is_open = False
        with session.lock:
            session.open = [other for other in session.open if other is not self]
        return Gcad.eOk


class Newcomer(Opening):
    def __init__(self, **data):
        super().__init__(None, GcDb.kForWrite)
        self.data = SimpleNamespace(**data)

    def move_into(self, kept):
        """Its id, now that it is kept; it stays open."""
        self.key = next(session.handles)
        kept[self.key] = self.data
        return GcDbObjectId(self.key)

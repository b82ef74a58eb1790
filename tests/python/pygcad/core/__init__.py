"""Registration of commands. A later module of the interface wins where two have a name, as with gcutPrintf."""
from pygcad.stand_in import HostObject, check, session


class Command(HostObject):
    """A registered command. Its function takes nothing and answers nothing."""

    def __init__(self, function, names):
        self.function, self.names = function, names

    def __call__(self):
        if (answer := self.function()) is not None:
            raise TypeError(f"a command has no result, this one answered {answer!r}")


def command(*, local_name, global_name, group_name):
    names = local_name, global_name, group_name
    check("command", names, [str] * 3)

    def register(function):
        session.commands[global_name] = Command(function, names)
        return session.commands[global_name]
    return register


def gcutPrintf(text):
    raise NotImplementedError("pygcad.pygrx has the gcutPrintf that prints")

"""Prompts, printing and system variables."""
from pygcad.core.runtime import resbuf
from pygcad.stand_in import RTCAN, RTERROR, RTNONE, RTNORM, RTREAL, RTSHORT, host_call, session


@host_call(RTERROR)
def gcedGetFileD(title: str, default: str, filter: str, flags: int, rb: resbuf):
    if session.file is None:
        return RTCAN
    if session.file:
        rb.resval.rstring = session.file
    return RTNORM


@host_call((RTERROR, ""))
def gcedGetString(spaces: int, prompt: str):
    answer = session.ask(prompt)
    return (RTCAN, "") if answer is None else (RTNORM, answer)


@host_call(RTERROR, acts_first=True)
def gcedInitGet(flags: int, words: str):
    session.keywords = words.split(" ")
    return RTNORM


@host_call((RTERROR, ""))
def gcedGetKword(prompt: str):
    words, session.keywords = session.keywords, None
    answer = session.ask(prompt)
    if not answer:
        return (RTCAN if answer is None else RTNONE), ""
    if answer not in words:
        raise ValueError(f"{answer} is none of {words}")
    return RTNORM, answer


@host_call()
def gcutPrintf(text: str):
    session.shown += text


@host_call(RTERROR)
def gcedSetVar(name: str, rb: resbuf):
    restype, field = {"PDMODE": (RTSHORT, "rint"), "PDSIZE": (RTREAL, "rreal")}[name]
    if rb.restype != restype:
        return RTERROR
    session.variables[name] = getattr(rb.resval, field)
    return RTNORM

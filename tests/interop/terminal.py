"""Uses the program as people do: whole imports, bad files, full disks, piped answers, keys typed at a terminal.

    terminal.py PROGRAM [unittest options]
"""
import contextlib
import fcntl
import os
import pathlib
import random
import re
import resource
import select
import signal
import subprocess
import sys
import tempfile
import termios
import time
import unittest

PATIENCE = 120  # seconds; a build with sanitizers on a busy machine is slow
LONG = 100_000_000
POINTS = b"1;6542052.26;6024823.93;2.85\n2;6542057.52;6024830.58;3.77\n3;6542070.89;6024826.78;3.26\n"
FIRST, NORTH_FIRST = (6542052.26, 6024823.93, 2.85), (6024823.93, 6542052.26, 2.85)
EXCHANGED_POINTS = b"1;6024823.93;6542052.26;2.85\n2;6024830.58;6542057.52;3.77\n3;6024826.78;6542070.89;3.26\n"
DATA = pathlib.Path(__file__).resolve().parents[1] / "data"
AXES = (DATA / "samples" / "05_kudowa_pl2000_s5_NE_niejednoznaczne.txt").read_bytes()  # fits kept and exchanged
KEPT, EXCHANGED = (5590435.97, 5588346.4, 392.34), (5588346.4, 5590435.97, 392.34)
COLUMNS = b"7 100 200\n9 110 220\n"  # in no coordinate system, and too few rows for a numbering
NUMBERED, UNNUMBERED = (100.0, 200.0, 0.0), (7.0, 100.0, 200.0)
QUESTIONS = {AXES: "<Tak>: ", COLUMNS: "<Numer>: ", POINTS: "współrzędnymi: "}  # POINTS leave only the path open
CANNOT_OPEN, FAILED, CANCELLED = "Nie można otworzyć pliku: ", "Wczytywanie przerwał błąd: ", ["Anulowano"]
NO_POINTS = ["Nie znaleziono ani jednego punktu", "UTF-8 lub Windows-1250"]
LEFT, RIGHT, UP, DOWN, DELETE, BACKSPACE = "\x1b[D", "\x1b[C", "\x1b[A", "\x1b[B", "\x1b[3~", "\x7f"


def tags(drawing):
    lines = without_date(drawing.read_text("utf-8")).split("\n")
    return list(zip(lines[::2], lines[1::2]))


def first_point(drawing):
    at = tags(drawing).index(("0", "POINT"))
    point = dict(reversed(tags(drawing)[at:at + 20]))  # of equal codes the first one stays
    return tuple(float(point[code]) for code in ("10", "20", "30"))


def long_cell(path):
    with open(path, "wb") as file:
        file.write(b"1;2;")
        file.truncate(LONG)  # NUL bytes that take no room on the disk


def forbidden(make, right):
    def prepare(path):
        make(path)
        if os.access(path, right):
            raise unittest.SkipTest("this user may do everything")
    return prepare


def link_to(target):
    return lambda path: path.symlink_to(target)


def without_date(text):
    return re.sub(r"\d{4}-\d\d-\d\d", "DATE", text)


class Program(unittest.TestCase):
    program, maxDiff = None, None

    def start(self, name, content):
        """An empty home, and a folder to work in that holds one file."""
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.folder, self.log = (pathlib.Path(home.name, *part) for part in (["pomiary"], ["state", "vexo-xyz", "log"]))
        self.folder.mkdir()
        self.environment = {"HOME": home.name, "XDG_STATE_HOME": os.path.join(home.name, "state"), "TERM": "xterm"}
        for variable in ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS"):
            self.environment[variable] = os.environ.get(variable, "")
        self.put(name, content)

    def put(self, name, content):
        if callable(content):
            content(self.folder / name)
        elif content is not None:
            (self.folder / name).write_bytes(content)

    def tree(self):
        stats = {path.name: path.lstat() for path in self.folder.iterdir()}
        return {name: (s.st_mode, s.st_ino, s.st_size, s.st_mtime_ns) for name, s in stats.items()}

    def call(self, *arguments, answers="", **how):
        run = subprocess.run([self.program, *arguments], input=answers.encode(), capture_output=True, cwd=self.folder,
                             env=self.environment, timeout=PATIENCE, **how)
        self.assertLess(len(run.stdout), 20_000, "too much for a screen")
        out, err = (stream.decode(errors="surrogateescape") for stream in (run.stdout, run.stderr))
        self.assertNotRegex(err, "Sanitizer|runtime error|terminate called")
        self.assertNotRegex(out, "[\udc80-\udcff]", "not UTF-8")
        self.assertNotRegex(out, "[\x00-\x08\x0b-\x1f\x7f-\x9f]", "a control character could steer the terminal")
        return run.returncode, out, err

    def check_texts(self, texts, out):
        for text in texts:
            self.assertIn(text, out)

    def check_drawing(self, code, shown, point, source="dane.csv", drawing="dane.dxf"):
        """What was to be inserted is in the drawing; nothing else was written."""
        self.assertEqual(code, 0 if point else 1, shown)
        self.assertEqual(set(os.listdir(self.folder)), {source, drawing} if point else {source}, shown)
        if point:
            self.assertEqual(first_point(self.folder / drawing), point, shown)

    # ---- Whole imports

    def test_transcripts(self):
        """A file says what is run, typed and imported (nothing stands for a file of the test data), and what is to be
        seen; one beside it holds the drawing."""
        for path in sorted((DATA / "transcripts").glob("*.txt")):
            with self.subTest(path.name):
                parts = re.split(r"^-{9} (.*)\n", path.read_text("utf-8"), flags=re.MULTILINE)
                command, _, typed, name, content, status, screen = parts
                settings, arguments = (words.split() for words in command.split("vexo-xyz"))
                self.start(name, content.encode() or next(DATA.rglob(name)).read_bytes())
                self.environment |= dict(setting.split("=") for setting in settings)
                code, out, _ = self.call(*arguments, answers=typed)
                self.assertEqual((f"exit status {code}", without_date(out)), (status, screen))
                if path.with_suffix(".dxf").exists():
                    drawing, = self.folder.glob("*.dxf")
                    self.assertEqual(tags(drawing), tags(path.with_suffix(".dxf")))

    # ---- Files

    def test_files_without_points(self):
        xls, zipped = bytes.fromhex("D0CF11E0A1B11AE1") + bytes(504), b"PK\x03\x04" + bytes(60)
        names = ["brak.csv", "50%s%n%d%.csv", '"a"b.csv"', "zażółć gęślą.csv", "a\nb.csv", "   ", "\x1b[31m\x9b.csv",
                 os.fsdecode(b"\xb9.csv")]
        shown = ["brak.csv", "50%s%n%d%.csv", 'a"b.csv', "zażółć gęślą.csv", "a\nb.csv", "", "\ufffd[31m\ufffd.csv",
                 "\ufffd.csv"]
        empty = {"empty": b"", "comments": b"\xef\xbb\xbf# Nr X Y\r\n//\r\n \t\r\r\n", "header": b"Nr;X;Y;H\n",
                 "one column": b"6542052.26\n6542057.52\n", "rubbish": random.Random(5).randbytes(50_000),
                 "NUL bytes": POINTS.replace(b".", b"\0"), "UTF-16": POINTS.decode().encode("utf-16"),
                 "long line": b"7" * LONG}
        for case, name, content, code, texts in [
            *(("missing", name, None, 3, [CANNOT_OPEN + seen + "\n"]) for name, seen in zip(names, shown)),
            *((case, "dane.csv", content, 1, NO_POINTS) for case, content in empty.items()),
            ("folder", "dane.csv", os.mkdir, 3, [CANNOT_OPEN + "dane.csv\n", "zwykłym plikiem"]),
            ("FIFO", "dane.csv", os.mkfifo, 3, [CANNOT_OPEN + "dane.csv\n", "zwykłym plikiem"]),
            ("unreadable", "dane.csv", forbidden(lambda path: path.touch(0), os.R_OK), 3, [CANNOT_OPEN, "prawo go"]),
            ("read error", "dane.csv", link_to("/proc/self/mem"), 3, [CANNOT_OPEN]),
            ("size that nobody knows", "dane.csv", link_to("/proc/loadavg"), 1, CANCELLED),
            ("long line of cells", "dane.csv", b"5788467.125;7500846.25;;;" * (LONG // 25), 1, CANCELLED),
            ("long cell in a question", "dane.csv", long_cell, 1, CANCELLED),
            ("long cell in a failure", "dane.csv", b"1 2\n3 4\n" + b"b" * LONG + b" 5", 3, [FAILED + "IndexError: "]),
            ("old workbook", "dane.csv", xls, 3, ["dawnym formacie .xls", "zapisz jako .xlsx albo .csv"]),
            ("ZIP that is no workbook", "dane.csv", zipped, 3, [FAILED]),
            ("labelled row", "dane.csv", b"57.10 75.71\nbaza\a 100\n", 3, [FAILED + "IndexError: ", "baza\ufffd 100"]),
            ("infinite", "dane.csv", b"1;1e400;2;3\n2;5;6;7\n3;6;7;8\n", 3, [FAILED + "OverflowError: "]),
        ]:
            with self.subTest(case, name=name):
                self.start(name, content)
                before = self.tree()
                got, out, err = self.call(name)
                self.assertEqual((got, self.tree()), (code, before), out + err)
                self.check_texts(texts, out)
                log = self.log.read_text("utf-8") if self.log.exists() else ""
                self.assertEqual(log.count("\n"), int(code == 3), log)

    def test_refused_points(self):
        for content, point, refused in [
            (POINTS + b"4;nan;6024826.78;3\n5;6542070.89;6024826.78;-inf\n", FIRST, 4),  # a point and a label each
            (b"1;1e400;2;3\n", None, 2), (b"1;2;-9e307;3\n", None, 2), (b"1;nan;2;3\n2;5;NaN;7\n3;6;7;-nan\n", None, 6),
        ]:
            with self.subTest(content):
                self.start("dane.csv", content)
                code, out, _ = self.call("dane.csv", "--first-column", "number")
                self.check_drawing(code, out, point)
                self.assertIn(f"nie przyjął obiektów: {refused} ", out)

    def test_default_names(self):
        for name, stem in [("dane.csv", "dane"), ("zażółć gęślą.TXT", "zażółć gęślą"), ('a"b\nc.csv', 'a"b\nc'),
                           ("%s%n.csv", "%s%n"), ("bez_kropki", "bez_kropki"), ("-a.b.csv", "-a.b"),
                           (os.fsdecode(b"\xb9.csv"), os.fsdecode(b"\xb9"))]:
            with self.subTest(name):
                self.start(name, POINTS)
                for given, drawing in [(self.folder / name, ""), (name, "_2"), (f' "{name}"\t', "_3")]:
                    before = self.tree()
                    code, out, err = self.call("--", given)
                    self.assertEqual((code, self.tree().keys() - before), (0, {f"{stem}{drawing}.dxf"}), out + err)
                    self.assertEqual(self.tree() | before, self.tree())

    def test_given_name(self):
        self.start("dane.csv", POINTS)
        target = self.folder / "rysunek.dxf"
        for mask in (0o022, 0o077, 0o000):
            code, out, _ = self.call("dane.csv", "-o", target.with_suffix(""), umask=mask)
            self.check_drawing(code, out, FIRST, drawing=target.name)
            self.assertEqual(target.stat().st_mode & 0o7777, 0o666 & ~mask)
            before = self.tree()
            code, out, _ = self.call("dane.csv", "-o", target)
            self.assertEqual((code, self.tree()), (3, before))
            self.check_texts([str(target), "--force"], out)
            target.chmod(0o640)
            code, out, _ = self.call("dane.csv", "-o", target, "--force", umask=mask)
            self.check_drawing(code, out, FIRST, drawing=target.name)
            self.assertEqual(target.stat().st_mode & 0o7777, 0o640)
            target.unlink()

    def test_the_points_are_never_replaced(self):
        self.start("dane.csv", POINTS)
        (self.folder / "drugi.csv").hardlink_to(self.folder / "dane.csv")
        (self.folder / "link.csv").symlink_to("dane.csv")
        before = self.tree()
        for target in ("dane.csv", "./dane.csv", "drugi.csv", "link.csv"):
            for given, answers in [(["dane.csv"], ""), ([' "dane.csv"'], ""), ([], "dane.csv\n")]:
                with self.subTest(target, given=given):
                    code, out, _ = self.call("--force", "-o", target, *given, answers=answers)
                    self.assertEqual((code, self.tree()), (3, before), out)
                    self.assertIn(f"Plik {target} ", out)

    def test_drawings_that_cannot_be_saved(self):
        read_only = forbidden(lambda path: path.mkdir(0o555), os.W_OK)
        forced, unlimited = ["--force", "-o", "rysunek.dxf"], resource.getrlimit(resource.RLIMIT_FSIZE)[0]
        for case, name, content, arguments, limit, reason in [
            ("no such folder", None, None, ["-o", "nie/ma/rysunek.dxf"], unlimited, "nie ma takiego folderu"),
            ("name that is too long", None, None, ["-o", "d" * 300], unlimited, "nazwa jest za długa"),
            ("folder without write permission", "tylko", read_only, ["-o", "tylko/rysunek.dxf"], unlimited, "brak uprawnień"),
            ("target is a folder", "rysunek.dxf", os.mkdir, forced, unlimited, "zwykły plik"),
            ("target is a FIFO", "rysunek.dxf", os.mkfifo, forced, unlimited, "zwykły plik"),
            ("disk full", None, None, [], 2000, "dozwoloną wielkość"),
            ("disk full at the first byte", None, None, ["-o", "rysunek.dxf"], 0, "dozwoloną wielkość"),
            ("disk full, drawing to be replaced", "rysunek.dxf", b"mine", forced, 2000, "dozwoloną wielkość"),
        ]:
            with self.subTest(case):
                self.start("dane.csv", AXES if limit == unlimited else POINTS)
                self.put(name, content)
                before = self.tree()
                code, out, err = self.call("dane.csv", *arguments, preexec_fn=lambda: resource.setrlimit(
                    resource.RLIMIT_FSIZE, (limit, limit)))  # a write fails with it as it does on a full disk
                self.assertEqual((code, self.tree()), (3, before), out + err)
                self.check_texts(["Nie można zapisać rysunku " + (arguments or ["dane.dxf"])[-1], reason + "."], out)
                self.assertNotIn(QUESTIONS[AXES], out)
                self.assertIn(reason if limit else "", self.log.read_text("utf-8"))  # without room there is no log

    def test_interrupted_writing(self):
        rows = b"".join(b"%d;%d.25;%d.5;%d\n" % (i, 6542052 + i % 500, 6024823 + i // 500, i) for i in range(300_000))
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            for _ in range(9):  # the drawing may be finished before the signal comes
                self.start("dane.csv", rows)
                with subprocess.Popen([self.program, "dane.csv"], cwd=self.folder, env=self.environment,
                                      stdout=subprocess.DEVNULL) as process, contextlib.suppress(FileNotFoundError):
                    while process.poll() is None and not any(
                            part.stat().st_size for part in self.folder.glob(".vexo-xyz-*")):
                        time.sleep(0.001)
                    process.send_signal(number)
                if not (self.folder / "dane.dxf").exists():
                    break
            self.assertEqual((process.returncode, os.listdir(self.folder)), (-number, ["dane.csv"]))

    # ---- Answers in a pipe

    def test_piped_answers(self):
        for content, arguments, answers, point, texts in [
            (AXES, [], "z\n", EXCHANGED, []), (AXES, [], "ZAMIEN\n", EXCHANGED, []), (AXES, [], "tak", KEPT, []),
            (AXES, [], "\t zAm \r\n", EXCHANGED, ["\t zAm \n"]), (AXES, [], "\n", KEPT, []),
            (AXES, [], "%s%n\nZamiena\nz\n", EXCHANGED, ["„%s%n”", "„Zamiena”"]),
            (AXES, [], "x\n", KEPT, ["„x”"]),  # cancelling this question leaves the axes as they are
            (AXES, [], "z\x1b\n", KEPT, []), (AXES, ["--axes=keep"], "z\n", KEPT, ["<Tak>: Tak\n"]),
            (COLUMNS, [], "\n", NUMBERED, []), (COLUMNS, [], "WSPOL\n", UNNUMBERED, []),
            (COLUMNS, [], "z\n", None, ["„z”"] + CANCELLED), (COLUMNS, [], "w\x1b\n", None, CANCELLED),
            (COLUMNS, ["--first-column", "number"], "", NUMBERED, []),
            (COLUMNS, ["--first-column", "coordinate"], "", UNNUMBERED, []),
            (COLUMNS, ["--axes", "swap"], "w\n", UNNUMBERED, ["--axes nie była"]),
            (AXES, ["--axes=north-first"], "t\n", EXCHANGED, []), (AXES, ["--axes=east-first"], "z\n", KEPT, []),
            (POINTS, ["--axes=north-first"], "", NORTH_FIRST, []),  # although a single reading says otherwise
            (COLUMNS, ["--axes=north-first"], "\n", (200.0, 100.0, 0.0), []),  # although there is none
            (b"# columns: number;E;N\n" + COLUMNS, [], "w\n", NUMBERED, []),
            (b"\xef\xbb\xbf# columns: X;Y;Z\r\n" + COLUMNS, [], "n\n", UNNUMBERED, []),
            (b"# columns: X;Y;Z\n" + AXES, [], "n\nz\n", EXCHANGED, ["kolumn: 3,"]),  # four, so the line says nothing
            (b"# Columns: X;Y;Z\n" + COLUMNS, [], "n\n", NUMBERED, []),
            (b"# columns: number;E;N;Z\n" + EXCHANGED_POINTS, [], "", NORTH_FIRST, []),
            (b"# columns: number;X;Y;Z\n" + EXCHANGED_POINTS, [], "", FIRST, []),
            (b"# columns: number;E;N;Z\n" + POINTS, ["--axes=north-first"], "", NORTH_FIRST, ["E, N; rozstrzyga"]),
        ]:
            with self.subTest(content=content[:9], arguments=arguments, answers=answers):
                self.start("dane.csv", content)
                code, out, _ = self.call("dane.csv", *arguments, answers=answers)
                self.check_drawing(code, out, point)
                self.check_texts(texts, out)

    def test_piped_path(self):
        for answers, content, code, texts in [
            ("dane.csv", POINTS, 0, []), (' "dane.csv" \r\n', POINTS, 0, []), ('\t""dane.csv\n', POINTS, 0, []),
            ("./dane.csv\nz\n", AXES, 0, []), ("dane.csv\n", COLUMNS, 1, CANCELLED), ("", POINTS, 1, CANCELLED),
            (" \t \n", POINTS, 1, CANCELLED), ("dane.csv\x1b\n", POINTS, 1, CANCELLED),
            ("'dane.csv'\n", POINTS, 0, []), (" ~/pomiary/dane.csv\n", POINTS, 0, []), ("dan\\e.csv\n", POINTS, 0, []),
            ("file://{}/dane%2Ecsv\n", POINTS, 0, []), ("'file://localhost{}/dane.csv'\n", POINTS, 0, []),
            ("'dane.csv\n", POINTS, 3, [CANNOT_OPEN + "'dane.csv\n"]), ("file://x{}/dane.csv\n", POINTS, 3, [CANNOT_OPEN]),
            ('""\n', POINTS, 3, [CANNOT_OPEN]), ("dane.csv\0\a\x9b2J.txt\n", POINTS, 3, [CANNOT_OPEN]),
        ]:
            with self.subTest(answers=answers):
                self.start("dane.csv", content)
                got, out, _ = self.call(answers=answers.replace("{}", str(self.folder)))
                self.assertEqual((got, len(os.listdir(self.folder))), (code, 1 if code else 2), out)
                self.check_texts(texts, out)

    def test_command_line(self):
        self.start("dane.csv", POINTS)
        for arguments, code, text in [
            (["--nie-ma"], 2, "--nie-ma"), (["drugi.csv", "-o", "a"], 2, "--output"), (["-o"], 2, "--output"),
            (["--axes", "sideways"], 2, "sideways"), (["--first-column", ""], 2, "--first-column"),
            (["--market", "FR"], 2, "FR"), (["-o", "a", "-o", "b"], 2, "--output"), (["-o", ""], 2, "--output"),
            (["-o", "-"], 2, "standard output"), (["--force"], 2, "--output"), (["--version"], 0, "vexo-xyz"),
            (["--help"], 0, "Exit codes:\n  0 "), (["-h"], 0, "\n  1 "), (["-h"], 0, "\n  2 "), (["-h"], 0, "\n  3 "),
        ]:
            with self.subTest(arguments):
                got, out, err = self.call("dane.csv", *arguments)
                self.assertEqual((got, os.listdir(self.folder), out if code else err), (code, ["dane.csv"], ""))
                self.assertIn(text, err if code else out)

    # ---- Keys at a terminal

    @contextlib.contextmanager
    def terminal(self, *command, **environment):
        """What is run at a terminal of its own: the process, and what types keys once a text is to be seen."""
        master, slave = os.openpty()
        usual, screen = termios.tcgetattr(slave), bytearray()
        process = subprocess.Popen(command, stdin=slave, stdout=slave, stderr=slave, cwd=self.folder,
                                   env=self.environment | environment, start_new_session=True,
                                   preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))

        def wait(condition):
            deadline = time.monotonic() + PATIENCE
            while select.select([master], [], [], 0.01)[0] or not condition():
                self.assertLess(time.monotonic(), deadline, bytes(screen))
                if select.select([master], [], [], 0)[0]:
                    screen.extend(os.read(master, 65536))

        def ended():
            return process.poll() is not None

        def type_at(text, keys):
            """Keys typed before the line editor listens would not be its own."""
            wait(lambda: ended() or text.encode() in screen and not termios.tcgetattr(slave)[3] & termios.ICANON)
            seen = screen.decode(errors="replace")
            screen.clear()
            os.write(master, keys.encode())
            return seen
        try:
            yield process, type_at
            wait(ended)
            self.assertEqual(termios.tcgetattr(slave), usual, "the terminal's settings")
        finally:
            self.screen = screen.decode(errors="replace")
            process.kill()
            process.wait()
            os.close(master)
            os.close(slave)
        self.assertNotRegex(self.screen, "Sanitizer|runtime error")

    def type(self, arguments, question, keys, number=None, **environment):
        """Types the keys at the question, then sends the signal; exit code and screen."""
        with self.terminal(self.program, *arguments, **environment) as (process, type_at):
            type_at(question, keys)
            if number:
                process.send_signal(number)
        return process.returncode, self.screen

    def test_keys(self):
        for content, keys, point in [
            (AXES, "z\r", EXCHANGED), (AXES, "\r", KEPT), (AXES, "a" + LEFT + "z" + RIGHT + "\r", EXCHANGED),
            (AXES, "zz" + BACKSPACE + "\r", EXCHANGED), (AXES, "z\x1b", KEPT), (COLUMNS, "w\t\r", UNNUMBERED),
            (COLUMNS, UP + DOWN + "wó" + LEFT + DELETE + "\r", UNNUMBERED), (COLUMNS, "\x1b", None),
            (COLUMNS, "w\x1b", None), (COLUMNS, "\x04", None), (POINTS, "dane\x1b", None), (POINTS, "\x04", None),
        ]:
            with self.subTest(content=content[:9], keys=keys):
                self.start("dane.csv", content)
                arguments = [] if content == POINTS else ["dane.csv"]
                self.check_drawing(*self.type(arguments, QUESTIONS[content], keys), point)

    def test_typed_and_completed_paths(self):
        tongues = [{}, {"LC_ALL": "C"}, {"LANG": "C"}, {"LC_ALL": "C.UTF-8"}, {"LC_ALL": "xx_XX"}, {"TERM": "dumb"}]
        polish = [("zażółć_gęślą.csv", keys) for keys in ("zażółć_gęślą.csv\r", ' "./zażó\t\r', "zażx\x7f\t\r")]
        for name, keys, environment in [(*case, tongue) for case in polish for tongue in tongues] + [
            ("dom nad rzeką.csv", "dom\t\r", {}), ("dom nad rzeką.csv", "dom nad\t\r", {}), ("dom nad rzeką.csv", "~/pomiary/do\t\r", {}),
            ("dom nad rzeką.csv", "dom\\ n\t\r", {}), ("dom nad rzeką.csv", "'dom\t'\r", {}),
            ("dom nad rzeką.csv", "file://{}/dom%20n\t\r", {}), ("o'c.csv", "o\t\r", {}),
            ("punkty (2).csv", "pun\t\r", {}), ("a&b.csv", "a&\t\r", {}), ("50%s$x.csv", "50\t\r", {}),
        ]:
            with self.subTest(name, keys=keys, environment=environment):
                self.start(name, POINTS)
                code, screen = self.type([], QUESTIONS[POINTS], keys.replace("{}", str(self.folder)), **environment)
                self.check_drawing(code, screen, FIRST, name, name.replace(".csv", ".dxf"))

    def test_interrupted_question(self):
        self.start("dane.csv", AXES)
        for keys, number, code in [("z\x03", None, -signal.SIGINT), ("z", signal.SIGTERM, -signal.SIGTERM),
                                   ("z", signal.SIGHUP, -signal.SIGHUP)]:
            with self.subTest(code):
                got, screen = self.type(["dane.csv"], QUESTIONS[AXES], keys, number)
                self.assertEqual((got, os.listdir(self.folder)), (code, ["dane.csv"]), screen)

    def test_stopped_question(self):
        """The question is there again, and with it what was typed, as often as the program is stopped."""
        self.start("dane.csv", AXES)
        with self.terminal("bash", "--norc", "--noprofile", "-i", PS1="$ ") as (_, type_at):
            type_at("$ ", f"{self.program} dane.csv\r")
            type_at(QUESTIONS[AXES], "za")
            type_at("za", "\x1a")  # which discards what is not read yet
            for key in ("\x1a", "\x1a", "m\r"):
                self.assertIn("Stopped", type_at("$ ", "fg\r"))
                type_at(QUESTIONS[AXES] + "za", key)
            type_at("Rysunek: dane.dxf", "exit\r")
        self.assertEqual(first_point(self.folder / "dane.dxf"), EXCHANGED)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    Program.program = os.path.abspath(sys.argv[1])
    for caught in (signal.SIGINT, signal.SIGHUP):  # the program would inherit that they are ignored, as behind nohup
        signal.signal(caught, signal.SIG_DFL)
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])

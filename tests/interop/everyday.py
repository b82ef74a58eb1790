#!/usr/bin/env python3
"""The program day by day: several files at once, drawings as they are wanted, defaults, the command that repeats.

Usage: everyday.py PROGRAM
"""
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

import ezdxf

PROGRAM = os.path.abspath(sys.argv.pop(1))
POINTS = "słup1;5788404,34;7500779,05;112,256\nЖ;5788403,57;7500791,55;-0,001\n3;5788402,79;7500804,03;112,60\n"
AMBIGUOUS = "K1;5590435.97;5588346.4;392.34\nK2;5590436.97;5588349.4;392.34\nK3;5590437.97;5588347.4;392.34\n"
OPEN = "7 100 200\n9 110 220\n"  # is the first column the number?


def entities(path):
    document = ezdxf.readfile(path)
    assert not document.audit().errors
    group = next(iter(document.groups))[1]
    found = [(one.dxftype(), one.dxf.layer, one.dxf.text if one.dxftype() == "TEXT" else None)
             for one in document.modelspace()]
    return document, found, group


class EveryDay(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.folder = pathlib.Path(home.name, "work")
        self.folder.mkdir()
        self.environment = {"HOME": home.name, "PATH": f"{os.path.dirname(PROGRAM)}:{os.environ['PATH']}"}
        self.environment |= {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}

    def write(self, **files):
        for name, text in files.items():
            (self.folder / name.replace("_csv", ".csv")).write_text(text, "utf-8")

    def run_it(self, *arguments, typed="", code=0):
        done = subprocess.run([PROGRAM, *arguments], cwd=self.folder, env=self.environment, input=typed, text=True,
                              capture_output=True, timeout=120,
                              preexec_fn=lambda: signal.signal(signal.SIGCHLD, signal.SIG_IGN))  # as daemons do
        self.assertEqual(done.returncode, code, done.stdout + done.stderr)
        return done

    def drawings(self):
        return sorted(path.name for path in self.folder.glob("*.dxf"))

    def test_several_files(self):
        self.write(a_csv=POINTS, b_csv=AMBIGUOUS, c_csv=OPEN, d_csv=POINTS.replace("Ж", "4"))
        files = ["a.csv", "b.csv", "c.csv", "nie ma", "d.csv"]
        table = self.run_it(*files, "--jobs", "3", "--lang", "EN", code=3).stdout.splitlines()[-6:]
        self.assertEqual([row.split()[1:4] for row in table[:2]],
                         [["3", "a.dxf", "imported"], ["0", "-", "set"]])
        self.assertIn("--axes", table[1])
        self.assertIn("--first-column", table[2])
        self.assertEqual((table[3][:6], table[5]), ("nie ma", "Files imported: 2 of 5, points: 6."))
        self.assertEqual(self.drawings(), ["a.dxf", "d.dxf"])  # nothing is guessed

        self.assertIn("--axes", self.run_it("b.csv", "--unattended", "--lang", "EN", typed="swap\n", code=1).stdout)

        answered = ["b.csv", "c.csv", "--axes", "swap", "--first-column", "number", "--json"]
        reports = json.loads(self.run_it(*answered).stdout)
        self.assertEqual([(one["account"]["points"], one["system"]["axes"], one["drawing"]) for one in reports],
                         [(3, "swap", "b.dxf"), (2, "keep", "c.dxf")])

        with open("/dev/full", "wb") as full:  # what another program waits for
            for words in [answered, ["a.csv", "--json"], ["check", "a.dxf", "--json"]]:
                done = subprocess.run([PROGRAM, *words], cwd=self.folder, env=self.environment, stdout=full,
                                      stderr=subprocess.PIPE)
                self.assertEqual((done.returncode, b"standard output" in done.stderr), (3, True), done.stderr)

        self.write(large_csv=POINTS * 50000, none_csv="")
        process = subprocess.Popen([PROGRAM, "large.csv", "none.csv", "d.csv", "--lang", "EN"], cwd=self.folder,
                                   env=self.environment, stdout=subprocess.PIPE, text=True)
        while not (children := pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children").read_text().split()):
            self.assertIsNone(process.poll())
        os.kill(int(children[0]), signal.SIGKILL)
        table = process.communicate()[0].splitlines()[-4:]
        for row, outcome in zip(table, ["failed: the process was ended by signal 9", "nothing imported:", "imported"]):
            self.assertIn(f"  {outcome}", row)

        before = (self.folder / "a.dxf").read_bytes()
        self.run_it("a.csv", "b.csv", "a.csv", "--into", "a.dxf", "--quiet", code=1)
        groups = [name.split("_", 2)[2] for name, _ in ezdxf.readfile(self.folder / "a.dxf").groups]
        self.assertEqual((groups, (self.folder / "a.dxf.bak").read_bytes()), (["a", "a_2", "a_3"], before))
        (self.folder / "a.dxf.bak").unlink()
        (self.folder / "a.dxf.bak").mkdir()
        unsaved = json.loads(self.run_it("a.csv", "d.csv", "--into", "a.dxf", "--json", code=3).stdout)
        self.assertEqual([(one["outcome"], "drawing" in one) for one in unsaved], [("failed", False)] * 2)

    def test_drawings_as_wanted(self):
        self.write(a_csv=POINTS)
        for version, letters in [("2000", "\\U+0416"), ("2004", "\\U+0416"), ("2007", "Ж"), ("2018", "Ж")]:
            with self.subTest(version):
                self.run_it("a.csv", "--dxf", version, "--layer", "Punkty ż", "--height-layer", "h", "--heights", "--scale",
                            "1:500", "--group-selectable", "no", "-o", version)
                document, found, group = entities(self.folder / f"{version}.dxf")
                self.assertEqual(found[0::2][:3] + found[1:6:2],
                                 [("POINT", "Punkty ż", None)] * 3 +
                                 [("TEXT", "Punkty ż_NR", text) for text in ("słup1", letters, "3")])
                self.assertEqual(found[6:], [("TEXT", "h", text) for text in ("112.26", "0.00", "112.60")])
                self.assertEqual((len(group), group.dxf.selectable), (9, 0))
                self.assertEqual({one.dxf.height for one in document.modelspace().query("TEXT")}, {1.0})
                if version < "2007":  # which converters take at its word
                    shown = subprocess.run(["ogrinfo", "-al", f"{version}.dxf"], cwd=self.folder, capture_output=True)
                    self.assertIn("Text (String) = słup1".encode(), shown.stdout)

    def test_defaults_and_quiet(self):
        self.write(a_csv=POINTS)
        defaults = pathlib.Path(self.environment["HOME"], ".config", "vexo-xyz", "config.toml")
        defaults.parent.mkdir(parents=True)
        defaults.write_text('lang = "EN"\nlayer = "0"\nscale = "1:1000"\nquiet = true\n')
        self.assertEqual(self.run_it("a.csv", "--text-height", "3", "-o", "a").stdout, "")
        document, found, _ = entities(self.folder / "a.dxf")
        self.assertEqual({layer for _, layer, _ in found}, {"0"})
        self.assertEqual({one.dxf.height for one in document.modelspace().query("TEXT")}, {3.0})
        self.assertIn("cannot be opened", self.run_it("nie.csv", code=3).stdout)
        refused = self.run_it("a.csv", "-o", "b.dxf", "--report", "b.dxf", "--json", code=3)
        self.assertEqual((json.loads(refused.stdout)["outcome"], "the drawing's name" in refused.stderr), ("failed", True))
        defaults.write_text("warstwa = 1\n")
        self.assertRegex(self.run_it("a.csv", code=2).stderr, f"warstwa[^~]*{defaults}")
        defaults.parent.parent.rename(self.folder / ".config")
        for home in [{}, {"HOME": ""}, {"HOME": ".", "XDG_CONFIG_HOME": ".config"}]:  # whoever made the current folder
            self.environment = {name: value for name, value in self.environment.items() if name != "HOME"} | home
            self.run_it("a.csv")

    def test_the_command_that_repeats(self):
        (self.folder / "own.toml").write_text("quiet = false\nheights = 1\n")
        for name, content, options, typed in [
            ("it's a \"file\" $(x).csv", AMBIGUOUS, ["--heights", "--layer", "Ein Plan"], "s\n"),
            ("a.csv", OPEN, ["--scale", "1:250", "--dxf", "2004"], "c\n"),
            ("-a.csv", AMBIGUOUS, ["--output=-plan", "--market", "PL"], "\n"),
            ("c.csv", POINTS, ["--layer=--output", "--config", "own.toml"], ""),
            ("b.csv", POINTS.replace(";", "|"), ["--prepare"], ""),
        ]:
            with self.subTest(name):
                (self.folder / name).write_text(content, "utf-8")
                said = self.run_it("--lang", "EN", *options, "--", name, typed=typed).stdout
                drawing = said.split("Drawing: ")[1].splitlines()[0]
                first = (self.folder / drawing).read_bytes()
                command = said.split("The same without questions: ")[-1].splitlines()[0]
                again = subprocess.run(["sh", "-c", command], cwd=self.folder, env=self.environment, text=True,
                                       stdin=subprocess.DEVNULL, capture_output=True, timeout=120)
                self.assertEqual((again.returncode, again.stderr), (0, ""), command)
                self.assertNotIn("Doubt", again.stdout)
                self.assertEqual((self.folder / again.stdout.split("Drawing: ")[1].splitlines()[0]).read_bytes(), first)

    def test_manual_and_completion(self):
        help_text, page = self.run_it("--help").stdout, self.run_it("man").stdout
        for option in [word for word in help_text.replace(",", " ").split() if word.startswith("--")]:
            self.assertIn(option.split("=")[0].replace("-", "\\-"), page)
        script = self.run_it("completion").stdout + """
            complete_it() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMPREPLY=()
                            _vexo_xyz vexo-xyz "${@: -1}" "${@: -2:1}"; echo "${COMPREPLY[*]}"; }
            complete_it vexo-xyz --ax; complete_it vexo-xyz a --axes s; complete_it vexo-xyz pre
            complete_it vexo-xyz prepare --col"""
        done = subprocess.run(["bash", "-c", script], capture_output=True, text=True, cwd=self.folder)
        self.assertEqual((done.stdout.splitlines(), done.stderr), (["--axes", "swap", "prepare", "--columns"], ""))


if __name__ == "__main__":
    unittest.main()

"""Runs scripts in interpreters that have loaded nothing yet."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
PATIENCE = 300  # seconds; a build with sanitizers on a busy machine is slow


def run(dist, script, *arguments, market="PL"):
    """What the script prints, read as JSON. It finds the modules in `dist` and may write to its folder."""
    with tempfile.TemporaryDirectory() as folder:
        environment = os.environ | {"PYTHONPATH": f"{HERE}:{dist}", "VEXO_RYNEK": market, "XDG_STATE_HOME": folder}
        done = subprocess.run([sys.executable, "-B", "-c", script, *arguments], env=environment, cwd=folder,
                              capture_output=True, text=True, timeout=PATIENCE)
    if done.returncode or done.stderr:
        raise AssertionError(f"exit status {done.returncode}\n{done.stdout}{done.stderr[-3000:]}")
    return json.loads(done.stdout)

"""`python -m tamur` and `tamur` are the command-line tool."""
import os
import subprocess
import sys

from conftest import PROJECT


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, cwd=PROJECT, encoding="utf-8")


def test_python_m_tamur_is_the_tool(hall):
    native = PROJECT / "build" / "native" / "tamur"
    for arguments in (["check", "--lang", "en", "samples/erreurs.txt"], ["info", "nothing.txt"]):
        ours = run(sys.executable, "-m", "tamur", *arguments)
        theirs = run(native, *arguments)
        assert (ours.returncode, ours.stdout, ours.stderr) == (
            theirs.returncode, theirs.stdout, theirs.stderr)
    script = os.path.join(os.path.dirname(sys.executable), "tamur")
    assert run(script, "--version").stdout == run(native, "--version").stdout

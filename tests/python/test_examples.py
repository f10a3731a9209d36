"""Every example under examples/ runs to completion against the simulator
(with --quick) and prints what its reader is told to expect."""

import pathlib
import re
import runpy
import sys

import pytest

from conftest import thread_ids, threads_gone

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"

# example (category/name) -> a pattern its output must contain
EXPECT = {
}


def example_paths():
    return sorted(p for p in EXAMPLES.glob("*/*.py") if not p.name.startswith("_"))


def run_example(path, capsys, *args):
    """Runs one example in this process as `python path --quick args`; returns
    its output.  The examples find their shared helper beside them."""
    argv, syspath = sys.argv, list(sys.path)
    sys.argv = [str(path), "--quick", *args]
    sys.path.insert(0, str(EXAMPLES))
    try:
        runpy.run_path(str(path), run_name="__main__")
    except SystemExit as e:
        assert e.code in (None, 0), f"{path.name} exited with {e.code}"
    finally:
        sys.argv, sys.path[:] = argv, syspath
    return capsys.readouterr()


@pytest.mark.parametrize("path", example_paths(),
                         ids=lambda p: f"{p.parent.name}/{p.stem}")
def test_example_runs_on_the_simulator(path, capsys):
    before = thread_ids()
    out = run_example(path, capsys)
    key = f"{path.parent.name}/{path.stem}"
    assert key in EXPECT, f"no expected output written down for {key}"
    assert re.search(EXPECT[key], out.out, re.M), out.out + out.err
    assert "Traceback" not in out.err, out.err
    assert threads_gone(thread_ids() - before), "the example left threads running"

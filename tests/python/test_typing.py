"""Docstrings of the whole package, and what mypy --strict makes of its stubs."""

import inspect
import os
import re
import subprocess
import sys
from pathlib import Path

import pytest

import pyorv
import pyorv.sim

HERE = Path(__file__).parent


def public_classes():
    classes = {}
    for module in (pyorv, pyorv.sim):
        for name, obj in vars(module).items():
            if inspect.isclass(obj) and not name.startswith("_"):
                classes[f"{obj.__module__}.{obj.__qualname__}"] = obj
    return sorted(classes.items())


def own_text(name, doc):
    """A docstring less the signature lines pybind11 or the bindings put first."""
    lines = (doc or "").splitlines()
    keep = [l for l in lines
            if not re.match(rf"^(\d+\. )?{re.escape(name)}\(", l) and l != "Overloaded function."]
    return "\n".join(keep).strip()


def test_every_public_class_and_method_has_a_docstring():
    missing = []
    for qualname, cls in public_classes():
        if not own_text(cls.__name__, cls.__doc__):
            missing.append(qualname)
        for name, member in vars(cls).items():
            if name.startswith("_") or isinstance(member, property) or not callable(member):
                continue
            if not own_text(name, getattr(member, "__doc__", None)):
                missing.append(f"{qualname}.{name}")
    for module in (pyorv, pyorv.sim):
        for name, fn in vars(module).items():
            if not name.startswith("_") and inspect.isbuiltin(fn) and not own_text(name, fn.__doc__):
                missing.append(f"{module.__name__}.{name}")
    assert missing == []


@pytest.mark.parametrize("name, row", [(name, row) for name, row in
                                       sorted(pyorv._pyorv._modelTable().items()) if row["modules"]])
def test_model_docstring_comes_from_the_model_table(name, row):
    doc = getattr(pyorv, name).__doc__
    assert f"{name} ({row['label']}): device class {row['device_class']}; modules " \
           f"{', '.join(row['modules'])}." in doc


def test_error_docstrings_give_the_code():
    errors = [c for _, c in public_classes()
              if issubclass(c, (pyorv.Error, pyorv.ORVWarning)) and hasattr(c, "default_message")]
    assert len(errors) > 50
    for cls in errors:
        assert f" code {cls.code}" in cls.__doc__ and cls.default_message in cls.__doc__


def test_twin_docstring_is_the_blocking_one_without_timeout():
    blocking = pyorv.KestrelDio.DO_writePins.__doc__.splitlines()
    twin = pyorv.KestrelDio.DO_writePins_async.__doc__.splitlines()
    assert blocking[0] == ("DO_writePins(self, port: int, pin: int | collections.abc.Sequence[int], "
                           "value: int | collections.abc.Sequence[int], timeout: float = 3) -> int")
    assert twin[0] == ("DO_writePins_async(self, port: int, pin: int | collections.abc.Sequence[int], "
                       "value: int | collections.abc.Sequence[int]) -> "
                       "collections.abc.Coroutine[typing.Any, typing.Any, int]")
    assert twin[2] == "Awaitable DO_writePins, without timeout: " + blocking[2]
    assert [l for l in blocking[3:] if "timeout" not in l] == [l for l in twin[3:]]


# ---- mypy --strict on a correct and on a wrong use ----------------------------------

def mypy(path, tmp_path):
    pytest.importorskip("mypy", reason="mypy is not installed (scripts/setup.sh installs it)")
    env = dict(os.environ, PYTHONPATH=os.pathsep.join(p for p in sys.path if p))
    out = subprocess.run(
        [sys.executable, "-m", "mypy", "--strict", "--no-error-summary", "--show-error-codes",
         "--cache-dir", str(tmp_path / "mypy"), str(path)],
        capture_output=True, text=True, env=env, cwd=tmp_path)
    assert out.returncode in (0, 1), out.stderr + out.stdout
    return out.stdout


def test_mypy_strict_accepts_the_typed_use(tmp_path):
    assert mypy(HERE / "typed_use.py", tmp_path) == ""


def test_typed_use_runs_against_the_simulator():
    sys.path.insert(0, str(HERE))
    try:
        import typed_use
    finally:
        sys.path.remove(str(HERE))
    typed_use.main()


def test_mypy_strict_reports_each_misuse(tmp_path):
    path = HERE / "typed_misuse.py"
    marked = {n for n, line in enumerate(path.read_text().splitlines(), 1) if "  # error: " in line}
    report = mypy(path, tmp_path)
    reported = {int(m) for m in re.findall(r"typed_misuse\.py:(\d+): error", report)}
    assert reported == marked, report

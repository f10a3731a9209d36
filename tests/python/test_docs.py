"""Every python example of the README, the guides and the simulator's
docstring runs, each in a fresh namespace.  A block opts out only with a
`<!-- not-run: REASON -->` line just before it; it is then reported as
skipped with its reason."""

import pathlib
import re
import textwrap

import pytest

import pyorv.sim

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_RUN = re.compile(r"<!--\s*not-run:\s*(.+?)\s*-->")


def markdown_blocks(path):
    """(line, code, reason to skip or None) of each ```python block."""
    lines = path.read_text().splitlines()
    i = 0
    while i < len(lines):
        if lines[i].strip() == "```python":
            end = next(j for j in range(i + 1, len(lines)) if lines[j].strip() == "```")
            before = next((lines[j] for j in range(i - 1, -1, -1) if lines[j].strip()), "")
            opt_out = NOT_RUN.fullmatch(before.strip())
            yield i + 2, "\n".join(lines[i + 1:end]), opt_out and opt_out[1]
            i = end
        i += 1


def docstring_block(doc):
    """The first indented block of a docstring, dedented."""
    lines = doc.splitlines()
    start = next(i for i, line in enumerate(lines) if line.startswith("    "))
    end = next((i for i in range(start, len(lines))
                if lines[i].strip() and not lines[i].startswith("    ")), len(lines))
    return textwrap.dedent("\n".join(lines[start:end]))


def examples():
    for path in [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]:
        name = path.relative_to(ROOT)
        for line, code, reason in markdown_blocks(path):
            marks = [pytest.mark.skip(reason=f"{name}:{line} not run: {reason}")] if reason else []
            yield pytest.param(f"{name}:{line}", code, marks=marks, id=f"{name}:{line}")
    yield pytest.param("pyorv.sim docstring", docstring_block(pyorv.sim.__doc__),
                       id="pyorv.sim docstring")


@pytest.mark.parametrize("where, code", list(examples()))
def test_example_runs(where, code):
    exec(compile(code, where, "exec"), {"__name__": "__main__"})


def test_python_fences_are_spelled_one_way():
    # A fence spelled otherwise (```py, ```python3) would drop its block from the run.
    for path in [ROOT / "README.md", *(ROOT / "docs").glob("*.md")]:
        fences = re.findall(r"^```\s*(py\w*)\s*$", path.read_text(), re.M)
        assert set(fences) <= {"python"}, (path.name, fences)

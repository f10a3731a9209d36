"""The command line: the demo runs to its end, and find refuses to broadcast
outside loopback unless told to."""

import os
import subprocess
import sys

import pytest


def run(*args, env=None, timeout=120):
    return subprocess.run([sys.executable, "-m", "pyorv", *args], capture_output=True, text=True,
                          timeout=timeout, env=env)


def test_demo_runs_to_its_end():
    out = run("demo")
    assert out.returncode == 0, out.stderr
    lines = out.stdout.splitlines()
    assert lines[-1] == "demo done"
    assert "Opened handle (Trellis)" in lines and "Closed handle (Trellis)" in lines
    assert any(line.startswith("driver info") and "'Trellis'" in line for line in lines)
    assert any("recorded 2 packets [240, 240]" in line for line in lines)
    assert any(line.startswith("digital loopback") and line.endswith("read 1, 0, 1")
               for line in lines)


# find without a target refuses to broadcast; sim refuses hosts outside loopback.
@pytest.mark.parametrize("args, names", [
    (["find"], "--broadcast"),
    *[(["sim", "--host", host], f"refusing to listen on {host}")
      for host in ("203.0.113.5", "198.51.100.7")],
])
def test_refuses_to_leave_loopback(args, names):
    env = {k: v for k, v in os.environ.items() if k != "PYORV_BROADCAST_ADDR"}
    out = run(*args, env=env, timeout=30)
    assert out.returncode == 2
    assert names in out.stderr

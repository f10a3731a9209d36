"""The command line: the demo runs to its end, find refuses to broadcast
outside loopback unless told to and says what it waits for, MAC addresses
have one printed form, every option is explained."""

import argparse
import os
import pathlib
import re
import subprocess
import sys

import pytest

import pyorv.sim as sim
from pyorv.__main__ import _parser, main


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


def test_every_command_and_option_is_explained():
    def parsers(p):
        yield p
        for action in p._actions:
            if isinstance(action, argparse._SubParsersAction):
                for sub in action.choices.values():
                    yield from parsers(sub)

    unexplained = [(p.prog, a.dest) for p in parsers(_parser()) for a in p._actions
                   if not a.help and not isinstance(a, argparse._SubParsersAction)]
    unexplained += [(sub.dest, "") for p in parsers(_parser()) for a in p._actions
                    if isinstance(a, argparse._SubParsersAction)
                    for sub in a._choices_actions if not sub.help]
    assert unexplained == []


@pytest.fixture
def discovered(simulator):
    """A discovery responder on loopback with one device, and the environment
    that points the command line at it."""
    simulator.add_device(sim.DeviceConfig(model="KestrelAin", serial="SIMD0003",
                                          mac="0a:1b:2c:3d:4e:5f", ip_addr="10.20.30.40"))
    port = simulator.start_discovery("127.0.0.1", 0)
    env = dict(os.environ, PYORV_BROADCAST_ADDR=f"127.0.0.1:{port}", PYORV_BROADCAST_WINDOW="0.3")
    return port, env


# One printed MAC form, any usual input form; a filter that matches nothing.
@pytest.mark.parametrize("mac_args, listed", [
    ([], True),
    (["--mac", "0A-1B-2C-3D-4E-5F"], True),
    (["--mac", "0a1b.2c3d.4e5f"], True),
    (["--mac", "0a1b2c3d4e5f"], True),
    (["--mac", "02:4F:52:56:00:01"], False),
])
def test_find_says_what_it_waits_for_and_prints_one_mac_form(discovered, mac_args, listed):
    port, env = discovered
    out = run("find", *mac_args, env=env, timeout=60)
    assert out.returncode == 0, out.stderr
    assert out.stderr.splitlines()[0] == (f"searching for devices on 127.0.0.1:{port} (answers to "
                                          f"UDP port 6667) for 0.3 s ...")
    line = "KestrelAin eth 10.20.30.40 mask=255.255.255.0 mac=0A:1B:2C:3D:4E:5F"
    lines = out.stdout.splitlines()  # (a libusb-not-beside-me warning may print a stack too)
    assert (line in lines, "no device answered" in lines) == (listed, not listed)


def test_find_refuses_a_malformed_mac():
    out = run("find", "--broadcast", "127.0.0.1", "--mac", "0A:1B:2C", timeout=30)
    assert out.returncode == 2
    assert "not a MAC address: '0A:1B:2C'" in out.stderr


def test_udev_rules_file_is_shipped_and_found():
    out = run("udev-rules", timeout=30)
    path = pathlib.Path(out.stdout.strip())
    assert out.returncode == 0 and path.name == "99-orv.rules"
    rules = path.read_text()
    assert 'ATTRS{idVendor}=="0483", ATTRS{idProduct}=="5750"' in rules  # 1155, 22352
    assert run("udev-rules", "--print", timeout=30).stdout == rules


# `pyorv examples` lists the catalogue; `run` finds a script by CATEGORY/NAME
# or a bare NAME and passes the rest of the line to it.
@pytest.mark.parametrize("args, code, out", [
    (["examples"], 0, r"Digital input and output \[DIO\]\n(.*\n)*  \+ DIO/DO_write_pins\s+Write pins$"),
    (["examples", "run", "single_loop_async", "--quick"], 0,
     r"round 3: wrote 1, read 1\nthe task has ended"),  # 3 rounds: --quick reached it
    (["examples", "run", "System_Wifi/hello_world.py"], 0, r"Hello from a Heron-Ain-Imu"),
    (["examples", "run", "AI/AI_integrated_gui"], 0, r"GUI panels open with `pyorv panel`"),
    (["examples", "run", "hello_world"], 2,
     r"System_USB/hello_world, System_ETH/hello_world, System_Wifi/hello_world"),
    (["examples", "run", "AI/DO_write_pins"], 2, r"no example 'AI/DO_write_pins'"),
])
def test_examples_command(args, code, out, capsys):
    assert main(args) == code
    got = capsys.readouterr()
    assert re.search(out, got.out + got.err, re.M), got.out + got.err

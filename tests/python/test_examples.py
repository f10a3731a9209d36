"""Every example under examples/ runs to completion against the simulator
(with --quick) and prints what its reader is told to expect."""

import pathlib
import re
import runpy
import sys
import tempfile

import pytest

import pyorv
from conftest import thread_ids, threads_gone

# The USB models look for the USB library beside the module and warn when it is not there.
pytestmark = pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"

# example (category/name) -> a pattern its output must contain
EXPECT = {
    # motion and buses
    "Drive/Drive_find_home": r"home found; position now 0\b",
    "Drive/Drive_find_limit": r"stopped at -760, 40 steps off",
    "Drive/Drive_position_blending":
        r"refused: status -\d+ \(errFirmwareDrive.*\n.*status 0\narrived at 5000$",
    "Drive/Drive_position_move":
        r"to 5000: status 0, now at 5000\n.*by -2000: status 0, now at 3000$",
    "Drive/Drive_scan_move": r"scanning: state 3, at (\d|[12]\d{3}|3000)\b[\s\S]*stopped: state 0",
    "Drive/Drive_servo_on": r"servo on: status 0\n.*\nservo off: status 0",
    "Drive/Drive_velocity_blending_acceleration":
        r"direction -1: status 0, drive reports -3000 steps/s[\s\S]*stopped: 0 steps/s",
    "Drive/Drive_velocity_move": r"running: 4000 steps/s[\s\S]*stopped: 0 steps/s",
    "Motion/Motion_servo_on":
        r"servo on for axis 0: status 0\n.*servo on: 1234\n.*\n.*servo off: 1234$",
    "Motion/Motion_find_home": r"home found, position after the offset: -100$",
    "Motion/Motion_find_index": r"index found, position 1500, encoder 1500$",
    "Motion/Motion_find_limit": r"stopped at 5000, forward limit 1, reverse limit 0$",
    "Motion/Motion_get_logical_position":
        r"passed 5000: logical \d+, encoder \d+\n[\s\S]*stopped: logical 20000, encoder 20000$",
    "Motion/Motion_load_configuration_file":
        r"status 0\naxis 0 Home Enable: 1\naxis 0 Home Polarity: 1\naxis 0 Offset Position: 500\n",
    "Motion/Motion_save_configuration_file":
        r"^\[Axis_2\]\nstepper output = CW/CCW\(Two Pulse\)\ninverse motion direction = TRUE$",
    "Motion/Motion_position_blending": r"target becomes 30000\naxis 0: ended at 30000$",
    "Motion/Motion_velocity_blending":
        r"running at 20000 pulse/s.*\n.*running at 60000 pulse/s.*\n.*running at 10000 pulse/s",
    "Motion/Motion_velocity_blending_acceleration":
        r"backward at 20000 pulse/s\naxis 0: stopped at -?\d+, [1-9]\d* pulses back",
    "Motion/Motion_1axis_move": r"logical position 10000, encoder position 10000$",
    "Motion/Motion_1axis_move_with_alarm_in":
        r"stopped at 10000 of 10000, error bits 0x0000, alarm off$",
    "Motion/Motion_1axis_move_with_breakpoint": r"armed at 2000, status 0\n.*break point to 10000$",
    "Motion/Motion_1axis_move_with_capture": r"moved to 6000, input edge captured at 2500$",
    "Motion/Motion_1axis_move_with_configuration_file":
        r"status 0\naxis 0: stepper output CW/CCW\(Two Pulse\).*\naxis 0: moved to 6000$",
    "Motion/Motion_1axis_move_with_inposition":
        r"in position at 10000, input levels 0x[0-9a-f]{4}$",
    "Motion/Motion_1axis_move_with_S_curve_acceleration":
        r"speed 50000 pulse/s[\s\S]*S-curve move ended at 8000$",
    "Motion/Motion_2axis_circular_interpolation":
        r"arc ended at \[4000, 0\], highest y on the way: (19\d\d|2000)$",
    "Motion/Motion_2axis_linear_interpolation": r"line ended at \[4000, -3000\]$",
    "Motion/Motion_3axis_helical_interpolation":
        r"length .*: 12566 pulses\nhelix ended at \[0, 0, 600\]$",
    "Motion/Motion_3axis_linear_interpolation": r"line ended at \[3000, -2000, 1000\]$",
    "Motion/Motion_3axis_asynchronous_move":
        r"order \[\d, \d, \d\]\npositions: \[8000, -2000, 3000\]$",
    "Motion/Motion_3axis_synchronous_move":
        r"could not be released: .*_checkMotionAxis.*\npositions: \[0, 0, 0\]$",
    "CAN/CAN_read": r"^received id 0x7E8 data 04 41 0C 1A F8 00 00 00$",
    "CAN/CAN_write": r"id 0x123 \(standard\) data 11 22 33 00 00 00 00 00: status 0\n"
                     r".*id 0x18FF1234 \(extended\).*status 0\nframes sent: 2$",
    "I2C/I2C_write_read": r"read from 0x10: DE AD BE EF\n.*17 80 = 23\.5 degrees C$",
    "SPI/SPI_read_and_write": r"sent 9F 01 02 03, received 9F 01 02 03$",
    "SPI/SPI_write": r"write 05 A5 5A: status 0\nregisters 5, 6 read back: A5 5A$",
    "UART/UART_read": r"received 4F 4B 0D 0A \('OK'\)$",
    "UART/UART_write": r"wrote 9 bytes 68 65 6C 6C 6F 20 30 0D 0A: status 0$",
}


@pytest.fixture(scope="module", autouse=True)
def usb_layer_started():
    """libusb starts one event thread for the process the first time a USB
    link looks for devices, and it lives as long as the process: start it
    before the examples, so that it is not counted against the first USB one."""
    finder = pyorv.DeviceFinder(verbose=False)
    finder.Bcst_enumerateUSBDevices()
    finder.close(verbose=False)


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
def test_example_runs_on_the_simulator(path, capsys, tmp_path, monkeypatch):
    monkeypatch.setattr(tempfile, "tempdir", str(tmp_path))  # what examples write stays here
    before = thread_ids()
    out = run_example(path, capsys)
    key = f"{path.parent.name}/{path.stem}"
    assert key in EXPECT, f"no expected output written down for {key}"
    assert re.search(EXPECT[key], out.out, re.M), out.out + out.err
    assert "Traceback" not in out.err, out.err
    assert threads_gone(thread_ids() - before), "the example left threads running"


@pytest.mark.parametrize("name, said", [("UART/UART_read", "no answer of 4 bytes within 2 s"),
                                        ("CAN/CAN_read", "no frame within 2 s")])
def test_a_read_that_gets_nothing_ends_at_its_deadline(name, said, capsys, monkeypatch):
    """With nothing on the other side of the simulated bus, the read example's
    blocking read is ended by closing the device, and no thread is left."""
    monkeypatch.setattr(sys, "argv", [name, "--quick"])
    monkeypatch.setattr(sys, "path", list(sys.path))
    main = runpy.run_path(str(EXAMPLES / f"{name}.py"))["main"]
    monkeypatch.setitem(main.__globals__, "simulated", lambda sim_dev: None)
    before = thread_ids()
    main()
    assert said in capsys.readouterr().out
    assert threads_gone(thread_ids() - before), "the example left threads running"

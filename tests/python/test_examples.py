"""Every example under examples/ runs to completion against the simulator
(with --quick) and prints what its reader is told to expect."""

import contextlib
import io
import pathlib
import re
import runpy
import sys
import tempfile
import warnings

import pytest

import pyorv
import pyorv.sim as sim

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
    "System_USB/get_pin_mode": r"port 0: DO DO DI Idle Idle",
    "System_USB/get_USB_info": r"model\s+Plover-Dio \(PloverDio\)\n.*\nserial number\s+SIM00001",
    "System_USB/hello_world": r"Hello from a Plover-Dio \(PloverDio\)",
    "System_USB/set_and_get_RTC": r"device clock after\s+20\d\d-.*\([01] s from the time set\)",
    "System_ETH/get_network_info": r"subnet mask\s+255\.255\.255\.0\n.*\nMAC address\s+02:4F:52:56:00:01",
    "System_ETH/hello_world": r"Hello from a Kestrel-Dio \(KestrelDio\)",
    "System_ETH/set_and_get_RTC": r"device clock after\s+20\d\d-.*\([01] s from the time set\)",
    "System_Wifi/get_network_info": r"IP address\s+127\.0\.0\.1\n(.*\n){2}MAC address\s+02:4F:52",
    "System_Wifi/get_Heron_status": r"board temperature\s+25\.50 degC(.*\n)*Wi-Fi signal\s+-56 dBm",
    "System_Wifi/hello_world": r"Hello from a Heron-Ain-Imu \(HeronAinImu\)",
    # The Heron counts its years from 2000: the clock reads this century back.
    "System_Wifi/set_and_get_RTC": r"device clock after\s+20\d\d-.*\([01] s from the time set\)",
    "System_Wifi/set_LED_status": r"blue\s+LED off\s+\(status 0\)\nall LEDs reset \(status 0\)",
    "Find_devices/find_all_devices":
        r"3 network device\(s\)\n.*\n\s+KestrelAin\s+192\.168\.1\.110\s+255\.255\.255\.0\s+"
        r"02:4f:52:56:00:01\n\s+KestrelDio\s+192\.168\.1\.111(.*\n)\s+HeronAinImu\s+192\.168\.1\.112",
    "Tutorial/single_loop_thread": r"round 3: wrote 1, read 1\nthe worker thread has ended",
    "Tutorial/single_loop_async": r"round 2: wrote 0, read 0\nround 3: wrote 1, read 1\nthe task",
    "Tutorial/multiple_loops_thread": r"io loop: 4 of 4 read-backs matched\nclock loop: 4 readings",
    "Tutorial/multiple_loops_async": r"io task: 4 of 4 read-backs matched\nclock task: 4 readings",
    "AI/AI_continuous": r"^\s+2\s+400\s+6\.000 V\s+-1\.250 V$",
    "AI/AI_continuous_with_logger": r"header and 750 rows; channel 1 reads 2\.5 V",
    "AI/AI_N_samples_once": r"300 samples of 8 channels at 1000 Hz\nchannel 0\s+min\s+-2\.000 V\s+"
                            r"max\s+2\.000 V(.*\n)channel 1\s+min\s+1\.500 V",
    "AI/AI_on_demand_in_loop": r"^\s+3\s+3\.000 V\s+-3\.000 V\s+0\.000 V$",
    "AI/AI_on_demand_once": r"channel 0\s+0\.250 V\n(.*\n){6}channel 7\s+3\.750 V",
    "AI/AI_continuous_multi_slot": r"^\s+1\s+2\s+200\s+0\.500 V\s+4\.000 V$",
    "AI24Bit/AI_on_demand_once": r"channel 0\s+4\.000 mA\n(.*\n){6}channel 7\s+18\.000 mA",
    "AO/AO_write_all_channels": r"^\s+0\s+-7\.500 V\s+-7\.500 V(.*\n){7}\s+7\s+9\.500 V\s+9\.500 V",
    "AO/AO_write_one_channel": r"-4\.000 V; outputs:\s+0\.000\s+0\.000\s+0\.000 -4\.000\s+0\.000",
    "AO/AO_waveform_gen": r"state 2\n(.*\n)*stopped, state 0; .*within the sine's 1 V \+- 2 V: yes",
    "AIO/AIO_one_channel_loopback": r"1\.250 V\s+1\.250 V\n\s+2\.500 V\s+2\.500 V",
    "AIO/AIO_all_channels_loopback": r"^\s+7\s+4\.500 V\s+4\.500 V\nlargest difference 0\.\d+ mV",
    "AIO/AO_output_while_AI_streaming":
        r"streamed 400 samples(.*\n)input min 0\.50\d V, max 4\.(49\d|500) V, mean 2\.(49\d|50\d) V",
    "DIO/DO_write_pins": r"^\s+0\s+1\s+1\n\s+2\s+0\s+0\n\s+4\s+1\s+1$",
    "DIO/DO_write_port": r"wrote 0b100110\s+inputs read \[0, 1, 1, 0, 0, 1\]",
    "DIO/DO_blinky_pins": r"blink 3: pin 0 \.  pin 1 #  \(read 0 1\)\nblink 4: pin 0 #  pin 1 \.",
    "DIO/DO_blinky_port": r"blink 3: \.#\.#\.#  \[0, 1, 0, 1, 0, 1\]\nblink 4: #\.#\.#\.",
    "DIO/DIO_loopback_pins": r"DO 0\.5 -> DI 1\.5: high read 1, low read 0  ok\n6 of 6 pins passed",
    "DIO/DIO_loopback_port": r"wrote 0b101010  read 0b101010  ok(.*\n)+9 of 9 patterns passed",
    "Temperature_TC/TC_read_channel_data":
        r"20\.00\s+32\.50\s+45\.00\s+57\.50\s+70\.00\s+82\.50\s+95\.00  degC",
    "Temperature_TC/TC_read_channel_data_with_logger":
        r"logged 3 readings to .*TC_temperatures\.csv\nlast row: [\d.]+, 20\.0, 32\.5, (.*), 95\.0$",
    "Temperature_TC/TC_read_channel_status": r"^\s+2\s+1\s+open circuit\n\s+3\s+0\s+24\.00 degC",
    "Temperature_RTD/RTD_read_channel_data": r"22\.50\s+100\.25  degC",
    "Temperature_RTD/RTD_read_channel_data_with_logger":
        r"logged 3 readings to .*RTD_temperatures\.csv\nlast row: [\d.]+, 22\.5, 100\.25$",
    "Temperature_RTD/RTD_read_channel_status":
        r"^\s+0\s+0\s+21\.75 degC\n\s+1\s+1\s+fault \(status 0x01\)",
    "Relay/Relay_set_channel": r"relay 2 switching counter: 0 -> 2",
    "Relay/Relay_read_counters": r"^\s+0\s+0\s+2\n\s+1\s+0\s+0\n(.*\n){3}\s+5\s+0\s+2$",
    "PWM/PWM_generate": r"runs at 1000 Hz, 25 %\n.*\n.*runs at 2000 Hz, 75 %\nPWM 0 stopped",
    "Counter/Counter_read": r"counted [1-9]\d* pulses of the 1000 Hz output",
    "AHRS/AHRS_read": r"10\.00\s+-20\.00\s+45\.00\s+1\.70\s+-3\.29\s+9\.06",
    "AHRS/AHRS_visualize": r"roll\s+-30\.0\s+#+\|\n(.*\n)+roll\s+15\.0\s+\|#+\npitch\s+5\.0",
    "DPOT/DPOT_readByChannel": r"^\s+3\s+0x00000000\s+0\.000$",
    "DPOT/DPOT_writeAllChannels": r"^\s+0\s+0\.100\n(.*\n){2}\s+3\s+0\.875$",
}


@pytest.fixture(scope="module", autouse=True)
def usb_layer_started():
    """The first USB connect of a process starts the USB library's event
    thread, which lives as long as the process: start it before the examples
    count their threads."""
    with sim.Simulator() as s:
        s.add_device(sim.DeviceConfig(model="PloverDio", serial="SIMWARM1"))
        dev = pyorv.PloverDio(verbose=False)
        with warnings.catch_warnings(), contextlib.redirect_stdout(io.StringIO()):
            warnings.simplefilter("ignore", pyorv.ExtLibNotFoundWarning)
            dev.connect("SIMWARM1", verbose=False)
        dev.close(verbose=False)


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
def test_example_runs_on_the_simulator(path, capsys, monkeypatch, tmp_path):
    monkeypatch.setattr(tempfile, "tempdir", str(tmp_path))  # where loggers and plots go
    before = thread_ids()
    out = run_example(path, capsys)
    key = f"{path.parent.name}/{path.stem}"
    assert path.stem in pyorv.EXAMPLE_CONSOLE_DICT.get(path.parent.name, []), \
        f"{key} is not in the example catalogue"
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

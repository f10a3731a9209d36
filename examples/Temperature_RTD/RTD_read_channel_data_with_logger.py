"""Read the temperatures of the RTD inputs of a PloverRtd (PT-100 or PT-1000, three-wire) and log them to a CSV file, one row
per reading with the time since the start.

The file goes into --out (default: a new temporary folder):

    python examples/Temperature_RTD/RTD_read_channel_data_with_logger.py --out .
    python examples/Temperature_RTD/RTD_read_channel_data_with_logger.py --usb default --out /tmp/temps
"""

import csv
import tempfile
import threading
import time

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["PloverRtd"]["Temperature_RTD"]
CHANNELS = 2
THREE_WIRE = 1


def probes(sim_dev):
    sim_dev.state_set("thermal.temperature", [22.5, 100.25][:CHANNELS])


def main():
    args = _target.parse(__doc__, extra=lambda p: p.add_argument(
        "--out", metavar="FOLDER", help="where the CSV file goes (default: a new temporary folder)"))
    folder = pathlib.Path(args.out or tempfile.mkdtemp(prefix="orv_temp_"))
    path = folder / "RTD_temperatures.csv"
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.PloverRtd, args, sim_state=probes) as dev:
        dev.Logger_openFile(str(path))
        dev.Logger_writeHeader(["time (s)"] + [f"ch{c} (degC)" for c in range(CHANNELS)])
        dev.Thermal_open(PORT)
        for channel in range(CHANNELS):
            dev.Thermal_setType(PORT, channel, THREE_WIRE)
        start = time.monotonic()
        for _ in range(_target.loops(args, 10, 3)):
            temps = [dev.Thermal_readSensor(PORT, c) for c in range(CHANNELS)]
            dev.Logger_writeList([round(time.monotonic() - start, 3)] + temps)
            pause.wait(0.02 if args.quick else 1.0)
        dev.Thermal_close(PORT)
        # Closing the device drops rows the writer has not taken yet: wait for it.
        dev._Logger_flush(timeout=10.0)
    with open(path, newline="") as f:
        rows = list(csv.reader(f))
    print(f"logged {len(rows) - 1} readings to {path}")
    print("last row: " + ", ".join(rows[-1]))


if __name__ == "__main__":
    main()

"""Read the temperatures of the RTD inputs of a PloverRtd (PT-100 or PT-1000, three-wire).

The simulated sensors read 22.5 degC and 100.25 degC:

    python examples/Temperature_RTD/RTD_read_channel_data.py
    python examples/Temperature_RTD/RTD_read_channel_data.py --usb default
"""

import threading

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
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.PloverRtd, args, sim_state=probes) as dev:
        dev.Thermal_open(PORT)
        for channel in range(CHANNELS):
            dev.Thermal_setType(PORT, channel, THREE_WIRE)
        print("reading  " + "  ".join(f"   ch{c}" for c in range(CHANNELS)))
        for n in range(_target.loops(args, 5, 2)):
            temps = [dev.Thermal_readSensor(PORT, c) for c in range(CHANNELS)]
            print(f"{n:7d}  " + "  ".join(f"{t:6.2f}" for t in temps) + "  degC")
            pause.wait(0.02 if args.quick else 1.0)
        dev.Thermal_close(PORT)


if __name__ == "__main__":
    main()

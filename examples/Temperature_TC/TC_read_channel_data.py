"""Read the temperatures of the thermocouple inputs of a KestrelTherm (type K).

The simulated probes read 20 degC on channel 0, 12.5 degC more on each next one:

    python examples/Temperature_TC/TC_read_channel_data.py
    python examples/Temperature_TC/TC_read_channel_data.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelTherm"]["Temperature_TC"]
CHANNELS = 7
TYPE_K = 3


def probes(sim_dev):
    sim_dev.state_set("thermal.temperature", [20.0 + 12.5 * c for c in range(CHANNELS)])


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.KestrelTherm, args, sim_state=probes) as dev:
        dev.Thermal_open(PORT)
        for channel in range(CHANNELS):
            dev.Thermal_setType(PORT, channel, TYPE_K)
        print("reading  " + "  ".join(f"   ch{c}" for c in range(CHANNELS)))
        for n in range(_target.loops(args, 5, 2)):
            temps = [dev.Thermal_readSensor(PORT, c) for c in range(CHANNELS)]
            print(f"{n:7d}  " + "  ".join(f"{t:6.2f}" for t in temps) + "  degC")
            pause.wait(0.02 if args.quick else 1.0)
        dev.Thermal_close(PORT)


if __name__ == "__main__":
    main()

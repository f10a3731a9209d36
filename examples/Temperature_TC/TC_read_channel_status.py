"""The status of each thermocouple input of a KestrelTherm: bit 0 flags an
open circuit (a broken or missing probe), which reads as NaN.

The simulated probe of channel 2 is open:

    python examples/Temperature_TC/TC_read_channel_status.py
    python examples/Temperature_TC/TC_read_channel_status.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelTherm"]["Temperature_TC"]
CHANNELS = 7
OPEN_CIRCUIT = 1  # status bit 0


def probes(sim_dev):
    sim_dev.state_set("thermal.temperature", [24.0] * CHANNELS)
    sim_dev.state_set("thermal.open_circuit", [2])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelTherm, args, sim_state=probes) as dev:
        dev.Thermal_open(PORT)
        print("channel  status  temperature")
        for channel in range(CHANNELS):
            status = dev.Thermal_getStatus(PORT, channel)
            temp = dev.Thermal_readSensor(PORT, channel)
            state = "open circuit" if status & OPEN_CIRCUIT else f"{temp:.2f} degC"
            print(f"{channel:7d}  {status:6d}  {state}")
        dev.Thermal_close(PORT)


if __name__ == "__main__":
    main()

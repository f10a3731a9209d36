"""The status of each RTD input of a PloverRtd, beside its temperature: a
non-zero status is a sensor fault (the bits are those of the device's
manual), and a faulty sensor reads as NaN.

The simulated sensor of channel 1 is open:

    python examples/Temperature_RTD/RTD_read_channel_status.py
    python examples/Temperature_RTD/RTD_read_channel_status.py --usb default
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["PloverRtd"]["Temperature_RTD"]
CHANNELS = 2


def probes(sim_dev):
    sim_dev.state_set("thermal.temperature", [21.75, 21.75])
    sim_dev.state_set("thermal.open_circuit", [1])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverRtd, args, sim_state=probes) as dev:
        dev.Thermal_open(PORT)
        print("channel  status  temperature")
        for channel in range(CHANNELS):
            status = dev.Thermal_getStatus(PORT, channel)
            temp = dev.Thermal_readSensor(PORT, channel)
            state = f"fault (status 0x{status:02X})" if status else f"{temp:.2f} degC"
            print(f"{channel:7d}  {status:6d}  {state}")
        dev.Thermal_close(PORT)


if __name__ == "__main__":
    main()

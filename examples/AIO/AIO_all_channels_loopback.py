"""All eight analog outputs of a PloverAio read back by its eight analog
inputs (output n wired to input n; the simulator wires them so).

    python examples/AIO/AIO_all_channels_loopback.py
    python examples/AIO/AIO_all_channels_loopback.py --usb default
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["PloverAio"]["AIO"]
VALUES = [0.25, 0.75, 1.25, 1.75, 2.25, 2.75, 3.25, 4.5]  # volts, within 0..5 V


def wire(sim_dev):
    sim_dev.state_set("ai.wave", [["ao", c, PORT] for c in range(8)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverAio, args, sim_state=wire) as dev:
        dev.AO_open(PORT)
        dev.AI_open(PORT)
        dev.AO_writeAllChannels(PORT, VALUES)
        read = dev.AI_readOnDemand(PORT)
        print("channel   written      read")
        for channel, (want, have) in enumerate(zip(VALUES, read)):
            print(f"{channel:7d}  {want:6.3f} V  {have:6.3f} V")
        worst = max(abs(w - h) for w, h in zip(VALUES, read))
        print(f"largest difference {worst * 1000:.2f} mV")
        dev.AI_close(PORT)
        dev.AO_close(PORT)


if __name__ == "__main__":
    main()

"""Write single output pins of a KestrelDio and see their levels on the
inputs they are wired to (output pin n to input pin n).

    python examples/DIO/DO_write_pins.py
    python examples/DIO/DO_write_pins.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

DO_PORT = 0  # the outputs, pins 0-5
DI_PORT = pyorv.HANDLE_PROPERTIES["KestrelDio"]["DIO"]  # the inputs, pins 0-7


def wire(sim_dev):
    """Output pin n wired to input pin n (wire them so on hardware)."""
    sim_dev.state_set("dio.loopback", [[DO_PORT, p, DI_PORT, p] for p in range(6)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        pins, levels = [0, 2, 4], [1, 0, 1]
        dev.DO_openPins(DO_PORT, pins)
        dev.DI_openPins(DI_PORT, pins)
        dev.DO_writePins(DO_PORT, pins, levels)
        read = dev.DI_readPins(DI_PORT, pins)
        print("pin  written  read back")
        for pin, want, have in zip(pins, levels, read):
            print(f"{pin:3d}  {want:7d}  {have:9d}")
        dev.DO_closePins(DO_PORT, pins)
        dev.DI_closePins(DI_PORT, pins)


if __name__ == "__main__":
    main()

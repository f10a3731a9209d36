"""Blink two output pins of a KestrelDio in turn by toggling them, watching
them on the inputs they are wired to.

    python examples/DIO/DO_blinky_pins.py
    python examples/DIO/DO_blinky_pins.py --ip 192.168.1.110
"""

import threading

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
    pause = threading.Event()  # never set: wait() sets the blink rate
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        pins = [0, 1]
        dev.DO_openPins(DO_PORT, pins)
        dev.DI_openPins(DI_PORT, pins)
        dev.DO_writePins(DO_PORT, pins, [1, 0])
        for n in range(1, _target.loops(args, 10, 4) + 1):
            dev.DO_togglePins(DO_PORT, pins)
            a, b = dev.DI_readPins(DI_PORT, pins)
            print(f"blink {n}: pin 0 {'#' if a else '.'}  pin 1 {'#' if b else '.'}  (read {a} {b})")
            pause.wait(0.02 if args.quick else 0.5)
        dev.DO_writePins(DO_PORT, pins, [0, 0])


if __name__ == "__main__":
    main()

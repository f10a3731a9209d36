"""Blink a whole output port of a KestrelDio: a pattern of alternate pins,
toggled all at once, watched on the inputs the outputs are wired to.

    python examples/DIO/DO_blinky_port.py
    python examples/DIO/DO_blinky_port.py --ip 192.168.1.110
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
        dev.DO_openPort(DO_PORT)
        dev.DI_openPort(DI_PORT)
        dev.DO_writePort(DO_PORT, [1, 0, 1, 0, 1, 0])
        for n in range(1, _target.loops(args, 10, 4) + 1):
            dev.DO_togglePort(DO_PORT)
            read = dev.DI_readPort(DI_PORT)[:6]
            print(f"blink {n}: {''.join('#' if v else '.' for v in read)}  {read}")
            pause.wait(0.02 if args.quick else 0.5)
        dev.DO_writePort(DO_PORT, 0)


if __name__ == "__main__":
    main()

"""A loopback test of single pins: each output pin of a KestrelDio drives
the input pin it is wired to, high then low, and every read must match.

    python examples/DIO/DIO_loopback_pins.py
    python examples/DIO/DIO_loopback_pins.py --ip 192.168.1.110
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
    pins = list(range(6))
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        dev.DO_openPins(DO_PORT, pins)
        dev.DI_openPins(DI_PORT, pins)
        failures = 0
        for pin in pins:
            reads = []
            for level in (1, 0):
                dev.DO_writePins(DO_PORT, [pin], [level])
                reads.append(dev.DI_readPins(DI_PORT, [pin])[0])
            ok = reads == [1, 0]
            failures += not ok
            print(f"DO {DO_PORT}.{pin} -> DI {DI_PORT}.{pin}: high read {reads[0]}, "
                  f"low read {reads[1]}  {'ok' if ok else 'FAIL'}")
        print(f"{len(pins) - failures} of {len(pins)} pins passed")


if __name__ == "__main__":
    main()

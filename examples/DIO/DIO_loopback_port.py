"""A loopback test of a whole port: a walking one and a few patterns written
to the output port of a KestrelDio, each read back on the input port.

    python examples/DIO/DIO_loopback_port.py
    python examples/DIO/DIO_loopback_port.py --ip 192.168.1.110
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
    patterns = [1 << p for p in range(6)] + [0b111111, 0b101010, 0]
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        dev.DO_openPort(DO_PORT)
        dev.DI_openPort(DI_PORT)
        passed = 0
        for value in patterns:
            dev.DO_writePort(DO_PORT, value)
            read = dev.DI_readPort(DI_PORT)[:6]
            got = sum(bit << p for p, bit in enumerate(read))
            passed += got == value
            print(f"wrote 0b{value:06b}  read 0b{got:06b}  {'ok' if got == value else 'FAIL'}")
        print(f"{passed} of {len(patterns)} patterns passed")


if __name__ == "__main__":
    main()

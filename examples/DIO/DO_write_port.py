"""Write a whole output port of a KestrelDio at once, as a list of pin levels
and as a bit mask, and read the port back on the inputs it is wired to.

    python examples/DIO/DO_write_port.py
    python examples/DIO/DO_write_port.py --ip 192.168.1.110
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
        dev.DO_openPort(DO_PORT)
        dev.DI_openPort(DI_PORT)
        for value in ([1, 0, 1, 1, 0, 0], 0b100110):
            dev.DO_writePort(DO_PORT, value)
            shown = f"0b{value:06b}" if isinstance(value, int) else str(value)
            print(f"wrote {shown:<20} inputs read {dev.DI_readPort(DI_PORT)[:6]}")
        dev.DO_closePort(DO_PORT)
        dev.DI_closePort(DI_PORT)


if __name__ == "__main__":
    main()

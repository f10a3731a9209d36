"""Pin modes of a USB device's digital ports, before and after some pins
are opened as outputs and inputs: each pin is Idle, DI, DO or taken by a bus.

    python examples/System_USB/get_pin_mode.py                # a simulated PloverDio
    python examples/System_USB/get_pin_mode.py --usb SERIAL
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def show(dev, title):
    print(title)
    for port in sorted(dev.do_dict):
        print(f"  port {port}: {' '.join(dev.Sys_getPinModeInPort(port))}")


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args) as dev:
        show(dev, "after power-up")
        dev.DO_openPins(0, [0, 1])
        dev.DI_openPins(0, [2])
        show(dev, "after DO_openPins(0, [0, 1]) and DI_openPins(0, [2])")
        dev.DO_closePins(0, [0, 1])
        dev.DI_closePins(0, [2])


if __name__ == "__main__":
    main()

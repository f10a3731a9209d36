"""Hello world on a USB device: connect, ask the firmware who it is, close.

The simulated PloverDio answers by default; a real one is reached by serial
number ("default": the first one plugged in):

    python examples/System_USB/hello_world.py
    python examples/System_USB/hello_world.py --usb default
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args) as dev:
        model, *rest = dev.Sys_getDriverInfo()
        print(f"Hello from a {dev._getDeviceName()} ({model}): driver info {'_'.join(rest)}")
        print(f"serial number {dev.Sys_getSerialNumber()}")


if __name__ == "__main__":
    main()

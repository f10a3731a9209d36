"""Hello world on a Wi-Fi device: connect its command and data links, ask the
firmware who it is, close.

The simulated HeronAinImu answers by default; a real Heron by its address:

    python examples/System_Wifi/hello_world.py
    python examples/System_Wifi/hello_world.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.HeronAinImu, args) as dev:
        model, *rest = dev.Sys_getDriverInfo()
        print(f"Hello from a {dev._getDeviceName()} ({model}): driver info {'_'.join(rest)}")
        print(f"serial number {dev.Sys_getSerialNumber()}")


if __name__ == "__main__":
    main()

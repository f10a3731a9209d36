"""What a USB device tells about itself: model, firmware text, serial number,
and the USB devices the host can list.

    python examples/System_USB/get_USB_info.py                # a simulated PloverDio
    python examples/System_USB/get_USB_info.py --usb SERIAL
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args) as dev:
        info = dev.Sys_getDriverInfo()
        print(f"{'model':<16}{dev._getDeviceName()} ({info[0]})")
        print(f"{'driver info':<16}{info}")
        print(f"{'serial number':<16}{dev.Sys_getSerialNumber()}")
        print(f"{'connected as':<16}{dev.serial_num}")
    if args.usb is None:
        return  # the simulator's virtual USB bus is private to the driver object
    # The host's own list of ORV USB devices.
    finder = pyorv.DeviceFinder(verbose=False)
    try:
        listed = finder.Bcst_enumerateUSBDevices()
    finally:
        finder.close(verbose=False)
    print(f"USB devices on this host: {len(listed)}")
    for serial, product in listed:
        print(f"  {product:<16}{serial}")

if __name__ == "__main__":
    main()

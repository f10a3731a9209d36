"""CAN_write: send CAN frames from a PloverCan.

Opens CAN port 1, starts the controller and sends a standard frame (id 0x123)
and an extended one (id 0x18FF1234), printing each frame and status and then
the controller's count of frames sent.

    python examples/CAN/CAN_write.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose bus takes every
frame.
"""

import asyncio
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1
FRAMES = [pyorv.CANFrame(0x123, False, False, [0x11, 0x22, 0x33]),
          pyorv.CANFrame(0x18FF1234, True, False, [1, 2, 3, 4, 5, 6, 7, 8])]


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverCan, args) as dev:
        dev.CAN_open(PORT)
        dev.CAN_setSpeed(PORT, 0)                         # the speed modes are the firmware's
        asyncio.run(dev.CAN_start_async(PORT))            # the start has no answer to wait for
        for f in FRAMES:
            status = dev.CAN_write(PORT, f.id, f.data, remote=f.remote, extended_id=f.extended_id)
            print(f"sent id 0x{f.id:X} ({'extended' if f.extended_id else 'standard'}) "
                  f"data {hexes(f.data)}: status {status}")
        print(f"frames sent: {dev._CAN_getCounters(PORT)[0]}")
        dev.CAN_close(PORT)


if __name__ == "__main__":
    main()

"""Drive_servo_on: enable and disable the motor driver of a MerlinDrive.

Switches the stepper driver's enable output on, reads the limit and home
inputs, and switches it off again, printing each status.

    python examples/Drive/Drive_servo_on.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args) as dev:
        dev.Motion_open(PORT)
        print(f"servo on: status {dev.Motion_enableServoOn(PORT)}")
        forward, reverse, home = dev.Motion_getLimitStatus(PORT)
        print(f"inputs: forward limit {forward}, reverse limit {reverse}, home {home}")
        print(f"servo off: status {dev.Motion_enableServoOff(PORT)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

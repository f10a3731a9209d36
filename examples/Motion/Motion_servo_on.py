"""Motion_servo_on: switch the servo-on output of a MerlinAxis axis.

Sets axis 0's servo-on output to active high, gives the axis a known
position, switches the servo on and off and prints each status and the
logical position, which the driver reads back and rewrites at each switch
(so a servo driver that takes over the axis does not lose it).

    python examples/Motion/Motion_servo_on.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgAxis(PORT, AXIS, 0, 0, 0, 1)        # servo-on output active high
        dev.Motion_rstEncoderPosi(PORT, AXIS, 1234)
        print(f"servo on for axis {AXIS}: status {dev.Motion_enableServoOn(PORT, AXIS)}")
        print(f"logical position with the servo on: {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        print(f"servo off for axis {AXIS}: status {dev.Motion_enableServoOff(PORT, AXIS)}")
        print(f"logical position with the servo off: {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

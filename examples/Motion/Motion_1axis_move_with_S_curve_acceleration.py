"""Motion_1axis_move_with_S_curve_acceleration: a move whose speed ramps follow an S curve.

Sets axis 0 to S-curve acceleration with a jerk of 50000000 pulse/s3, drives
it 8000 pulses forward and prints the drive speed every 500 pulses on the way
and the final position.

    python examples/Motion/Motion_1axis_move_with_S_curve_acceleration.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS, TARGET = 0, 0, 8000
MOVE_SECONDS = 10.0


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgJerkAndAccelMode(PORT, AXIS, 50000000, 1)   # jerk, mode 1: S curve
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 50000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        mark, deadline = 0, time.monotonic() + MOVE_SECONDS
        while dev.Motion_getMoveStatus(PORT, AXIS) == 0:
            if time.monotonic() > deadline:
                dev.Motion_stop(PORT, AXIS, 1)
                raise TimeoutError("the move did not end")
            if (logical := dev.Motion_getLogicalPosi(PORT, AXIS)) >= mark:
                print(f"at {logical}: speed {dev._Motion_getCurrentDriveSpeed(PORT, AXIS)} pulse/s")
                mark += 500
        print(f"axis {AXIS}: S-curve move ended at {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

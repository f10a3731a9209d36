"""Motion_velocity_blending: change the speed of a continuous move on the fly.

Axis 0 runs forward in velocity mode at 20000 pulse/s, is sped up to 60000
and slowed to 10000 pulse/s without stopping, each change ramping from the
speed of the moment, then decelerates to a stop.  Prints the drive speed the
chip reports after each ramp and where the axis stopped.

    python examples/Motion/Motion_velocity_blending.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0
SPEEDS = (20000, 60000, 10000)


def wait_done(dev, axes, seconds=10.0):
    """Asks the chip for each axis's move status until all have ended."""
    deadline = time.monotonic() + seconds
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            for a in axes:
                dev.Motion_stop(PORT, a, 1)               # instant stop
            raise TimeoutError(f"axes {axes} still moving after {seconds} s")


def reach_speed(dev, speed, seconds=5.0):
    """Asks the chip for the drive speed until the ramp has reached `speed`."""
    deadline = time.monotonic() + seconds
    while (now := dev._Motion_getCurrentDriveSpeed(PORT, AXIS)) != speed:
        if time.monotonic() > deadline:
            raise TimeoutError(f"speed {now}, not {speed}, after {seconds} s")
    return now


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 2, 0, SPEEDS[0], 1000000, 1000000)   # mode 2: velocity
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        for speed in SPEEDS:
            dev.Motion_overrideAxisVelocity(PORT, AXIS, speed)
            print(f"axis {AXIS}: running at {reach_speed(dev, speed)} pulse/s, "
                  f"position {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_stop(PORT, AXIS, 0)                    # decelerating stop
        wait_done(dev, [AXIS])
        print(f"axis {AXIS}: stopped at {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

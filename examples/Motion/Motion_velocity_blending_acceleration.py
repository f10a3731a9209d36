"""Motion_velocity_blending_acceleration: change speed, ramps and direction of a continuous move.

Axis 0 runs forward in velocity mode at 30000 pulse/s; its acceleration is
then raised and the speed doubled; finally a negative speed makes the chip
decelerate, turn round and run backward at 20000 pulse/s.  Prints the speed
after each change and where the axis stopped.

    python examples/Motion/Motion_velocity_blending_acceleration.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0


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
        dev.Motion_cfgAxisMove(PORT, AXIS, 2, 0, 30000, 500000, 500000)   # mode 2: velocity
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        print(f"forward at {reach_speed(dev, 30000)} pulse/s")
        dev.Motion_overrideAxisAccel(PORT, AXIS, 2000000, 2000000)        # steeper ramps
        dev.Motion_overrideAxisVelocity(PORT, AXIS, 60000)
        print(f"steeper ramps, forward at {reach_speed(dev, 60000)} pulse/s")
        turned_at = dev.Motion_getLogicalPosi(PORT, AXIS)
        dev.Motion_overrideAxisVelocity(PORT, AXIS, -20000)               # turn round
        deadline = time.monotonic() + 5.0
        while dev.Motion_getLogicalPosi(PORT, AXIS) >= turned_at:
            if time.monotonic() > deadline:
                raise TimeoutError("the axis did not turn round")
        print(f"turn ordered at {turned_at}: backward at {reach_speed(dev, 20000)} pulse/s")
        dev.Motion_stop(PORT, AXIS, 0)
        wait_done(dev, [AXIS])
        end = dev.Motion_getLogicalPosi(PORT, AXIS)
        print(f"axis {AXIS}: stopped at {end}, {turned_at - end} pulses back from the turn")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

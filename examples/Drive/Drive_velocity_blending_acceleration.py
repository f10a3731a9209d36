"""Drive_velocity_blending_acceleration: change the speed, ramps and direction of a running stepper.

Runs forward at 2000 steps/s, then at 6000 steps/s with steeper ramps, then
backward at 3000 steps/s.  The drive's firmware runs one move at a time, so
each change stops the running move and starts the next at once.  Prints the
speed the drive reports after each change.

    python examples/Drive/Drive_velocity_blending_acceleration.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0
STEPS = ((2000, 50000, 1), (6000, 200000, 1), (3000, 200000, -1))  # speed, ramp, direction


def position(dev):
    """The drive's position in steps (the driver reads it as an unsigned word)."""
    value = dev.Motion_readEncoderPosition(PORT)[1]
    return value - 2**32 if value >= 2**31 else value


def velocity(dev):
    """The drive's speed in steps/s, negative backward (a 24-bit signed register)."""
    value = dev.Motion_readCurrentVelocity(PORT)
    return value - 2**24 if value >= 2**23 else value


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, 0)
        for speed, ramp, direction in STEPS:
            if dev.Motion_getProcessState(PORT) != 0:
                dev.Motion_stopProcess(PORT)
            status = dev.Motion_startVelocticyMove(PORT, speed, ramp, ramp, direction)
            time.sleep(0.1 if args.quick else 0.5)        # let it run a while
            print(f"speed {speed}, ramp {ramp}, direction {direction}: status {status}, "
                  f"drive reports {velocity(dev)} steps/s at {position(dev)}")
        dev.Motion_stopProcess(PORT)
        print(f"stopped: {velocity(dev)} steps/s")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

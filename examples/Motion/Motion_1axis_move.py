"""Motion_1axis_move: one axis of a MerlinAxis (MCX514) to an absolute position.

Configures axis 0 for pulse/direction output, clears its counters, drives it
to 10000 pulses with a trapezoidal ramp, waits for the chip to report the move
complete and prints the logical and encoder positions.

    python examples/Motion/Motion_1axis_move.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS, TARGET = 0, 0, 10000


def wait_done(dev, axes, seconds=10.0):
    """Asks the chip for each axis's move status until all have ended."""
    deadline = time.monotonic() + seconds
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            for a in axes:
                dev.Motion_stop(PORT, a, 1)               # instant stop
            raise TimeoutError(f"axes {axes} still moving after {seconds} s")


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgAxis(PORT, AXIS, 0, 0, 0, 1)        # pulse/direction, servo-on active high
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        # mode 0 (absolute): target, 100000 pulse/s, accel and decel 1000000 pulse/s2
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_enableServoOn(PORT, AXIS)
        print(f"axis {AXIS}: moving to {TARGET}")
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])
        print(f"axis {AXIS}: logical position {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"encoder position {dev.Motion_getEncoderPosi(PORT, AXIS)}")
        dev.Motion_enableServoOff(PORT, AXIS)
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

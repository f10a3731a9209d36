"""Motion_3axis_linear_interpolation: a straight line in space on three axes.

Axes 0, 1 and 2 move together from the origin to (3000, -2000, 1000) at a
vector speed of 50000 pulse/s and arrive at the same moment; prints the end
point.

    python examples/Motion/Motion_3axis_linear_interpolation.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXES = 0, (0, 1, 2)


def wait_done(dev, axes, seconds=10.0):
    """Asks the chip for each axis's move status until all have ended."""
    deadline = time.monotonic() + seconds
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            for a in axes:
                dev.Motion_stop(PORT, a, 1)               # instant stop
            raise TimeoutError(f"axes {axes} still moving after {seconds} s")


def positions(dev, axes):
    return [dev.Motion_getLogicalPosi(PORT, a) for a in axes]


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        for a in AXES:
            dev.Motion_rstEncoderPosi(PORT, a, 0)
        dev.Motion_cfg3AxisLinearInterpo(PORT, 0, 3000, 1, -2000, 2, 1000, 50000, 1000000, 1000000)
        dev.Motion_startLinearInterpo(PORT)
        wait_done(dev, AXES)
        print(f"line ended at {positions(dev, AXES)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

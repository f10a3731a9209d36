"""Motion_2axis_linear_interpolation: a straight line on two axes.

Axes 0 and 1 move together from (0, 0) to (4000, -3000) at a vector speed of
50000 pulse/s, the chip keeping both on the line; prints the positions each
time axis 0 passes another 1000 pulses, and at the end.

    python examples/Motion/Motion_2axis_linear_interpolation.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXES = 0, (0, 1)


def positions(dev, axes):
    return [dev.Motion_getLogicalPosi(PORT, a) for a in axes]


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        for a in AXES:
            dev.Motion_rstEncoderPosi(PORT, a, 0)
        # axis 0 to 4000, axis 1 to -3000, vector speed, acceleration, deceleration
        dev.Motion_cfg2AxisLinearInterpo(PORT, 0, 4000, 1, -3000, 50000, 1000000, 1000000)
        dev.Motion_startLinearInterpo(PORT)
        mark, deadline = 1000, time.monotonic() + 10.0
        while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in AXES):
            if time.monotonic() > deadline:
                for a in AXES:
                    dev.Motion_stop(PORT, a, 1)
                raise TimeoutError("the line did not end")
            if (now := positions(dev, AXES))[0] >= mark:
                print(f"on the way: {now}")
                mark += 1000
        print(f"line ended at {positions(dev, AXES)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

"""Motion_2axis_circular_interpolation: half a circle on two axes.

Axes 0 (x) and 1 (y) run clockwise round the centre (2000, 0) from (0, 0) to
(4000, 0) at 50000 pulse/s; prints the highest point the arc reached and the
end point.

    python examples/Motion/Motion_2axis_circular_interpolation.py [--ip HOST] [--quick]

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
        # x axis 0, y axis 1, centre and finish relative to the start, direction 0: clockwise
        dev.Motion_cfgCircularInterpo(PORT, 0, 1, 2000, 0, 4000, 0, 0, 50000)
        dev.Motion_startCircularInterpo(PORT)
        top, deadline = 0, time.monotonic() + 10.0
        while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in AXES):
            if time.monotonic() > deadline:
                raise TimeoutError("the arc did not end")
            top = max(top, dev.Motion_getLogicalPosi(PORT, 1))
        print(f"arc ended at {positions(dev, AXES)}, highest y on the way: {top}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

"""Motion_position_blending: change an axis's target while it is moving.

Axis 0 starts toward 40000; once past 5000 its finish point is moved to
30000, and the chip runs on to the new target without stopping first.

    python examples/Motion/Motion_position_blending.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0
FIRST, SECOND = 40000, 30000


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
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, FIRST, 50000, 500000, 500000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        print(f"axis {AXIS}: moving to {FIRST}")
        deadline = time.monotonic() + 10.0
        while (position := dev.Motion_getLogicalPosi(PORT, AXIS)) < 5000:
            if time.monotonic() > deadline or dev.Motion_getMoveStatus(PORT, AXIS) == 1:
                raise TimeoutError("the axis did not pass 5000")
        dev.Motion_overrideAxisPosi(PORT, AXIS, SECOND)
        print(f"axis {AXIS}: at {position} the target becomes {SECOND}")
        wait_done(dev, [AXIS])
        print(f"axis {AXIS}: ended at {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

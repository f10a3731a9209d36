"""Motion_3axis_helical_interpolation: a helix: a circle on axes 0 and 1 while axis 2 climbs.

Two whole turns of radius 1000 counter-clockwise round the centre (1000, 0),
axis 2 rising 300 pulses a turn.  The chip first works out the helix's length
(the driver waits up to 1000 ms for it), then runs it at 100000 pulse/s;
prints the length and the end point.

    python examples/Motion/Motion_3axis_helical_interpolation.py [--ip HOST] [--quick]

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
        # centre (1000, 0), finish (0, 0), axis 3 on with pitch 300, axis 4 off,
        # 2 turns, 100000 pulse/s, direction 1 (counter-clockwise), 1000 ms to calculate
        dev.Motion_cfgHelicalInterpo(PORT, 1000, 0, 0, 0, 1, 300, 0, 0, 2, 100000, 1, 1000)
        print(f"helix length from the chip: {dev.helical_interpo.calculation_result} pulses")
        dev.Motion_startHelicalInterpo(PORT)
        wait_done(dev, AXES)
        print(f"helix ended at {positions(dev, AXES)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

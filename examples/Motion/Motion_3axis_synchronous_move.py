"""Motion_3axis_synchronous_move: three axes prepared apart and started in the same instant.

Each of axes 0, 1 and 2 gets its own target and speed;
Motion_startMultiAxisMove then writes them, holds each axis's start and
releases all three together.  In this version of the driver the release
step fails with an AttributeError before anything is sent, so the axes stay
held and never start.  The example says so, cancels the held starts with an
instant stop and prints the positions, which have not changed.

    python examples/Motion/Motion_3axis_synchronous_move.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0
MOVES = {0: (8000, 20000), 1: (-2000, 10000), 2: (3000, 100000)}  # target, speed


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
        for axis, (target, speed) in MOVES.items():
            dev.Motion_rstEncoderPosi(PORT, axis, 0)
            dev.Motion_cfgAxisMove(PORT, axis, 0, target, speed, 1000000, 1000000)
        try:
            dev.Motion_startMultiAxisMove(PORT, list(MOVES))
            wait_done(dev, list(MOVES))
            print("the three axes started together and arrived")
        except AttributeError as e:
            print(f"the held start could not be released: {e}")
            for axis in MOVES:
                dev.Motion_stop(PORT, axis, 1)            # cancel the held start
            wait_done(dev, list(MOVES))
        print(f"positions: {positions(dev, MOVES)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

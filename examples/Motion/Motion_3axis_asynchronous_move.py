"""Motion_3axis_asynchronous_move: three axes, each on its own move.

Axes 0, 1 and 2 each get a target and a speed of their own and are started
one after the other; each ends when it arrives.  Prints the order in which
they finished and their positions.

    python examples/Motion/Motion_3axis_asynchronous_move.py [--ip HOST] [--quick]

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


def positions(dev, axes):
    return [dev.Motion_getLogicalPosi(PORT, a) for a in axes]


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        for axis, (target, speed) in MOVES.items():
            dev.Motion_rstEncoderPosi(PORT, axis, 0)
            dev.Motion_cfgAxisMove(PORT, axis, 0, target, speed, 1000000, 1000000)
        for axis in MOVES:
            dev.Motion_startSingleAxisMove(PORT, axis)
        finished, deadline = [], time.monotonic() + 10.0
        while len(finished) < len(MOVES):
            if time.monotonic() > deadline:
                raise TimeoutError("not every axis arrived")
            finished += [a for a in MOVES
                         if a not in finished and dev.Motion_getMoveStatus(PORT, a) == 1]
        print(f"finished in the order {finished}")
        print(f"positions: {positions(dev, MOVES)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

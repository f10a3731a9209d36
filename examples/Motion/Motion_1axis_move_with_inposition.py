"""Motion_1axis_move_with_inposition: a move that ends when the servo driver reports in-position.

Enables axis 0's in-position input (active low): the chip then keeps the
move busy after its last pulse until the servo driver's INPOS signal says the
motor has settled.  Prints the position and the raw input levels (RR3 page
0).  The built-in simulator has no in-position input, so there the move ends
with its last pulse.

    python examples/Motion/Motion_1axis_move_with_inposition.py [--ip HOST] [--quick]

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
        dev.Motion_cfgInposi(PORT, AXIS, 1, 0)            # in-position input on, active low

        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])

        inputs = dev._Motion_writeRR3(PORT, AXIS, 0)      # RR3 page 0: the axis's input levels
        print(f"axis {AXIS}: in position at {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"input levels 0x{inputs:04x}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

"""Motion_1axis_move_with_breakpoint: a move that sends a pulse train when it passes a break point.

Arms axis 0's break point at the absolute position 2000: when the axis passes
it, the chip puts out 5 pulses of 10 us every 1000 us on the axis's output
pin.  Then drives the axis to 10000 and prints the statuses and the final
position.  The built-in simulator accepts the settings but does not produce
the pulse train.

    python examples/Motion/Motion_1axis_move_with_breakpoint.py [--ip HOST] [--quick]

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
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        # mode 0 (absolute), polarity 1, start 2000, width 10, period 1000, 5 pulses
        status = dev.Motion_cfgBreakPoint(PORT, AXIS, 0, 1, 2000, 10, 1000, 5)
        status |= dev.Motion_enableBreakPoint(PORT, AXIS, 1)
        print(f"axis {AXIS}: break point armed at 2000, status {status}")
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])
        print(f"axis {AXIS}: moved past the break point to {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_enableBreakPoint(PORT, AXIS, 0)
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

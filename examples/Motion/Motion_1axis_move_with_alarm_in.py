"""Motion_1axis_move_with_alarm_in: a move that the servo driver's alarm input may stop.

Enables axis 0's alarm input (active low), drives the axis to 10000 pulses and
prints where it ended and the chip's error bits: bit 4 of RR2 is set when the
alarm input stopped the move.  The built-in simulator has no alarm input, so
there the move always completes and the alarm bit reads 0.

    python examples/Motion/Motion_1axis_move_with_alarm_in.py [--ip HOST] [--quick]

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
        dev.Motion_cfgAlarm(PORT, AXIS, 1, 0)             # alarm input on, active low

        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])

        errors = dev._Motion_writeRR2(PORT, AXIS)         # RR2: the axis's error bits
        print(f"axis {AXIS}: stopped at {dev.Motion_getLogicalPosi(PORT, AXIS)} of {TARGET}, "
              f"error bits 0x{errors:04x}, alarm {'on' if errors & 0x10 else 'off'}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

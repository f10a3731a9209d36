"""Motion_1axis_move_with_capture: capture the position at which an input changed during a move.

Axis 0 keeps its logical position in a register on the rising edge of its
capture input (a probe or a sensor) while it drives to 6000, then prints the
captured position.

    python examples/Motion/Motion_1axis_move_with_capture.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the input's edge at
2500.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS, TARGET = 0, 0, 6000


def wait_done(dev, axes, seconds=10.0):
    """Asks the chip for each axis's move status until all have ended."""
    deadline = time.monotonic() + seconds
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            for a in axes:
                dev.Motion_stop(PORT, a, 1)               # instant stop
            raise TimeoutError(f"axes {axes} still moving after {seconds} s")


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("mcx514.sync_at.0", 2500)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgCapture(PORT, AXIS, 0, 0)           # rising edge, logical position
        dev.Motion_enableCapture(PORT, AXIS, 1)
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])
        dev.Motion_enableCapture(PORT, AXIS, 0)
        print(f"axis {AXIS}: moved to {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"input edge captured at {dev.Motion_readCapturePoint(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

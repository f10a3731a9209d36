"""Drive_position_move: move a MerlinDrive stepper to a position and back part of the way.

Clears the position, moves to 5000 steps (absolute) at 20000 steps/s, then
2000 steps back (relative), waiting each time for the drive to report the
move done, and prints the positions.

    python examples/Drive/Drive_position_move.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0


def wait_idle(dev, seconds=10.0):
    """Asks the drive for its process state until the move or search has ended."""
    deadline = time.monotonic() + seconds
    while dev.Motion_getProcessState(PORT) != 0:
        if time.monotonic() > deadline:
            dev.Motion_stopProcess(PORT)
            raise TimeoutError(f"the drive was still busy after {seconds} s")


def position(dev):
    """The drive's position in steps (the driver reads it as an unsigned word)."""
    value = dev.Motion_readEncoderPosition(PORT)[1]
    return value - 2**32 if value >= 2**31 else value


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, 0)
        dev.Motion_enableServoOn(PORT)
        # position, speed steps/s, acceleration and deceleration steps/s2,
        # mode 0 absolute / 1 relative
        for target, mode in ((5000, 0), (-2000, 1)):
            status = dev.Motion_startPositionMove(PORT, target, 20000, 100000, 100000, mode)
            wait_idle(dev)
            what = "relative move by" if mode else "absolute move to"
            print(f"{what} {target}: status {status}, now at {position(dev)}")
        dev.Motion_enableServoOff(PORT)
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

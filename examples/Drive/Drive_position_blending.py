"""Drive_position_blending: give a moving MerlinDrive stepper a new target.

Starts toward 20000 steps; once the drive is past 2000 the target becomes
5000.  The drive's firmware runs one move at a time and refuses a start
while one runs (the example prints that status), so the running move is
stopped and the new one started at once from where the motor is.

    python examples/Drive/Drive_position_blending.py [--ip HOST] [--quick]

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
        dev.Motion_startPositionMove(PORT, 20000, 20000, 100000, 100000, 0)
        deadline = time.monotonic() + 10.0
        while position(dev) < 2000:
            if time.monotonic() > deadline or dev.Motion_getProcessState(PORT) == 0:
                raise TimeoutError("the drive did not pass 2000")
        refused = dev.Motion_startPositionMove(PORT, 5000, 20000, 100000, 100000, 0)
        busy = " (errFirmwareDrive: a move is running)" if refused == pyorv.errFirmwareDrive else ""
        print(f"a start while moving is refused: status {refused}{busy}")
        dev.Motion_stopProcess(PORT)
        print(f"new target 5000 from {position(dev)}: "
              f"status {dev.Motion_startPositionMove(PORT, 5000, 20000, 100000, 100000, 0)}")
        wait_idle(dev)
        print(f"arrived at {position(dev)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

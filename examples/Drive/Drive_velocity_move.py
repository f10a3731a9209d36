"""Drive_velocity_move: run a MerlinDrive stepper at a constant speed, then stop it.

Starts a forward velocity move at 4000 steps/s, prints speed and position a
few times while it runs and stops the move from the host.

    python examples/Drive/Drive_velocity_move.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0


def position(dev):
    """The drive's position in steps (the driver reads it as an unsigned word)."""
    value = dev.Motion_readEncoderPosition(PORT)[1]
    return value - 2**32 if value >= 2**31 else value


def velocity(dev):
    """The drive's speed in steps/s, negative backward (a 24-bit signed register)."""
    value = dev.Motion_readCurrentVelocity(PORT)
    return value - 2**24 if value >= 2**23 else value


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, 0)
        # speed steps/s, acceleration and deceleration steps/s2, direction 1 forward / -1 reverse
        print(f"start: status {dev.Motion_startVelocticyMove(PORT, 4000, 100000, 100000, 1)}")
        for _ in range(_target.loops(args, 5, 2)):
            time.sleep(0.1)                               # a reading every so often, not a wait
            print(f"running: {velocity(dev)} steps/s at {position(dev)}, "
                  f"process state {dev.Motion_getProcessState(PORT)}")
        print(f"stop: status {dev.Motion_stopProcess(PORT)}")
        print(f"stopped: {velocity(dev)} steps/s at {position(dev)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

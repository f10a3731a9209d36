"""Drive_find_limit: find the reverse limit switch of a MerlinDrive stepper.

Enables both limit switches, searches in reverse at 20000 steps/s for the
reverse limit, approaches it at 5000 steps/s and moves 40 steps away from it,
keeping the position count (reset "false").  Prints where it ended.

    python examples/Drive/Drive_find_limit.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the reverse limit
at -800.
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


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("tmc5240.limit_reverse_at", -800)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgLimit(PORT, 1, 1, 1)                # forward and reverse on, active high
        dev.Motion_rstEncoderPosi(PORT, 0)
        # direction -1 (reverse), searching and approaching speed, acceleration, offset, reset
        status = dev.Motion_startFindLimit(PORT, -1, 20000, 5000, 100000, 40, "false")
        print(f"searching the reverse limit: status {status}")
        wait_idle(dev)
        print(f"limit found; stopped at {position(dev)}, 40 steps off the switch")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

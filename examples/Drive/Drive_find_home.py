"""Drive_find_home: find the home switch of a MerlinDrive stepper and zero there.

Searches in reverse at 20000 steps/s for the home input, approaches it
forward at 5000 steps/s, moves 40 steps on and sets the position to 0 there
(reset "true"), waiting for the drive to end the search.  Prints the inputs
and the position.

    python examples/Drive/Drive_find_home.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the home switch at
-600.
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
    sim_dev.state_set("tmc5240.home_at", -600)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        # searching and approaching speed, acceleration, search direction -1 (reverse),
        # approach direction 1 (forward), offset 40 steps, reset the position ("true")
        status = dev.Motion_startFindHome(PORT, 20000, 5000, 100000, -1, 1, 40, "true")
        print(f"searching home: status {status}, process state {dev.Motion_getProcessState(PORT)}")
        wait_idle(dev)
        forward, reverse, home = dev.Motion_getLimitStatus(PORT)
        print(f"home found; position now {position(dev)}, home input {home}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

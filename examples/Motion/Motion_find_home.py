"""Motion_find_home: search the home switch of a MerlinAxis axis.

Axis 0 searches forward for its home input at 50000 pulse/s, backs off and
approaches it again at 20 % of that speed, clears its counters at the switch
and then moves 100 pulses away from it.  Waits for the chip to report the
search done and prints the position it ended at.

    python examples/Motion/Motion_find_home.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the home switch at
3000.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0
SEARCH_SECONDS = 10.0


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("mcx514.home_at.0", 3000)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgHome(PORT, AXIS, 1, 0)              # home input enabled, active low
        # search type 0 (home), direction 0 (forward), 50000 pulse/s, 5000000 pulse/s2,
        # approach at 20 %, reset the counters (1), then an offset of 100 pulses
        dev.Motion_cfgFindRef(PORT, AXIS, 0, 0, 50000, 5000000, 20, 1, 100)
        print(f"axis {AXIS}: searching home, status {dev.Motion_findRef(PORT, AXIS)}")
        deadline = time.monotonic() + SEARCH_SECONDS
        while dev.Motion_checkRef(PORT, AXIS) == 0:
            if time.monotonic() > deadline:
                dev.Motion_stop(PORT, AXIS, 1)
                raise TimeoutError("no home switch found")
        print(f"axis {AXIS}: home found, position after the offset: "
              f"{dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

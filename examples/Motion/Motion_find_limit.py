"""Motion_find_limit: search the forward limit switch of a MerlinAxis axis.

Enables both limit inputs (active high), lets axis 0 search forward for its
limit, clears its counters there and prints the limit inputs and the
position.

    python examples/Motion/Motion_find_limit.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the forward limit
at 5000.
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
    sim_dev.state_set("mcx514.limit_fwd_at.0", 5000)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgLimit(PORT, AXIS, 1, 1, 1)          # forward and reverse on, active high
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        # search type 2 (limit), direction 0 (forward), 50000 pulse/s, 5000000 pulse/s2,
        # approach at 20 %, no reset, no offset
        dev.Motion_cfgFindRef(PORT, AXIS, 2, 0, 50000, 5000000, 20, 0, 0)
        print(f"axis {AXIS}: searching the limit, status {dev.Motion_findRef(PORT, AXIS)}")
        deadline = time.monotonic() + SEARCH_SECONDS
        while dev.Motion_checkRef(PORT, AXIS) == 0:
            if time.monotonic() > deadline:
                dev.Motion_stop(PORT, AXIS, 1)
                raise TimeoutError("no limit switch found")
        forward, reverse = dev.Motion_getLimitStatus(PORT, AXIS)
        print(f"axis {AXIS}: stopped at {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"forward limit {forward}, reverse limit {reverse}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

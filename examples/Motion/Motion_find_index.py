"""Motion_find_index: search the encoder's index (Z) pulse on a MerlinAxis axis.

Axis 0 turns forward until the encoder's Z input and prints the position
at which it stopped there.

    python examples/Motion/Motion_find_index.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator with the index pulse at
1500.
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
    sim_dev.state_set("mcx514.index_at.0", 1500)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args, sim_state=simulated) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgEncoder(PORT, AXIS, 1)              # Z input polarity
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        # search type 1 (index), direction 0 (forward), 20000 pulse/s, 2000000 pulse/s2,
        # approach at 20 %, keep the counters (0), no offset
        dev.Motion_cfgFindRef(PORT, AXIS, 1, 0, 20000, 2000000, 20, 0, 0)
        print(f"axis {AXIS}: searching the index, status {dev.Motion_findRef(PORT, AXIS)}")
        deadline = time.monotonic() + SEARCH_SECONDS
        while dev.Motion_checkRef(PORT, AXIS) == 0:
            if time.monotonic() > deadline:
                dev.Motion_stop(PORT, AXIS, 1)
                raise TimeoutError("no index pulse found")
        print(f"axis {AXIS}: index found, position {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"encoder {dev.Motion_getEncoderPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

"""Motion_get_logical_position: read the logical and encoder positions while an axis moves.

Starts a relative move of 20000 pulses on axis 0 and prints both position
counters each time the axis passes another 5000 pulses, then the final
values.

    python examples/Motion/Motion_get_logical_position.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS = 0, 0
TARGET, STEP, MOVE_SECONDS = 20000, 5000, 10.0


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 1, TARGET, 100000, 500000, 500000)   # relative
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        mark, deadline = STEP, time.monotonic() + MOVE_SECONDS
        while dev.Motion_getMoveStatus(PORT, AXIS) == 0:
            if time.monotonic() > deadline:
                dev.Motion_stop(PORT, AXIS, 1)
                raise TimeoutError("the move did not end")
            if (logical := dev.Motion_getLogicalPosi(PORT, AXIS)) >= mark:
                encoder = dev.Motion_getEncoderPosi(PORT, AXIS)
                print(f"passed {mark}: logical {logical}, encoder {encoder}")
                mark += STEP
        print(f"stopped: logical {dev.Motion_getLogicalPosi(PORT, AXIS)}, "
              f"encoder {dev.Motion_getEncoderPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

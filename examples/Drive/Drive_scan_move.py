"""Drive_scan_move: scan a MerlinDrive stepper back and forth between two positions.

The drive runs between 0 and 3000 steps at 30000 steps/s until the host stops
it; the example prints the position a few times, then stops the scan.

    python examples/Drive/Drive_scan_move.py [--ip HOST] [--quick]

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


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinDrive, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_rstEncoderPosi(PORT, 0)
        # the two ends, speed steps/s, acceleration steps/s2
        print(f"start: status {dev.Motion_startScanMove(PORT, 0, 3000, 30000, 100000)}")
        for _ in range(_target.loops(args, 10, 3)):
            time.sleep(0.05)                              # a reading every so often, not a wait
            print(f"scanning: state {dev.Motion_getProcessState(PORT)}, at {position(dev)}")
        dev.Motion_stopProcess(PORT)
        print(f"stopped: state {dev.Motion_getProcessState(PORT)}, at {position(dev)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

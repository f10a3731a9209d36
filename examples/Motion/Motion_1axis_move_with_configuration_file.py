"""Motion_1axis_move_with_configuration_file: a move with the axis set up from an ini file.

Writes a settings file for the four axes into a new temporary folder, with
axis 0 set to CW/CCW pulses and its limits enabled active high, loads it
(which sends the settings to the device), then drives axis 0 to 6000 and
prints the settings used and the final position.

    python examples/Motion/Motion_1axis_move_with_configuration_file.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import configparser
import os
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, AXIS, TARGET = 0, 0, 6000


def wait_done(dev, axes, seconds=10.0):
    """Asks the chip for each axis's move status until all have ended."""
    deadline = time.monotonic() + seconds
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            for a in axes:
                dev.Motion_stop(PORT, a, 1)               # instant stop
            raise TimeoutError(f"axes {axes} still moving after {seconds} s")


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        path = os.path.join(tempfile.mkdtemp(prefix="motion_cfg_"), "axes.ini")
        open(path, "w").close()                           # the driver opens only an existing file
        dev.Motion_openCfgFile(path)
        dev.Motion_saveCfgFile()                          # every entry, to edit from
        ini = configparser.ConfigParser()
        ini.read(path)
        ini["Axis_1"].update({"stepper output": "CW/CCW(Two Pulse)",
                              "forward polarity": "Active High", "reverse polarity": "Active High"})
        with open(path, "w") as f:
            ini.write(f)
        print(f"loaded {path}: status {dev.Motion_loadCfgFile()}")
        print(f"axis {AXIS}: stepper output {ini['Axis_1']['stepper output']}, "
              f"limits {ini['Axis_1']['forward enable']}/{ini['Axis_1']['reverse enable']}")
        dev.Motion_rstEncoderPosi(PORT, AXIS, 0)
        dev.Motion_cfgAxisMove(PORT, AXIS, 0, TARGET, 100000, 1000000, 1000000)
        dev.Motion_startSingleAxisMove(PORT, AXIS)
        wait_done(dev, [AXIS])
        print(f"axis {AXIS}: moved to {dev.Motion_getLogicalPosi(PORT, AXIS)}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

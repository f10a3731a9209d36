"""Motion_save_configuration_file: save the axes' settings of a MerlinAxis to an ini file.

Sets up axis 0 (pulse/direction, limits active high) and axis 1 (CW/CCW pulses,
inverted direction), writes the settings of all four axes to axes.ini in a
new temporary folder and prints axis 1's section of the file.

    python examples/Motion/Motion_save_configuration_file.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import os
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        dev.Motion_cfgAxis(PORT, 0, 0, 0, 0, 1)           # step/dir, servo-on active high
        dev.Motion_cfgLimit(PORT, 0, 1, 1, 1)             # both limits on, active high
        dev.Motion_cfgAxis(PORT, 1, 1, 1, 0, 1)           # CW/CCW, motion direction inverted
        path = os.path.join(tempfile.mkdtemp(prefix="motion_cfg_"), "axes.ini")
        open(path, "w").close()                           # the driver opens only an existing file
        dev.Motion_openCfgFile(path)
        print(f"saved to {path}: status {dev.Motion_saveCfgFile()}")
        with open(path) as f:
            text = f.read()
        print(text[text.index("[Axis_2]"):text.index("[Axis_3]")].rstrip())
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

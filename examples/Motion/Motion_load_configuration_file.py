"""Motion_load_configuration_file: load the axes' settings of a MerlinAxis from an ini file.

Makes a settings file to start from (the current settings, saved to a new
temporary folder), changes three entries of Axis_1 in it as a user would in
an editor, loads the file, which sends the settings of all four axes to the
device, and prints what axis 0 now holds.

    python examples/Motion/Motion_load_configuration_file.py [--ip HOST] [--quick]

Without --ip it runs against the built-in simulator.
"""

import configparser
import os
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 0
CHANGES = {"home enable": "TRUE", "home polarity": "Active High",
           "offset position": "500"}


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.MerlinAxis, args) as dev:
        dev.Motion_open(PORT)
        path = os.path.join(tempfile.mkdtemp(prefix="motion_cfg_"), "axes.ini")
        open(path, "w").close()                           # the driver opens only an existing file
        dev.Motion_openCfgFile(path)
        dev.Motion_saveCfgFile()
        ini = configparser.ConfigParser()
        ini.read(path)
        ini["Axis_1"].update(CHANGES)
        with open(path, "w") as f:
            ini.write(f)
        print(f"loaded {path}: status {dev.Motion_loadCfgFile()}")
        for label in ("Home Enable", "Home Polarity", "Offset Position", "Stepper Output"):
            print(f"axis 0 {label}: {dev.axis_1.motion_dict[label]}")
        dev.Motion_close(PORT)


if __name__ == "__main__":
    main()

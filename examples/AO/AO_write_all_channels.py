"""Set all eight analog outputs of a KestrelAout at once, and read back what
each channel outputs.

    python examples/AO/AO_write_all_channels.py
    python examples/AO/AO_write_all_channels.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAout"]["AO"]
VALUES = [-7.5, -5.0, -2.5, 0.0, 1.25, 2.5, 5.0, 9.5]  # volts, within +-10 V


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelAout, args) as dev:
        dev.AO_open(PORT)
        dev.AO_writeAllChannels(PORT, VALUES)
        out = dev.AO_getValues(PORT)
        print("channel   written    output")
        for channel, (want, have) in enumerate(zip(VALUES, out)):
            print(f"{channel:7d}  {want:7.3f} V  {have:7.3f} V")
        dev.AO_close(PORT)


if __name__ == "__main__":
    main()

"""Set the four channels of a KestrelRes digital resistor at once, each as a
ratio of its full scale, and read back what each channel holds.

    python examples/DPOT/DPOT_writeAllChannels.py
    python examples/DPOT/DPOT_writeAllChannels.py --ip 192.168.1.110
"""

import struct

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelRes"]["DPOT"]
RATIOS = [0.1, 0.25, 0.5, 0.875]


def as_ratio(bits):
    """DPOT_readByChannel gives the 32 bits of the stored float."""
    return struct.unpack(">f", struct.pack(">I", bits))[0]


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelRes, args) as dev:
        dev.DPOT_open(PORT)
        status = dev.DPOT_writeAllChannel(PORT, RATIOS)
        print(f"wrote {RATIOS} (status {status})")
        print("channel  ratio")
        for channel in range(len(RATIOS)):
            print(f"{channel:7d}  {as_ratio(dev.DPOT_readByChannel(PORT, channel)):.3f}")
        dev.DPOT_close(PORT)


if __name__ == "__main__":
    main()

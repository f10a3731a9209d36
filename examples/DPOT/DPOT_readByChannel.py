"""Read what each channel of a KestrelRes digital resistor is set to, as a
ratio of its full scale.  The reply is the 32 bits of the stored float; the
example turns it into the number.

A fresh simulated device holds 0 on every channel (DPOT_writeAllChannels.py
sets them):

    python examples/DPOT/DPOT_readByChannel.py
    python examples/DPOT/DPOT_readByChannel.py --ip 192.168.1.110
"""

import struct

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelRes"]["DPOT"]
CHANNELS = 4


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelRes, args) as dev:
        dev.DPOT_open(PORT)
        print("channel        raw  ratio")
        for channel in range(CHANNELS):
            bits = dev.DPOT_readByChannel(PORT, channel)
            ratio = struct.unpack(">f", struct.pack(">I", bits))[0]
            print(f"{channel:7d}  0x{bits:08X}  {ratio:.3f}")
        dev.DPOT_close(PORT)


if __name__ == "__main__":
    main()

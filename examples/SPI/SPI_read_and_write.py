"""SPI_read_and_write: a full-duplex SPI transfer on a Plover.

On SPI port 1 of a PloverDio (SPI mode 0) the example
clocks four bytes out on MOSI and prints the four bytes clocked in on MISO at
the same time.

    python examples/SPI/SPI_read_and_write.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose MISO is wired to
MOSI, so the bytes come back as sent.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1
DATA = [0x9F, 0x01, 0x02, 0x03]


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args) as dev:
        dev.SPI_open(PORT)
        dev.SPI_setMode(PORT, 0)                          # clock idle low, sample on the first edge
        for _ in range(_target.loops(args, 3, 1)):
            received = dev.SPI_readAndWrite(PORT, DATA)
            print(f"sent {hexes(DATA)}, received {hexes(received)}")
        dev.SPI_close(PORT)


if __name__ == "__main__":
    main()

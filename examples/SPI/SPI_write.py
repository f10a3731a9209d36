"""SPI_write: write registers of an SPI chip from a Plover.

On SPI port 1 of a PloverDio the example writes two registers of a chip that
takes a command byte first (bit 7 set for a read, bits 0-6 the register),
as many sensors and converters do: SPI_write sends 0x05, 0xA5, 0x5A, which
stores 0xA5 and 0x5A in registers 5 and 6.  It then reads them back with
the command 0x85 in a full-duplex transfer and prints the bytes.

    python examples/SPI/SPI_write.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose SPI slave is
such a register file.
"""

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1
WRITE = [0x05, 0xA5, 0x5A]    # register 5 on, two values
READ = [0x85, 0x00, 0x00]     # read from register 5, two bytes clocked in


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("spi.slave", "registers")


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args, sim_state=simulated) as dev:
        dev.SPI_open(PORT)
        dev.SPI_setMode(PORT, 0)
        print(f"write {hexes(WRITE)}: status {dev.SPI_write(PORT, WRITE)}")
        received = dev.SPI_readAndWrite(PORT, READ)
        print(f"registers 5, 6 read back: {hexes(received[1:])}")
        dev.SPI_close(PORT)


if __name__ == "__main__":
    main()

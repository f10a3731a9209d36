"""I2C_write_read: write to and read from I2C chips on a Plover.

On I2C port 1 of a PloverDio (100 kHz) the example writes
four bytes into a 24C02-style EEPROM at address 0x50 from word 0x10 on,
reads them back (a one-byte write of the word address, then a read), and
reads the temperature register of an LM75-style sensor at 0x48.  Prints the
bytes in hex and the temperature.

    python examples/I2C/I2C_write_read.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose bus carries such
an EEPROM and a sensor at 23.5 degrees C.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT, EEPROM, SENSOR = 1, 0x50, 0x48
DATA = [0xDE, 0xAD, 0xBE, 0xEF]


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("i2c.lm75.temp", 23.5)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args, sim_state=simulated) as dev:
        dev.I2C_open(PORT)
        dev.I2C_setClockRate(PORT, 0)                     # 0: 100 kHz
        status = dev.I2C_write(PORT, EEPROM, [0x10] + DATA)  # word address, then the data
        print(f"EEPROM write at 0x10: {hexes(DATA)}, status {status}")
        time.sleep(0.01)                                  # the EEPROM's write cycle (5 ms)
        dev.I2C_write(PORT, EEPROM, [0x10])               # the word address to read from
        print(f"EEPROM read from 0x10: {hexes(dev.I2C_read(PORT, EEPROM, len(DATA)))}")
        dev.I2C_write(PORT, SENSOR, [0])                  # register 0: temperature
        raw = dev.I2C_read(PORT, SENSOR, 2)
        celsius = int.from_bytes(bytes(raw), "big", signed=True) / 256  # 9 bits, 0.5 degree steps
        print(f"sensor temperature register: {hexes(raw)} = {celsius:.1f} degrees C")
        dev.I2C_close(PORT)


if __name__ == "__main__":
    main()

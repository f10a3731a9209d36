"""UART_write: send text through a UART of a Plover.

Opens UART port 1 of a PloverDio at 115200 baud, with mode 0 of the
firmware's numbering for data size, parity and stop bits, and writes a
numbered line a few times, printing each line's bytes in hex and the
device's status.

    python examples/UART/UART_write.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose UART is not
wired to anything.
"""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args) as dev:
        dev.UART_open(PORT)
        dev.UART_setBaudRate(PORT, 115200)
        # data size, parity and stop bits are given as the firmware's mode numbers
        dev.UART_setDataBit(PORT, 0)
        dev.UART_setParity(PORT, 0)
        dev.UART_setNumStopBit(PORT, 0)
        for n in range(_target.loops(args, 5, 2)):
            line = f"hello {n}\r\n"                        # up to 50 bytes a write
            status = dev.UART_write(PORT, line)
            print(f"wrote {len(line)} bytes {hexes(line.encode())}: status {status}")
            time.sleep(0.1 if args.quick else 1.0)
        dev.UART_close(PORT)


if __name__ == "__main__":
    main()

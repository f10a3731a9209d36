"""UART_read: read what a UART of a Plover receives.

Opens UART port 1 of a PloverDio at 115200 baud, sends the command "AT" to
the device on the other end and reads its four-byte answer, waiting up to 2
seconds for it.  Prints the bytes in hex and as text.

    python examples/UART/UART_read.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose UART has a modem
on the line that answers OK.
"""

import concurrent.futures
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1
ANSWER_BYTES = 4


def hexes(data):
    return " ".join(f"{b:02X}" for b in data)


def read_within(dev, read, seconds):
    """Runs a blocking read, which waits until all it asked for has come; if
    that takes longer than `seconds`, closing the device ends the wait."""
    with concurrent.futures.ThreadPoolExecutor(1) as pool:
        pending = pool.submit(read)
        try:
            return pending.result(seconds)
        except concurrent.futures.TimeoutError:
            dev.close()                           # the read ends with DeviceClosedError
            return None


def simulated(sim_dev):
    """The simulated device's side (not used with real hardware)."""
    sim_dev.state_set("uart.peer.1", [[b"AT\r", b"OK\r\n"]])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverDio, args, sim_state=simulated) as dev:
        dev.UART_open(PORT)                               # streams what the port receives
        dev.UART_setBaudRate(PORT, 115200)
        dev.UART_write(PORT, "AT\r")
        answer = read_within(dev, lambda: dev.UART_read(PORT, ANSWER_BYTES), 2.0)
        if answer is None:
            print(f"no answer of {ANSWER_BYTES} bytes within 2 s")
            return
        text = "".join(answer)
        print(f"received {hexes(text.encode())} ({text.strip()!r})")
        dev.UART_close(PORT)


if __name__ == "__main__":
    main()

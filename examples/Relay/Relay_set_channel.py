"""Switch one relay of a KestrelRelay on and off.  The relays hang on output
port 0 (relay n is pin n); the device counts every switching of each relay,
so the counter shows the two switchings.

    python examples/Relay/Relay_set_channel.py
    python examples/Relay/Relay_set_channel.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

RELAY_PORT = 0  # output port 0 drives the relays
RELAY = 2


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() holds the relay on a moment
    with _target.open_device(pyorv.KestrelRelay, args) as dev:
        dev.Relay_open()
        dev.DO_openPins(RELAY_PORT, [RELAY])
        before = dev.Relay_read(RELAY)[0]
        dev.DO_writePins(RELAY_PORT, [RELAY], [1])
        print(f"relay {RELAY} on")
        pause.wait(0.05 if args.quick else 1.0)
        dev.DO_writePins(RELAY_PORT, [RELAY], [0])
        print(f"relay {RELAY} off")
        after = dev.Relay_read(RELAY)[0]
        print(f"relay {RELAY} switching counter: {before} -> {after}")
        dev.Relay_close()


if __name__ == "__main__":
    main()

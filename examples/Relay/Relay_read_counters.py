"""The switching counters of all six relays of a KestrelRelay: how often each
relay has switched over its life (relays wear out by switching).  A few
relays are switched first so that the counters move.

    python examples/Relay/Relay_read_counters.py
    python examples/Relay/Relay_read_counters.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

RELAY_PORT = 0  # output port 0 drives the relays, relay n on pin n


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelRelay, args) as dev:
        dev.Relay_open()
        before = dev.Relay_read()
        dev.DO_openPort(RELAY_PORT)
        dev.DO_writePins(RELAY_PORT, [0, 3], [1, 1])  # relays 0 and 3 on
        dev.DO_togglePins(RELAY_PORT, [0, 5])         # relay 0 off, relay 5 on
        dev.DO_writePort(RELAY_PORT, 0)               # all off
        after = dev.Relay_read()
        print("relay  before  after")
        for n, (b, a) in enumerate(zip(before, after)):
            print(f"{n:5d}  {b:6d}  {a:5d}")
        dev.Relay_close()


if __name__ == "__main__":
    main()

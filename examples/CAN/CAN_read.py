"""CAN_read: receive CAN frames on a PloverCan.

Opens CAN port 1, accepts only identifiers 0x7E8 to 0x7EF (the answers of an
OBD-II engine unit), starts the controller, sends a request on 0x7DF and waits
up to 2 seconds for a frame; prints the frame's identifier and data.

    python examples/CAN/CAN_read.py [--usb SERIAL] [--quick]

Without --usb it runs against the built-in simulator, whose controller is in
loopback mode: the request comes back to it, and only the answer the example
sends itself as 0x7E8 passes the filter.
"""

import asyncio
import concurrent.futures
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
import _target  # noqa: E402  examples/_target.py: the simulator, or --usb/--ip hardware
import pyorv  # noqa: E402

PORT = 1


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
    sim_dev.state_set("can.loopback", True)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverCan, args, sim_state=simulated) as dev:
        dev.CAN_open(PORT)
        dev.CAN_setRXFilterOrMask(PORT, 0, 0x7E8)         # filter 0: the identifier ...
        dev.CAN_setRXFilterOrMask(PORT, 1, 0x7F8)         # ... its mask: the low 3 bits are free
        dev.CAN_setRXFilteringOn(PORT, True)
        asyncio.run(dev.CAN_start_async(PORT))            # the start has no answer to wait for
        dev.CAN_write(PORT, 0x7DF, [0x02, 0x01, 0x0C])    # request: engine speed
        if not args.usb:                                  # the simulated bus: answer it ourselves
            dev.CAN_write(PORT, 0x7E8, [0x04, 0x41, 0x0C, 0x1A, 0xF8])
        frames = read_within(dev, lambda: dev.CAN_read(PORT, 1), 2.0)
        if frames is None:
            print("no frame within 2 s")
            return
        for f in frames:
            print(f"received id 0x{f.id:X} data {hexes(f.data)}")
        dev.CAN_close(PORT)


if __name__ == "__main__":
    main()

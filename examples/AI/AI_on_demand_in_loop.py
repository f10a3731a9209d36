"""On-demand reads of a KestrelAin in a loop, one line per read: the way to
watch slow signals without a stream.

The simulated channel 0 climbs by about 1 V a read (channel 1 falls), so each
line differs from the last:

    python examples/AI/AI_on_demand_in_loop.py
    python examples/AI/AI_on_demand_in_loop.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAin"]["AI"]
COUNTS_PER_VOLT = 3277  # the KestrelAin reads +-10 V in 16 bits


def ramps(sim_dev):
    sim_dev.state_set("ai.wave", [["ramp", 0, COUNTS_PER_VOLT], ["ramp", 0, -COUNTS_PER_VOLT],
                                  ["const", 0.0]])


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() paces the reads
    with _target.open_device(pyorv.KestrelAin, args, sim_state=ramps) as dev:
        dev.AI_open(PORT)
        print("read   channel 0   channel 1   channel 2")
        for n in range(_target.loops(args, 10, 4)):
            v = dev.AI_readOnDemand(PORT)
            print(f"{n:4d}  {v[0]:8.3f} V  {v[1]:8.3f} V  {v[2]:8.3f} V")
            pause.wait(0.02 if args.quick else 0.5)
        dev.AI_close(PORT)


if __name__ == "__main__":
    main()

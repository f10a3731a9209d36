"""A continuous analog stream from a KestrelAin: blocks of samples read as
they arrive, one summary line per block, until the loop ends and the stream
is stopped.

The simulated channel 0 carries a 5 Hz sine of 3 V amplitude:

    python examples/AI/AI_continuous.py
    python examples/AI/AI_continuous.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAin"]["AI"]
RATE = 2000  # samples per second
BLOCK = 400  # samples per read: 0.2 s
CONTINUOUS_MODE = 2


def signals(sim_dev):
    sim_dev.state_set("ai.wave", [["sine", 3.0, 5.0, 0.0], ["const", -1.25]])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelAin, args, sim_state=signals) as dev:
        dev.AI_open(PORT)
        dev.AI_setMode(PORT, CONTINUOUS_MODE)
        dev.AI_setSamplingRate(PORT, RATE)
        dev.AI_start(PORT)
        print("block  samples  ch0 peak-to-peak   ch1 mean")
        for b in range(_target.loops(args, 10, 3)):
            block = dev.AI_readStreaming(PORT, BLOCK, 2.0)
            ch0 = [s[0] for s in block] or [0.0]
            ch1 = [s[1] for s in block] or [0.0]
            print(f"{b:5d}  {len(block):7d}  {max(ch0) - min(ch0):12.3f} V  "
                  f"{sum(ch1) / len(ch1):8.3f} V")
        dev.AI_stop(PORT)
        dev.AI_close(PORT)


if __name__ == "__main__":
    main()

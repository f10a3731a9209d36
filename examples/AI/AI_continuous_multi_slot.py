"""A continuous analog stream from two slots of a Trellis at once: each slot
is a port of its own (numbered from 1), streams on its own, and is read on
its own.

    python examples/AI/AI_continuous_multi_slot.py
    python examples/AI/AI_continuous_multi_slot.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

FIRST_SLOT = pyorv.HANDLE_PROPERTIES["Trellis"]["AI"]
SLOTS = [FIRST_SLOT, FIRST_SLOT + 1]
RATE = 1000
BLOCK = 200
CONTINUOUS_MODE = 2


def signals(sim_dev):
    sim_dev.state_set("ai.wave", [["const", 0.5 * (c + 1)] for c in range(8)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.Trellis, args, sim_state=signals) as dev:
        for slot in SLOTS:
            dev.AI_enableCS(slot, [0])  # the first chip of each slot: 8 channels
            dev.AI_setMode(slot, CONTINUOUS_MODE)
            dev.AI_setSamplingRate(slot, RATE)
            dev.AI_open(slot)
        for slot in SLOTS:
            dev.AI_start(slot)
        print("block  slot  samples  ch0 mean   ch7 mean")
        for b in range(_target.loops(args, 5, 2)):
            for slot in SLOTS:
                block = dev.AI_readStreaming(slot, BLOCK, 2.0)
                n = len(block) or 1
                print(f"{b:5d}  {slot:4d}  {len(block):7d}  {sum(s[0] for s in block) / n:6.3f} V"
                      f"  {sum(s[7] for s in block) / n:6.3f} V")
        for slot in SLOTS:
            dev.AI_stop(slot)
            dev.AI_close(slot)


if __name__ == "__main__":
    main()

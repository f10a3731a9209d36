"""One on-demand read of the eight 24-bit current inputs of a KestrelCin,
in mA.

The simulated inputs carry a 4-20 mA loop's values, 4 mA on channel 0 rising
by 2 mA a channel:

    python examples/AI24Bit/AI_on_demand_once.py
    python examples/AI24Bit/AI_on_demand_once.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelCin"]["AI24Bit"]
FULL_SCALE_MA = 50  # +-50 mA in offset binary: 2**23 counts is 0 mA


def loop_currents(sim_dev):
    sim_dev.state_set("ai24.counts", [round((4 + 2 * c + FULL_SCALE_MA) * 2**23 / FULL_SCALE_MA)
                                      for c in range(8)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelCin, args, sim_state=loop_currents) as dev:
        for channel, ma in enumerate(dev.AI_readOnDemand(PORT)):
            print(f"channel {channel}  {ma:8.3f} mA")


if __name__ == "__main__":
    main()

"""One on-demand read of the eight analog inputs of a KestrelAin, in volts.

The simulated inputs hold steady voltages, 0.25 V on channel 0 rising by
0.5 V a channel:

    python examples/AI/AI_on_demand_once.py
    python examples/AI/AI_on_demand_once.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAin"]["AI"]


def steady_inputs(sim_dev):
    sim_dev.state_set("ai.wave", [["const", 0.25 + 0.5 * c] for c in range(8)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelAin, args, sim_state=steady_inputs) as dev:
        dev.AI_open(PORT)
        values = dev.AI_readOnDemand(PORT)
        dev.AI_close(PORT)
        for channel, volts in enumerate(values):
            print(f"channel {channel}  {volts:8.3f} V")


if __name__ == "__main__":
    main()

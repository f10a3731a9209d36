"""An analog output read back by an analog input on a PloverAio: output
channel 2 is wired to input channel 2 (the simulator wires every output to
the input of the same number).

    python examples/AIO/AIO_one_channel_loopback.py
    python examples/AIO/AIO_one_channel_loopback.py --usb default
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["PloverAio"]["AIO"]
CHANNEL = 2
STEPS = [0.5, 1.25, 2.5, 4.0, 4.75]  # volts, within 0..5 V


def wire(sim_dev):
    sim_dev.state_set("ai.wave", [["ao", c, PORT] for c in range(8)])


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.PloverAio, args, sim_state=wire) as dev:
        dev.AO_open(PORT)
        dev.AI_open(PORT)
        print(f"AO channel {CHANNEL} -> AI channel {CHANNEL}")
        print("   written      read")
        for volts in STEPS[:_target.loops(args, len(STEPS), 3)]:
            dev.AO_writeOneChannel(PORT, CHANNEL, volts)
            read = dev.AI_readOnDemand(PORT)[CHANNEL]
            print(f"  {volts:6.3f} V  {read:6.3f} V")
        dev.AI_close(PORT)
        dev.AO_close(PORT)


if __name__ == "__main__":
    main()

"""Step one analog output of a KestrelAout through a few voltages, reading
back the outputs after each step: the other channels keep their values.

    python examples/AO/AO_write_one_channel.py
    python examples/AO/AO_write_one_channel.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAout"]["AO"]
CHANNEL = 3
STEPS = [1.0, 2.5, -4.0, 0.0]  # volts


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelAout, args) as dev:
        dev.AO_open(PORT)
        for volts in STEPS[:_target.loops(args, len(STEPS), 3)]:
            dev.AO_writeOneChannel(PORT, CHANNEL, volts)
            out = dev.AO_getValues(PORT)
            print(f"channel {CHANNEL} set to {volts:6.3f} V; outputs: "
                  + " ".join(f"{v:6.3f}" for v in out))
        dev.AO_close(PORT)


if __name__ == "__main__":
    main()

"""A fixed number of samples streamed once from a KestrelAin at a set rate
(N-samples mode), then a summary per channel.

The simulated channel 0 carries a 10 Hz sine of 2 V amplitude, channel 1 a
constant 1.5 V:

    python examples/AI/AI_N_samples_once.py
    python examples/AI/AI_N_samples_once.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAin"]["AI"]
RATE = 1000  # samples per second
N_SAMPLES_MODE = 1


def signals(sim_dev):
    sim_dev.state_set("ai.wave", [["sine", 2.0, 10.0, 0.0], ["const", 1.5], ["const", 0.0]])


def main():
    args = _target.parse(__doc__)
    n = _target.loops(args, 2000, 300)
    with _target.open_device(pyorv.KestrelAin, args, sim_state=signals) as dev:
        dev.AI_open(PORT)
        dev.AI_setMode(PORT, N_SAMPLES_MODE)
        dev.AI_setSamplingRate(PORT, RATE)
        dev.AI_setNumSamples(PORT, n)
        dev.AI_start(PORT)
        samples = []
        while len(samples) < n:
            part = dev.AI_readStreaming(PORT, n - len(samples), 2.0)
            if not part:
                break  # nothing for 2 s: the stream ended early
            samples += part
        dev.AI_close(PORT)
    print(f"{len(samples)} samples of {len(samples[0]) if samples else 0} channels at {RATE} Hz")
    for c in range(3):
        col = [s[c] for s in samples]
        print(f"channel {c}  min {min(col):7.3f} V  max {max(col):7.3f} V  "
              f"mean {sum(col) / len(col):7.3f} V")


if __name__ == "__main__":
    main()

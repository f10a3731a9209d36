"""Output and input at once on a PloverAio: the output generates a 5 Hz sine
on channel 0 while the input streams channel 0 back at 1 kHz; the streamed
values trace the sine.

    python examples/AIO/AO_output_while_AI_streaming.py
    python examples/AIO/AO_output_while_AI_streaming.py --usb default
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["PloverAio"]["AIO"]
SINE = 3
CONTINUOUS_MODE, N_SAMPLES_MODE = 2, 1
AI_RATE = 1000
AMPLITUDE, OFFSET, FREQUENCY = 2.0, 2.5, 5  # volts, volts, Hz


def wire(sim_dev):
    sim_dev.state_set("ai.wave", [["ao", 0, PORT]])


def main():
    args = _target.parse(__doc__)
    n = _target.loops(args, 2000, 400)
    with _target.open_device(pyorv.PloverAio, args, sim_state=wire) as dev:
        dev.AO_open(PORT)
        dev.AO_setMode(PORT, CONTINUOUS_MODE)
        dev.AO_setEnableChannels(PORT, [0])
        dev.AO_setForm(PORT, 0, SINE)
        dev.AO_setFormParam(PORT, 0, AMPLITUDE, OFFSET, FREQUENCY)
        dev.AO_openStreaming(PORT)
        dev.AO_startStreaming(PORT)

        dev.AI_enableChannel(PORT, 1)  # one channel per sample
        dev.AI_setSamplingRate(PORT, AI_RATE)
        dev.AI_setMode(PORT, N_SAMPLES_MODE)
        dev.AI_setNumSamples(PORT, n)
        dev.AI_open(PORT)
        dev.AI_start(PORT)
        got = []
        while len(got) < n:
            part = dev.AI_readStreaming(PORT, n - len(got), 3.0)
            if not part:
                break
            got += [s[0] for s in part]
        dev._AO_stopStreaming(PORT)
        dev.AO_closeStreaming(PORT)
        dev.AI_close(PORT)
        dev.AO_close(PORT)
    print(f"streamed {len(got)} samples at {AI_RATE} Hz while the output ran")
    print(f"input min {min(got):.3f} V, max {max(got):.3f} V, mean {sum(got) / len(got):.3f} V "
          f"(output: {OFFSET} V +- {AMPLITUDE} V)")
    # A coarse trace: one mark per 20 ms.
    for v in got[:200:20]:
        print(f"  {v:6.3f} V |" + "#" * round(v * 10))


if __name__ == "__main__":
    main()

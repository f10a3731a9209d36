"""The device's own waveform generator: a KestrelAout outputs a 5 Hz sine on
channel 0 and a 2 Hz square on channel 1, continuously, while the host reads
the outputs now and then; then the output stops.

    python examples/AO/AO_waveform_gen.py
    python examples/AO/AO_waveform_gen.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAout"]["AO"]
RECTANGULAR, SINE = 1, 3  # forms
CONTINUOUS_MODE = 2
RATE = 1000  # output samples per second


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.KestrelAout, args) as dev:
        dev.AO_open(PORT)
        dev.AO_setMode(PORT, CONTINUOUS_MODE)
        dev.AO_setSamplingRate(PORT, RATE)
        dev.AO_setEnableChannels(PORT, [0, 1])
        dev.AO_setForm(PORT, 0, SINE)
        dev.AO_setFormParam(PORT, 0, 2.0, 1.0, 5)  # amplitude 2 V about 1 V, 5 Hz
        dev.AO_setForm(PORT, 1, RECTANGULAR)
        dev.AO_setFormParam(PORT, 1, 3.0, 0.0, 2, duty_cycle=0.5)
        mode, rate = dev.AO_openStreaming(PORT)
        dev.AO_startStreaming(PORT)
        print(f"generating (mode {mode}, {rate:.0f} samples/s), state {dev.AO_getState(PORT)}")
        seen = []
        for _ in range(_target.loops(args, 10, 5)):
            pause.wait(0.037)
            ch0, ch1 = dev.AO_getValues(PORT)[:2]
            seen.append(ch0)
            print(f"  channel 0 {ch0:7.3f} V   channel 1 {ch1:7.3f} V")
        dev._AO_stopStreaming(PORT)
        dev.AO_closeStreaming(PORT)
        inside = all(-1.001 <= v <= 3.001 for v in seen)
        print(f"stopped, state {dev.AO_getState(PORT)}; channel 0 ranged "
              f"{min(seen):.3f} .. {max(seen):.3f} V, within the sine's 1 V +- 2 V: "
              f"{'yes' if inside else 'no'}")
        dev.AO_close(PORT)


if __name__ == "__main__":
    main()

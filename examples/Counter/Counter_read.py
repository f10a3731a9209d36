"""Count pulses with a PloverDio: its PWM output 0 runs at 1 kHz and is wired
to counter 0 (the simulator wires PWM channel n to counter n), which is read
a few times while it counts.

    python examples/Counter/Counter_read.py
    python examples/Counter/Counter_read.py --usb default
"""

import threading
import time

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

CHANNEL = pyorv.HANDLE_PROPERTIES["PloverDio"]["Counter"]
FREQUENCY = 1000  # Hz


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.PloverDio, args) as dev:
        dev.PWM_open(CHANNEL)
        dev.PWM_setFrequency(CHANNEL, FREQUENCY)
        dev.PWM_setDutyCycle(CHANNEL, 50)
        dev.Counter_open(CHANNEL)
        dev.Counter_start(CHANNEL)
        first = dev.Counter_read(CHANNEL)
        dev.PWM_start(CHANNEL)
        start = time.monotonic()
        print("   time    count")
        for _ in range(_target.loops(args, 5, 3)):
            pause.wait(0.1 if args.quick else 1.0)
            count = dev.Counter_read(CHANNEL)
            print(f"{time.monotonic() - start:6.2f} s  {count:7d}")
        dev.PWM_stop(CHANNEL)
        elapsed = time.monotonic() - start
        count = dev.Counter_read(CHANNEL)
        print(f"counted {count - first} pulses of the {FREQUENCY} Hz output in {elapsed:.2f} s "
              f"(about {(count - first) / elapsed:.0f} Hz; the count is 16 bits and wraps)")
        dev.Counter_stop(CHANNEL)
        dev.Counter_close(CHANNEL)
        dev.PWM_close(CHANNEL)


if __name__ == "__main__":
    main()

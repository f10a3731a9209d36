"""A PWM output of a KestrelDio: a 1 kHz square wave at 25 % duty cycle,
then 2 kHz at 75 %, then stopped.

    python examples/PWM/PWM_generate.py
    python examples/PWM/PWM_generate.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

CHANNEL = pyorv.HANDLE_PROPERTIES["KestrelDio"]["PWM"]
SETTINGS = [(1000, 25), (2000, 75)]  # Hz, percent
simulated = []  # the simulated device, when there is one


def keep(sim_dev):
    simulated.append(sim_dev)


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() holds each setting a moment
    with _target.open_device(pyorv.KestrelDio, args, sim_state=keep) as dev:
        dev.PWM_open(CHANNEL)
        for frequency, duty in SETTINGS:
            dev.PWM_setFrequency(CHANNEL, frequency)
            dev.PWM_setDutyCycle(CHANNEL, duty)
            status = dev.PWM_start(CHANNEL)
            print(f"PWM {CHANNEL}: {frequency} Hz, {duty} % (status {status})")
            for sim_dev in simulated:
                f, d = (sim_dev.state_get(f"pwm.{CHANNEL}.{k}") for k in ("frequency", "duty_cycle"))
                print(f"  the simulated output runs at {f:.0f} Hz, {d:.0f} %")
            pause.wait(0.05 if args.quick else 2.0)
        dev.PWM_stop(CHANNEL)
        dev.PWM_close(CHANNEL)
        print(f"PWM {CHANNEL} stopped")


if __name__ == "__main__":
    main()

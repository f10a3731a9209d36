"""The three LEDs of a Heron's board: red, green and blue in turn, then all
off again.

    python examples/System_Wifi/set_LED_status.py                    # a simulated HeronAinImu
    python examples/System_Wifi/set_LED_status.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() is a plain timed pause
    with _target.open_device(pyorv.HeronAinImu, args) as dev:
        leds = [("red", dev.Wifi_setRedLED), ("green", dev.Wifi_setGreenLED),
                ("blue", dev.Wifi_setBlueLED)]
        for name, set_led in leds:
            print(f"{name:<6} LED on   (status {set_led(1)})")
            pause.wait(0.05 if args.quick else 0.5)
            print(f"{name:<6} LED off  (status {set_led(0)})")
        print(f"all LEDs reset (status {dev.Wifi_resetLED()})")


if __name__ == "__main__":
    main()

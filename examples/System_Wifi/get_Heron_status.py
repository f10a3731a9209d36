"""The board status of a Heron: battery, board temperature, acceleration,
power and charging lines, and the Wi-Fi signal.

    python examples/System_Wifi/get_Heron_status.py                    # a simulated HeronAinImu
    python examples/System_Wifi/get_Heron_status.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def signed16(v):
    return v - 0x10000 if v >= 0x8000 else v


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.HeronAinImu, args) as dev:
        accel = [signed16(v) for v in dev.Wifi_readAcceleration()]
        rows = [
            ("battery", f"{dev.Wifi_readBattery()} (raw reading)"),
            ("board temperature", f"{dev.Wifi_readThermo():.2f} degC"),
            ("acceleration x y z", " ".join(f"{a:+d}" for a in accel) + " (raw counts)"),
            ("power good", "yes" if dev.Wifi_getPowerGoodStatus() else "no"),
            ("charging", "yes" if dev.Wifi_getChargeStatus() else "no"),
            ("Wi-Fi signal", f"{dev.Wifi_readRSSI()} dBm"),
        ]
        for name, value in rows:
            print(f"{name:<20}{value}")


if __name__ == "__main__":
    main()

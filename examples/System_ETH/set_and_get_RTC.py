"""Set an Ethernet device's real-time clock to the host's time and read it back.

    python examples/System_ETH/set_and_get_RTC.py             # a simulated KestrelDio
    python examples/System_ETH/set_and_get_RTC.py --ip 192.168.1.110
"""

import datetime

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelDio, args) as dev:
        print(f"device clock before   {dev.Sys_getRTC()}")
        now = datetime.datetime.now().replace(microsecond=0)
        status = dev.Sys_setRTC(now.year, now.month, now.day, now.hour, now.minute, now.second)
        print(f"set to host time      {now:%Y-%m-%d, %H:%M:%S} (status {status})")
        after = dev.Sys_getRTC()
        drift = datetime.datetime.strptime(after, "%Y-%m-%d, %H:%M:%S") - now
        print(f"device clock after    {after} ({drift.total_seconds():.0f} s from the time set)")


if __name__ == "__main__":
    main()

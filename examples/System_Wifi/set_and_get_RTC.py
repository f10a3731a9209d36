"""Set a Heron's real-time clock to the host's time and read it back.

Sys_setRTC writes the year counted from 1900 on every model, while a Heron's
clock counts from 2000 (and Sys_getRTC reads it so): a Heron is given the
year less 100.

    python examples/System_Wifi/set_and_get_RTC.py             # a simulated HeronAinImu
    python examples/System_Wifi/set_and_get_RTC.py --ip 192.168.1.110
"""

import datetime

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.HeronAinImu, args) as dev:
        print(f"device clock before   {dev.Sys_getRTC()}")
        now = datetime.datetime.now().replace(microsecond=0)
        year = now.year - 100  # the Heron counts from 2000, Sys_setRTC from 1900
        status = dev.Sys_setRTC(year, now.month, now.day, now.hour, now.minute, now.second)
        print(f"set to host time      {now:%Y-%m-%d, %H:%M:%S} (status {status})")
        after = dev.Sys_getRTC()
        drift = datetime.datetime.strptime(after, "%Y-%m-%d, %H:%M:%S") - now
        print(f"device clock after    {after} ({drift.total_seconds():.0f} s from the time set)")


if __name__ == "__main__":
    main()

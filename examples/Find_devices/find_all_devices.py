"""Find every ORV device the host can reach: network devices answer a UDP
broadcast, USB devices are listed by the USB layer.

By default a few simulated network devices answer, with the broadcast pointed
at loopback (PYORV_BROADCAST_ADDR), so nothing leaves this machine.  With
--real the broadcast goes where PYORV_BROADCAST_ADDR says, or else to
255.255.255.255: the local network.

    python examples/Find_devices/find_all_devices.py
    python examples/Find_devices/find_all_devices.py --real
"""

import contextlib
import os

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

SIMULATED = [("KestrelAin", "192.168.1.110"), ("KestrelDio", "192.168.1.111"),
             ("HeronAinImu", "192.168.1.112")]


@contextlib.contextmanager
def simulated_network():
    """Simulated devices that answer discovery on loopback, and the broadcast
    pointed at them for as long as they run."""
    with pyorv.sim.Simulator() as sim:
        for i, (model, ip) in enumerate(SIMULATED, start=1):
            sim.add_device(pyorv.sim.DeviceConfig(model=model, serial=f"SIMF{i:04d}", ip_addr=ip,
                                                  mac=f"02:4F:52:56:00:{i:02X}"))
        port = sim.start_discovery("127.0.0.1", 0)
        before = os.environ.get("PYORV_BROADCAST_ADDR")
        os.environ["PYORV_BROADCAST_ADDR"] = f"127.0.0.1:{port}"
        try:
            yield
        finally:
            if before is None:
                del os.environ["PYORV_BROADCAST_ADDR"]
            else:
                os.environ["PYORV_BROADCAST_ADDR"] = before


def find(real):
    finder = pyorv.DeviceFinder()
    try:
        finder.connect()
        where = finder.client_udp.broadcast_target
        print(f"broadcasting to {where[0]}:{where[1]} ...")
        found = sorted(finder.Bcst_enumerateNetworkDevices())
        finder.disconnect()
        usb = finder.Bcst_enumerateUSBDevices() if real else []
    finally:
        finder.close()
    print(f"{len(found)} network device(s)")
    print(f"  {'model':<14}{'IP address':<16}{'mask':<16}MAC")
    for ip, mask, mac, model in found:
        print(f"  {model:<14}{ip:<16}{mask:<16}{mac}")
    if real:
        print(f"{len(usb)} USB device(s)")
        for serial, product in usb:
            print(f"  {product:<14}{serial}")


def main():
    args = _target.parse(__doc__, extra=lambda p: p.add_argument(
        "--real", action="store_true", help="search the real network and USB bus"))
    if args.real:
        find(real=True)
    else:
        with simulated_network():
            find(real=False)


if __name__ == "__main__":
    main()

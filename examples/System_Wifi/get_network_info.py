"""The network settings of a Wi-Fi device: address, mask, gateway, MAC.

    python examples/System_Wifi/get_network_info.py                    # a simulated HeronAinImu
    python examples/System_Wifi/get_network_info.py --ip 192.168.1.110
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.HeronAinImu, args) as dev:
        ip, mask = dev.Net_getIPAddrAndSubmask()
        print(f"{'IP address':<14}{ip}")
        print(f"{'subnet mask':<14}{mask}")
        print(f"{'gateway':<14}{dev.Net_getGateway()}")
        mac = ":".join(f"{int(b, 16):02X}" for b in dev.Net_getMACAddr().split(":"))
        print(f"{'MAC address':<14}{mac}")


if __name__ == "__main__":
    main()

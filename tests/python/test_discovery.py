"""DeviceFinder: discovery, reboot and address change by MAC over UDP, and the
USB listing, against the simulator's discovery responder on loopback.

Every broadcast here goes to the simulator at 127.0.0.1.  Each network
operation collects answers for a window: PACKET_TIMEOUT (5 s) by default,
shortened for the suite through PYORV_BROADCAST_WINDOW (conftest); one test
keeps the default.
"""

import asyncio
import os
import time

import pytest

import pyorv
import pyorv.sim as sim

# Three network devices of different models, links, serials and addresses.
TRIO = [
    dict(model="Trellis", link=sim.Link.Ethernet, serial="SIMD0001",
         mac="02:4F:52:56:00:0A", ip_addr="192.168.1.110", subnet_mask="255.255.255.0"),
    dict(model="HeronAin", link=sim.Link.Wifi, serial="SIMD0002",
         mac="02:4F:52:56:00:0B", ip_addr="192.168.5.79", subnet_mask="255.255.0.0"),
    dict(model="KestrelAin", link=sim.Link.Ethernet, serial="SIMD0003",
         mac="0A:1B:2C:3D:4E:5F", ip_addr="10.20.30.40", subnet_mask="255.0.0.0"),
]


def expected(cfg):
    """The entry a device with this configuration gets in a discovery."""
    return [cfg["ip_addr"], cfg["subnet_mask"], cfg["mac"].lower(), cfg["model"]]


def add(simulator, cfg):
    return simulator.add_device(sim.DeviceConfig(**cfg))


WINDOW = float(os.environ["PYORV_BROADCAST_WINDOW"])


def udp_packets(sim_dev, cmd):
    return [p for p in sim_dev.packets() if p.cmd == cmd and p.link == "udp"]


def timed(fn, *args):
    start = time.monotonic()
    result = fn(*args)
    return result, time.monotonic() - start


@pytest.fixture
def discovery_port(simulator):
    return simulator.start_discovery("127.0.0.1", 0)


@pytest.fixture
def finder(discovery_port):
    f = pyorv.DeviceFinder(verbose=False, broadcast_addr=f"127.0.0.1:{discovery_port}")
    f.connect(verbose=False)
    yield f
    f.disconnect(verbose=False)
    f.close(verbose=False)
    assert f._aliveThreads() == []


# ---- the class ---------------------------------------------------------------------

def test_finder_is_a_broadcast_device_with_its_label(capsys, discovery_port):
    f = pyorv.DeviceFinder(broadcast_addr=f"127.0.0.1:{discovery_port}")
    assert isinstance(f, pyorv.BroadcastDevice) and isinstance(f, pyorv.BroadcastModule)
    assert f.client_udp.broadcast_target == ("127.0.0.1", discovery_port)
    f.connect()
    assert f.connect_status_udp and f._aliveThreads() == ["recv_udp_thread"]
    f.disconnect()
    f.close()
    assert capsys.readouterr().out.splitlines() == [
        "Opened handle (Device finder)",
        "Binded Device finder",
        "Disconnected Device finder",
        "Closed handle (Device finder)",
    ]
    # The USB listing is blocking in both worlds: there is no awaitable name.
    assert not hasattr(f, "Bcst_enumerateUSBDevices_async")


# ---- discovery ---------------------------------------------------------------------

def test_three_devices_listed_once_then_a_fresh_discovery(simulator, finder):
    devs = [add(simulator, cfg) for cfg in TRIO]

    found, took = timed(finder.Bcst_enumerateNetworkDevices)
    assert sorted(found) == sorted(expected(cfg) for cfg in TRIO)
    assert took >= WINDOW  # the whole window, although answers came at once
    # Each device heard the request three times: 0x02 0x00 0x02 0xFC 0x00 0x0D 0x0A.
    for d in devs:
        got = udp_packets(d, pyorv.GET_DEVICE_INFO)
        assert len(got) == pyorv.NUM_BCST_RETRIES
        assert all(p.data == bytes([0]) for p in got)

    # Change the simulated set: the next discovery, through the awaitable twin,
    # lists the present devices only.
    simulator.remove_device(devs[0])
    newcomer = dict(model="Osprey", link=sim.Link.Wifi, serial="SIMD0004",
                    mac="02:4F:52:56:00:FF", ip_addr="172.16.0.9", subnet_mask="255.255.240.0")
    add(simulator, newcomer)
    found = asyncio.run(finder.Bcst_enumerateNetworkDevices_async())
    assert sorted(found) == sorted(expected(cfg) for cfg in (TRIO[1], TRIO[2], newcomer))


# Each listing looks for the USB library afresh and warns when it is not beside the module.
@pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")
def test_no_network_device_gives_an_empty_list_and_usb_listing(simulator, discovery_port,
                                                              monkeypatch):
    usb = simulator.add_device(sim.DeviceConfig(model="KestrelAin", link=sim.Link.Usb,
                                                serial="SIMUSB42"))
    # The USB listing needs no connect and sends nothing over UDP.
    idle = pyorv.DeviceFinder(verbose=False, broadcast_addr="127.0.0.1:9")
    try:
        listed = idle.Bcst_enumerateUSBDevices()
    finally:
        idle.close(verbose=False)
    assert ["SIMUSB42", "KestrelAin"] in listed
    assert sum(1 for s, _ in listed if s == "SIMUSB42") == 1

    # A USB device does not answer a broadcast: nobody does.  Without the
    # override the window is PACKET_TIMEOUT.
    monkeypatch.delenv("PYORV_BROADCAST_WINDOW")
    finder = pyorv.DeviceFinder(verbose=False, broadcast_addr=f"127.0.0.1:{discovery_port}")
    finder.connect(verbose=False)
    try:
        found, took = timed(finder.Bcst_enumerateNetworkDevices)
        assert found == []
        assert pyorv.PACKET_TIMEOUT <= took < 60  # the whole window, and no hang
        assert usb.packets() == []
        simulator.remove_device(usb)
        assert ["SIMUSB42", "KestrelAin"] not in finder.Bcst_enumerateUSBDevices()
    finally:
        finder.close(verbose=False)


# ---- acting by MAC -----------------------------------------------------------------

def test_reboot_by_mac_reboots_only_that_device(simulator, finder):
    devs = [add(simulator, cfg) for cfg in TRIO]
    target = devs[1]

    # The MAC text is matched by value: case does not matter.
    assert finder.Bcst_checkMACAndReboot("02:4f:52:56:00:0b") == [0]  # three answers, one entry
    assert target.reboot_count == pyorv.NUM_BCST_RETRIES  # the simulator acts on every datagram
    assert [d.reboot_count for d in devs if d is not target] == [0, 0]
    # Every device heard [0, MAC] three times.
    for d in devs:
        got = udp_packets(d, pyorv.CHECK_MAC_AND_REBOOT)
        assert [p.data for p in got] == [bytes([0, 0x02, 0x4F, 0x52, 0x56, 0x00, 0x0B])] * 3


def test_set_ip_by_mac_is_reported_by_the_next_discovery(simulator, finder):
    devs = [add(simulator, cfg) for cfg in TRIO]
    target = devs[2]

    async def both():
        # Two commands at once on one finder keep their answers apart; a MAC
        # nobody has gets no answer and changes nothing.
        return await asyncio.gather(
            finder.Bcst_checkMACAndSetIP_async("10.20.30.99", "0a:1b:2c:3d:4e:5f",
                                               "255.255.255.128"),
            finder.Bcst_checkMACAndReboot_async("02:00:00:00:00:01"))

    set_ip, reboot = asyncio.run(both())
    assert set_ip == [0] and reboot == []
    assert (target.ip_addr, target.subnet_mask) == ("10.20.30.99", "255.255.255.128")
    assert [(d.ip_addr, d.subnet_mask) for d in devs[:2]] == [
        (cfg["ip_addr"], cfg["subnet_mask"]) for cfg in TRIO[:2]]
    assert [d.reboot_count for d in devs] == [0, 0, 0]
    got = udp_packets(devs[0], pyorv.CHECK_MAC_AND_SET_IP)
    assert [p.data for p in got] == [bytes([0, 10, 20, 30, 99, 255, 255, 255, 128,
                                            0x0A, 0x1B, 0x2C, 0x3D, 0x4E, 0x5F])] * 3

    moved = dict(TRIO[2], ip_addr="10.20.30.99", subnet_mask="255.255.255.128")
    assert sorted(finder.Bcst_enumerateNetworkDevices()) == sorted(
        expected(cfg) for cfg in (TRIO[0], TRIO[1], moved))


# ---- argument errors: raised before anything is sent --------------------------------

MAC, IP, MASK = "02:4F:52:56:00:0A", "10.0.0.1", "255.0.0.0"
TYPE = pyorv.InputTypeNotCorrectError
BAD_CALLS = [  # (name, args, error)
    ("Bcst_checkMACAndReboot", (0x024F5256000A,), TYPE),
    ("Bcst_checkMACAndReboot", ("02:4F:52:56:00:ZZ",), ValueError),
    ("Bcst_checkMACAndSetIP", (0x0A000001, MAC, MASK), TYPE),
    ("Bcst_checkMACAndSetIP", (IP, MAC, None), TYPE),
    ("Bcst_checkMACAndSetIP", (IP, [2, 79, 82, 86, 0, 10], MASK), TYPE),
    ("Bcst_checkMACAndSetIP", ("10.0.0.256", MAC, MASK), OSError),
    ("Bcst_checkMACAndSetIP", (IP, MAC, "255.0.0.x"), OSError),
    ("Bcst_checkMACAndSetIP", (IP, "02-4F-52-56-00-0A", MASK), ValueError),
]


@pytest.mark.parametrize("awaitable", [False, True], ids=["blocking", "awaitable"])
@pytest.mark.parametrize("name, args, error", BAD_CALLS)
def test_argument_errors_send_nothing(simulator, finder, awaitable, name, args, error):
    dev = add(simulator, TRIO[0])
    with pytest.raises(error):
        if awaitable:
            asyncio.run(getattr(finder, name + "_async")(*args))
        else:
            getattr(finder, name)(*args)
    assert not dev.wait_for_packets(1, timeout=0.2)
    assert dev.packets() == []

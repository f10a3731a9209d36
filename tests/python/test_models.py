"""The model classes and the catalogue against one golden table (models.json,
one row per model in family order): label, device class, modules in order,
analog parameters and port maps.  Every product connects over its own link to
a simulated device of its kind."""

import asyncio
import json
from pathlib import Path

import pytest

import pyorv
import pyorv.sim as sim
from conftest import connect

GOLDEN = json.loads(Path(__file__).with_name("models.json").read_text())
PRODUCTS = [name for name, row in GOLDEN.items() if row["device_class"]]
LINK = {"USBDevice": sim.Link.Usb, "ETHDevice": sim.Link.Ethernet, "WifiDevice": sim.Link.Wifi}
MAP_NAMES = ["ai_dict", "ao_dict", "thermal_dict", "ahrs_dict", "uart_dict", "I2C_dict",
             "SPI_dict", "can_dict", "motion_dict", "mrdr_dict", "di_dict", "do_dict"]


def as_json(value):
    """Int keys become texts and tuples lists, as in the golden file."""
    return json.loads(json.dumps(value))


@pytest.fixture(scope="module")
def farm():
    """One simulated device per product, each on its model's own link."""
    s = sim.Simulator()
    devices = {}
    for i, name in enumerate(PRODUCTS):
        devices[name] = s.add_device(sim.DeviceConfig(
            model=name, serial=f"SIMM{i:04d}", mac=f"02:4F:52:56:01:{i:02X}"))
    yield devices
    s.stop()


@pytest.mark.parametrize("name", PRODUCTS)
@pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")
def test_model_connects_over_its_link_and_answers_driver_info(name, farm, capsys):
    sim_dev = farm[name]
    assert sim_dev.link == LINK[GOLDEN[name]["device_class"]]  # its model's link, unasked
    sim_dev.clear_packets()
    dev = getattr(pyorv, name)()
    target = connect(dev, sim_dev, verbose=True)
    expected = sim_dev.config.driver_info.split("_")
    assert expected[0] == name  # the firmware's text names its model first

    assert dev.Sys_getDriverInfo() == expected
    assert dev.driver_info == expected
    assert asyncio.run(dev.Sys_getDriverInfo_async()) == expected
    assert [(p.cmd, p.data) for p in sim_dev.packets()] == [(pyorv.GET_DRIVER_INFO, b"\x00")] * 2

    dev.close()
    assert dev.killed and dev._aliveThreads() == []
    label = GOLDEN[name]["label"]
    # (A USB connect also prints the stack of the warning about the USB library.)
    messages = [ln for ln in capsys.readouterr().out.splitlines() if ln.endswith(f"({label})")]
    assert messages == [
        f"Opened handle ({label})",
        f"Connected to {target} ({label})",
        f"Disconnected from {target} ({label})",
        f"Closed handle ({label})",
    ]
    assert dev._getDeviceName() == label


@pytest.mark.parametrize("name", list(GOLDEN))
def test_model_matches_its_golden_row(name):
    golden = GOLDEN[name]
    row = pyorv._pyorv._modelTable()[name]
    assert {k: row[k] or None for k in ("label", "device_class")} == {
        k: golden[k] for k in ("label", "device_class")}
    assert (row["modules"], row["data_logger"]) == (golden["modules"], golden["data_logger"])
    analog = {k: v for k, v in row.items() if k[:3] in ("ai_", "ao_") and k[-5:] != "_dict"}
    assert analog == golden.get("analog", {})
    cls = getattr(pyorv, name)
    if not golden["device_class"]:
        assert cls.__bases__ == (object,)
        assert not hasattr(cls(), "connect")
        return
    # The device class and DataLogger (the logger first on Trellis), then every
    # module class the extension has, in order.
    head = [golden["device_class"]]
    if golden["data_logger"]:
        head = ["DataLogger"] + head if name == "Trellis" else head + ["DataLogger"]
    bases = [b.__name__ for b in cls.__bases__]
    assert bases == head + [
        m + "Module" for m in golden["modules"] if hasattr(pyorv, m + "Module")]
    dev = cls(verbose=False)
    try:
        assert {a: as_json(getattr(dev, a)) for a in MAP_NAMES} == {
            a: golden["maps"].get(a, {}) for a in MAP_NAMES}
        assert dev.dio_num_pins_per_port == golden["dio_pins"]
    finally:
        dev.close(verbose=False)
    assert dev._aliveThreads() == []


def test_model_table_label_dict_and_handle_groups():
    assert list(pyorv._pyorv._modelTable()) == list(GOLDEN)  # the family in order
    assert pyorv.LABEL_DICT == {
        "utilities": "Utilities", "wireless": "Wifi devices", "ethernet": "Ethernet devices",
        "USB": "USB devices", "product_list": "Products Usage", "DeviceFinder": "Device finder",
        "DataLogger": "Data logger", **{n: row["label"] for n, row in GOLDEN.items()}}
    by_device = lambda d: [n for n in GOLDEN if GOLDEN[n]["device_class"] == d]  # noqa: E731
    assert list(pyorv.HANDLE_DICT.items()) == [
        ("utilities", ["DeviceFinder", "DataLogger"]),
        ("wireless", by_device("WifiDevice")),
        ("ethernet", by_device("ETHDevice")),
        ("USB", by_device("USBDevice")),
    ]
    assert pyorv.PRODUCT_LIST == PRODUCTS
    assert pyorv.HANDLE_LIST == ["DeviceFinder", "DataLogger"] + PRODUCTS


# (Each product's own link: the connect test above.)
def test_simulated_device_takes_the_link_it_is_told():
    assert sim.DeviceConfig(model="NoSuchModel").link == sim.Link.Ethernet
    assert sim.DeviceConfig(model="Trellis", link="usb").link == sim.Link.Usb
    assert sim.DeviceConfig(model="KestrelAin", link=sim.Link.Wifi).link == sim.Link.Wifi

"""The model classes and the catalogue: every product connects over its own
link to a simulated device of its kind, and carries its label, bases and
port maps."""

import asyncio

import pytest

import pyorv
import pyorv.sim as sim

# The family: class name, label, device class.
MODELS = [
    ("HeronAinImu", "Heron-Ain-Imu", "WifiDevice"),
    ("HeronAin", "Heron-Ain", "WifiDevice"),
    ("HeronAinPlus", "Heron-Ain-Plus", "WifiDevice"),
    ("Trellis", "Trellis", "ETHDevice"),
    ("TrellisLite", "Trellis-Lite", None),
    ("MerlinDrive", "Merlin-Drive", "ETHDevice"),
    ("MerlinAxis", "Merlin-Axis", "ETHDevice"),
    ("KestrelAin", "Kestrel-Ain", "ETHDevice"),
    ("KestrelDio", "Kestrel-Dio", "ETHDevice"),
    ("KestrelDioX", "Kestrel-Dio_X", "ETHDevice"),
    ("KestrelCin", "Kestrel-Cin", "ETHDevice"),
    ("KestrelCvin", "Kestrel-Cvin", "ETHDevice"),
    ("KestrelRelay", "Kestrel-Relay", "ETHDevice"),
    ("KestrelAout", "Kestrel-Aout", "ETHDevice"),
    ("KestrelRes", "Kestrel-Res", "ETHDevice"),
    ("KestrelTherm", "Kestrel-Therm", "ETHDevice"),
    ("PloverDio", "Plover-Dio", "USBDevice"),
    ("PloverAin", "Plover-Ain", "USBDevice"),
    ("PloverTc", "Plover-Tc", "USBDevice"),
    ("PloverCan", "Plover-Can", "USBDevice"),
    ("PloverSink", "Plover-Sink", "USBDevice"),
    ("PloverAio", "Plover-Aio", "USBDevice"),
    ("PloverRtd", "Plover-Rtd", "USBDevice"),
]
LABEL = {name: label for name, label, _ in MODELS}
DEVICE = {name: device for name, _, device in MODELS}
PRODUCTS = [name for name, _, device in MODELS if device]
LINK = {"USBDevice": sim.Link.Usb, "ETHDevice": sim.Link.Ethernet, "WifiDevice": sim.Link.Wifi}

PLOVER_STD = ["System", "UART", "I2C", "SPI"]
MODULES = {
    "HeronAinImu": ["System", "SystemAnalog", "Network", "Wifi", "AI", "AHRS"],
    "HeronAin": ["System", "SystemAnalog", "Network", "Wifi", "AI"],
    "HeronAinPlus": ["System", "SystemAnalog", "Network", "Wifi", "AI"],
    "Trellis": ["System", "Network", "AI", "AO", "DIO", "MCX514"],
    "TrellisLite": [],
    "MerlinDrive": ["System", "Network", "TMC5240"],
    "MerlinAxis": ["MCX514", "System", "Network"],
    "KestrelAin": ["System", "Network", "AI"],
    "KestrelDio": ["System", "Network", "DIO", "PWM"],
    "KestrelDioX": ["System", "Network", "DIO"],
    "KestrelCin": ["System", "Network", "AI24Bit"],
    "KestrelCvin": ["System", "Network", "AI24Bit"],
    "KestrelRelay": ["System", "Network", "DIO", "Relay"],
    "KestrelAout": ["System", "Network", "AO"],
    "KestrelRes": ["System", "Network", "DPOT"],
    "KestrelTherm": ["System", "Network", "Thermocouple"],
    "PloverDio": PLOVER_STD + ["DIO", "Counter", "PWM"],
    "PloverAin": PLOVER_STD + ["AI", "DIO", "Counter", "PWM"],
    "PloverTc": PLOVER_STD + ["Thermocouple", "DIO", "Counter", "PWM"],
    "PloverCan": PLOVER_STD + ["CAN", "DIO", "Counter", "PWM"],
    "PloverSink": ["System", "DIO", "Counter", "PWM"],
    "PloverAio": ["System", "UART", "I2C", "AI", "AO", "DIO", "Counter", "PWM"],
    "PloverRtd": PLOVER_STD + ["ThermalResistance", "DIO", "Counter", "PWM"],
}

# Port maps of the products; a map not listed is empty.
SLOTS = {0: [(1, 5)], 1: [(1, 5)], 3: [(1, 5)]}
UART = {1: [(2, 6), (2, 7)], 2: [(3, 0), (3, 1)]}
I2C = {1: [(0, 3), (0, 4)], 2: [(1, 2), (1, 3)]}
SPI2 = {2: [(3, 3), (3, 4), (3, 5)]}
THERMAL = {1: [(1, 5), (2, 0), (2, 1), (2, 2), (2, 3)], 2: [(1, 5), (2, 0), (3, 3), (3, 4), (3, 5)]}
R = lambda a, b: list(range(a, b + 1))  # noqa: E731
AIN_CAN = {0: R(0, 7), 1: R(0, 3), 2: [6, 7], 3: R(0, 5)}
TC_RTD = {0: R(0, 7), 1: R(0, 4), 2: [6, 7], 3: R(0, 5)}
MAPS = {
    "HeronAinImu": dict(ai_dict={0: [(1, 5)]}, ahrs_dict={0: [(1, 5)]}),
    "HeronAin": dict(ai_dict={0: [(1, 5)]}),
    "HeronAinPlus": dict(ai_dict={0: [(1, 5)]}),
    "Trellis": dict(ai_dict=SLOTS, ao_dict=SLOTS, motion_dict=SLOTS,
                    di_dict={p: R(0, 11) for p in range(8)},
                    do_dict={p: R(0, 11) for p in range(8)}),
    "MerlinDrive": dict(mrdr_dict={0: [(1, 5)]}),
    "MerlinAxis": dict(motion_dict={0: [(1, 5)]}),
    "KestrelAin": dict(ai_dict={0: [(1, 11)]}),
    "KestrelDio": dict(di_dict={1: R(0, 7)}, do_dict={0: R(0, 5)}),
    "KestrelDioX": dict(di_dict={2: R(0, 7), 3: R(0, 7)}, do_dict={0: R(0, 7), 1: R(0, 7)}),
    "KestrelCin": {},
    "KestrelCvin": {},
    "KestrelRelay": dict(di_dict={1: R(0, 5)}, do_dict={0: R(0, 5)}),
    "KestrelAout": dict(ao_dict={0: [(3, 11)]}),
    "KestrelRes": {},
    "KestrelTherm": dict(thermal_dict={1: [(3, 11)]}),
    "PloverDio": dict(uart_dict=UART, I2C_dict=I2C,
                      SPI_dict={1: [(2, 1), (2, 2), (2, 3)], 2: [(3, 3), (3, 4), (3, 5)]},
                      di_dict={0: R(0, 7), 1: R(0, 5), 2: [0, 1, 2, 3, 6, 7], 3: R(0, 5)},
                      do_dict={0: R(0, 7), 1: R(0, 5), 2: [0, 1, 2, 3, 6, 7], 3: R(0, 5)}),
    "PloverAin": dict(ai_dict={0: [(1, 5)]}, uart_dict=UART, I2C_dict=I2C, SPI_dict=SPI2,
                      di_dict=AIN_CAN, do_dict=AIN_CAN),
    "PloverTc": dict(thermal_dict=THERMAL, uart_dict=UART, I2C_dict=I2C, SPI_dict=SPI2,
                     di_dict=TC_RTD, do_dict=TC_RTD),
    "PloverCan": dict(can_dict={1: [(1, 4), (1, 5), (2, 0), (2, 1), (2, 2), (2, 3)]},
                      uart_dict=UART, I2C_dict=I2C, SPI_dict=SPI2, di_dict=AIN_CAN,
                      do_dict=AIN_CAN),
    "PloverSink": dict(di_dict={0: R(0, 7), 1: R(0, 5)}, do_dict={2: R(0, 7), 3: R(0, 3)}),
    "PloverAio": dict(ai_dict={0: [(1, 5)]}, ao_dict={0: [(1, 4)]}, uart_dict=UART,
                      I2C_dict=I2C, di_dict={0: R(0, 7), 1: R(0, 3), 2: [6, 7], 3: [0, 1]},
                      do_dict={0: R(0, 7), 1: R(0, 3), 2: [6, 7], 3: [0, 1]}),
    "PloverRtd": dict(thermal_dict=THERMAL, uart_dict=UART, I2C_dict=I2C, SPI_dict=SPI2,
                      di_dict=TC_RTD, do_dict=TC_RTD),
}
MAP_NAMES = ["ai_dict", "ao_dict", "thermal_dict", "ahrs_dict", "uart_dict", "I2C_dict",
             "SPI_dict", "can_dict", "motion_dict", "mrdr_dict", "di_dict", "do_dict"]


def model_class(name):
    return getattr(pyorv, name)


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


def connect(dev, sim_dev, verbose=True):
    """Connects over the device's link; the text the connect message names."""
    if sim_dev.link == sim.Link.Usb:
        dev.connect(sim_dev.serial, verbose=verbose)
        return sim_dev.serial
    if sim_dev.link == sim.Link.Wifi:
        assert dev.connect(sim_dev.host, port1=sim_dev.data_port, port2=sim_dev.cmd_port,
                           verbose=verbose) is True
    else:
        dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=verbose)
    return sim_dev.host


# ---- every product over its own link ----------------------------------------------

@pytest.mark.parametrize("name", PRODUCTS)
@pytest.mark.filterwarnings("ignore::pyorv.ExtLibNotFoundWarning")
def test_model_connects_over_its_link_and_answers_driver_info(name, farm, capsys):
    sim_dev = farm[name]
    assert sim_dev.link == LINK[DEVICE[name]]  # the device took its model's link unasked
    sim_dev.clear_packets()
    dev = model_class(name)()
    target = connect(dev, sim_dev)
    expected = sim_dev.config.driver_info.split("_")
    assert expected[0] == name  # the firmware's text names its model first

    assert dev.Sys_getDriverInfo() == expected
    assert dev.driver_info == expected
    assert asyncio.run(dev.Sys_getDriverInfo_async()) == expected
    assert [(p.cmd, p.data) for p in sim_dev.packets()] == [(pyorv.GET_DRIVER_INFO, b"\x00")] * 2

    dev.close()
    assert dev.killed and dev._aliveThreads() == []
    label = LABEL[name]
    # (A USB connect also prints the stack of the warning about the USB library.)
    messages = [ln for ln in capsys.readouterr().out.splitlines() if ln.endswith(f"({label})")]
    assert messages == [
        f"Opened handle ({label})",
        f"Connected to {target} ({label})",
        f"Disconnected from {target} ({label})",
        f"Closed handle ({label})",
    ]
    assert dev._getDeviceName() == label


def test_wifi_model_uses_both_links(farm):
    sim_dev = farm["HeronAinPlus"]
    dev = pyorv.HeronAinPlus(verbose=False)
    connect(dev, sim_dev, verbose=False)
    assert dev.connect_status_cmd and dev.connect_status_data
    assert sim_dev.wait_for_host(sim.Channel.Data, 5.0)
    assert dev._aliveThreads() == ["recv_cmd_thread", "recv_data_thread"]
    dev.close(verbose=False)
    assert dev._aliveThreads() == []


# ---- classes -------------------------------------------------------------------------

@pytest.mark.parametrize("name", PRODUCTS)
def test_bases_are_the_device_class_then_the_modules_in_order(name):
    cls = model_class(name)
    bases = [b.__name__ for b in cls.__bases__]
    assert bases[0] == DEVICE[name]
    assert all(b.endswith("Module") for b in bases[1:])
    modules = [b[: -len("Module")] for b in bases[1:]]
    # Every module class the extension has and the product lists is a base, in
    # the product's order.
    expected = [m for m in MODULES[name] if hasattr(pyorv, m + "Module")]
    assert modules == expected
    assert "System" in modules
    assert cls.__mro__.index(getattr(pyorv, DEVICE[name])) < cls.__mro__.index(
        pyorv.SystemModule)


def test_trellis_lite_is_an_empty_class():
    assert pyorv.TrellisLite.__bases__ == (object,)
    obj = pyorv.TrellisLite()
    assert not hasattr(obj, "connect") and not hasattr(obj, "close")
    assert pyorv.LABEL_DICT["TrellisLite"] == "Trellis-Lite"


def test_model_table_lists_the_family_in_order():
    table = pyorv._pyorv._modelTable()
    assert list(table) == [name for name, _, _ in MODELS]
    for name, label, device in MODELS:
        row = table[name]
        assert (row["label"], row["device_class"] or None) == (label, device)
        assert row["modules"] == MODULES[name]
        assert row["data_logger"] is (name not in ("MerlinDrive", "TrellisLite"))


@pytest.mark.parametrize("name", PRODUCTS)
def test_port_maps(name):
    dev = model_class(name)(verbose=False)
    try:
        for attr in MAP_NAMES:
            assert getattr(dev, attr) == MAPS[name].get(attr, {}), attr
        assert dev.dio_num_pins_per_port == (12 if name == "Trellis" else 8)
    finally:
        dev.close(verbose=False)
    assert dev._aliveThreads() == []


def test_analog_parameters():
    table = pyorv._pyorv._modelTable()
    ai = {name: tuple(table[name][k] for k in ("ai_max_rate", "ai_ratio", "ai_num_channels",
                                              "ai_variable"))
          for name in table if "ai_max_rate" in table[name]}
    assert ai == {
        "HeronAinImu": (10000, 0.000152587890625, 8, True),
        "HeronAin": (10000, 0.000152587890625, 8, True),
        "HeronAinPlus": (20000, 0.000152587890625, 8, True),
        "KestrelAin": (20000, 0.00030517578125, 8, False),
        "PloverAin": (16000, 0.00030517578125, 8, True),
        "PloverAio": (16000, 0.00030517578125, 8, True),
        "Trellis": (12000, 0.00030517578125, 8, False),
    }
    ao = {name: tuple(table[name][k] for k in ("ao_volt_min", "ao_volt_max", "ao_channel",
                                              "ao_rate"))
          for name in table if "ao_volt_min" in table[name]}
    assert ao == {
        "Trellis": (-10, 10, 8, 15000),
        "KestrelAout": (-10, 10, 8, 15000),
        "PloverAio": (0, 5, 8, 16000),
    }


# ---- the catalogue -----------------------------------------------------------------

def test_label_dict():
    assert pyorv.LABEL_DICT == {
        "utilities": "Utilities", "wireless": "Wifi devices", "ethernet": "Ethernet devices",
        "USB": "USB devices", "product_list": "Products Usage", "DeviceFinder": "Device finder",
        "DataLogger": "Data logger", **LABEL,
    }


def test_handle_groups():
    by_device = lambda d: [n for n, _, dev in MODELS if dev == d]  # noqa: E731
    assert list(pyorv.HANDLE_DICT.items()) == [
        ("utilities", ["DeviceFinder", "DataLogger"]),
        ("wireless", by_device("WifiDevice")),
        ("ethernet", by_device("ETHDevice")),
        ("USB", by_device("USBDevice")),
    ]
    assert pyorv.PRODUCT_LIST == PRODUCTS
    assert pyorv.HANDLE_LIST == ["DeviceFinder", "DataLogger"] + PRODUCTS


# ---- simulated devices of a model ------------------------------------------------

@pytest.mark.parametrize("name", [n for n, _, _ in MODELS] + ["NoSuchModel"])
def test_simulated_device_takes_its_models_link_unless_told(name):
    assert sim.DeviceConfig(model=name).link == LINK.get(DEVICE.get(name), sim.Link.Ethernet)
    assert sim.DeviceConfig(model=name, link="usb").link == sim.Link.Usb
    assert sim.DeviceConfig(model=name, link=sim.Link.Wifi).link == sim.Link.Wifi


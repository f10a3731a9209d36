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


# The example catalogue as documented, written out by hand.
CONSOLE = {
    "System_USB": ["get_pin_mode", "get_USB_info", "hello_world", "set_and_get_RTC"],
    "System_ETH": ["get_network_info", "hello_world", "set_and_get_RTC"],
    "System_Wifi": ["get_network_info", "get_Heron_status", "hello_world", "set_and_get_RTC",
                    "set_LED_status"],
    "Find_devices": ["find_all_devices"],
    "Drive": ["Drive_find_home", "Drive_find_limit", "Drive_position_blending",
              "Drive_position_move", "Drive_scan_move", "Drive_servo_on",
              "Drive_velocity_blending_acceleration", "Drive_velocity_move"],
    "Motion": ["Motion_servo_on", "Motion_find_home", "Motion_find_index", "Motion_find_limit",
               "Motion_get_logical_position", "Motion_load_configuration_file",
               "Motion_save_configuration_file", "Motion_position_blending",
               "Motion_velocity_blending", "Motion_velocity_blending_acceleration",
               "Motion_1axis_move", "Motion_1axis_move_with_alarm_in",
               "Motion_1axis_move_with_breakpoint", "Motion_1axis_move_with_capture",
               "Motion_1axis_move_with_configuration_file", "Motion_1axis_move_with_inposition",
               "Motion_1axis_move_with_S_curve_acceleration",
               "Motion_2axis_circular_interpolation", "Motion_2axis_linear_interpolation",
               "Motion_3axis_helical_interpolation", "Motion_3axis_linear_interpolation",
               "Motion_3axis_asynchronous_move", "Motion_3axis_synchronous_move"],
    "AI": ["AI_continuous", "AI_continuous_with_logger", "AI_N_samples_once",
           "AI_on_demand_in_loop", "AI_on_demand_once", "AI_continuous_multi_slot"],
    "AI24Bit": ["AI_on_demand_once"],
    "AO": ["AO_write_all_channels", "AO_write_one_channel", "AO_waveform_gen"],
    "AIO": ["AIO_one_channel_loopback", "AIO_all_channels_loopback",
            "AO_output_while_AI_streaming"],
    "DIO": ["DO_blinky_pins", "DO_blinky_port", "DIO_loopback_pins", "DIO_loopback_port",
            "DO_write_pins", "DO_write_port"],
    "CAN": ["CAN_read", "CAN_write"],
    "Temperature_TC": ["TC_read_channel_data", "TC_read_channel_data_with_logger",
                       "TC_read_channel_status"],
    "Temperature_RTD": ["RTD_read_channel_data", "RTD_read_channel_data_with_logger",
                        "RTD_read_channel_status"],
    "I2C": ["I2C_write_read"],
    "SPI": ["SPI_read_and_write", "SPI_write"],
    "UART": ["UART_read", "UART_write"],
    "Tutorial": ["single_loop_thread", "single_loop_async", "multiple_loops_thread",
                 "multiple_loops_async"],
    "Relay": ["Relay_set_channel", "Relay_read_counters"],
    "PWM": ["PWM_generate"],
    "Counter": ["Counter_read"],
    "AHRS": ["AHRS_read", "AHRS_visualize"],
    "DPOT": ["DPOT_readByChannel", "DPOT_writeAllChannels"],
}
GUI = {
    "AI": ["AI_integrated_gui"], "AO": ["AO_gui"], "DO": ["DO_gui"], "I2C": ["I2C_gui"],
    "SPI": ["SPI_gui"], "System": ["get_device_info_gui", "find_all_devices_gui"],
    "Temperature_RTD": ["RTD_gui"], "Temperature_TC": ["TC_gui"], "UART": ["UART_gui"],
}
LABELS = {
    "utilities": "Utilities", "wireless": "Wifi devices", "ethernet": "Ethernet devices",
    "USB": "USB devices", "product_list": "Products Usage", "DeviceFinder": "Device finder",
    "DataLogger": "Data logger", "find_all_devices_gui": "Network device finder",
    "get_device_info_gui": "Device network info center", "RTD_gui": "RTD test panel",
    "TC_gui": "TC test panel", "UART_gui": "UART test panel",
}
# The documented ports; every Ethernet product also has System_ETH and
# Tutorial without a port.
PORTS = {
    "Trellis": {"AI": 1, "AO": 1, "AIO": 1, "DIO": 1}, "MerlinDrive": {"Drive": 0},
    "MerlinAxis": {"Motion": 0}, "KestrelAin": {"AI": 0}, "KestrelDio": {"DIO": 1, "PWM": 0},
    "KestrelDioX": {"DIO": 2}, "KestrelCin": {"AI24Bit": 0}, "KestrelCvin": {"AI24Bit": 0},
    "KestrelRelay": {"Relay": None}, "KestrelAout": {"AO": 0}, "KestrelRes": {"DPOT": 0},
    "KestrelTherm": {"Temperature_TC": 1},
}
SYSTEM = {"USBDevice": "System_USB", "ETHDevice": "System_ETH", "WifiDevice": "System_Wifi"}
CONNECT = {"USBDevice": "default", "ETHDevice": "192.168.1.110"}


def test_model_table_label_dict_and_handle_groups():
    assert list(pyorv._pyorv._modelTable()) == list(GOLDEN)  # the family in order
    by_device = lambda d: [n for n in GOLDEN if GOLDEN[n]["device_class"] == d]  # noqa: E731
    assert list(pyorv.HANDLE_DICT.items()) == [
        ("utilities", ["DeviceFinder", "DataLogger"]),
        ("wireless", by_device("WifiDevice")),
        ("ethernet", by_device("ETHDevice")),
        ("USB", by_device("USBDevice")),
    ]
    assert pyorv.PRODUCT_LIST == PRODUCTS
    assert pyorv.HANDLE_LIST == ["DeviceFinder", "DataLogger"] + PRODUCTS
    # One display text for each group, handle, category and example.
    labels = pyorv.LABEL_DICT
    documented = {**LABELS, **{n: row["label"] for n, row in GOLDEN.items()}}
    assert {k: labels.get(k) for k in documented} == documented
    names = {n for table in (CONSOLE, GUI) for cat, ns in table.items() for n in [cat, *ns]}
    assert set(labels) == set(documented) | names
    assert all(isinstance(t, str) and t.strip() == t != "" for t in labels.values())


def test_example_catalogue_and_handle_properties():
    assert list(pyorv.EXAMPLE_CONSOLE_DICT.items()) == list(CONSOLE.items())
    assert list(pyorv.EXAMPLE_GUI_DICT.items()) == list(GUI.items())
    assert pyorv.CATEGORY_CONSOLE_LIST == list(CONSOLE)
    props = pyorv.HANDLE_PROPERTIES
    assert list(props) == pyorv.HANDLE_LIST
    for name in PRODUCTS:
        device = GOLDEN[name]["device_class"]
        want = {SYSTEM[device]: None, **PORTS.get(name, {})}
        if device == "ETHDevice":
            want["Tutorial"] = None
        assert {k: props[name].get(k, "missing") for k in want} == want, name
        if device in CONNECT:
            assert props[name]["connect"] == CONNECT[device]
    assert props["DeviceFinder"] == {"connect": "default", "Find_devices": None,
                                     "cat_port": ["Find_devices"]}
    # cat_port: the handle's example categories, in the catalogue's order;
    # CATEGORY_CONSOLE_DICT: the handles each category applies to.
    for name, p in props.items():
        categories = [k for k in p if k not in ("connect", "cat_port")]
        assert p["cat_port"] == categories == [c for c in CONSOLE if c in categories], name
        assert all(v is None or isinstance(v, int) for v in map(p.get, categories)), name
    assert pyorv.CATEGORY_CONSOLE_DICT == {
        c: [h for h in pyorv.HANDLE_LIST if c in props[h]] for c in CONSOLE}
    banners = ["SEE_MORE", "COPYRIGHT", "SCENARIO", "SPYDER", "NOTICE"]
    assert all(isinstance(getattr(pyorv, b), str) and getattr(pyorv, b) for b in banners)
    public = {"HANDLE_PROPERTIES", "CATEGORY_CONSOLE_DICT", "CATEGORY_CONSOLE_LIST",
              "EXAMPLE_CONSOLE_DICT", "EXAMPLE_GUI_DICT", "LABEL_DICT", *banners}
    assert public <= set(pyorv.__all__)
    assert [n for n in pyorv.__all__ if n.startswith("_")] == []


# (Each product's own link: the connect test above.)
def test_simulated_device_takes_the_link_it_is_told():
    assert sim.DeviceConfig(model="NoSuchModel").link == sim.Link.Ethernet
    assert sim.DeviceConfig(model="Trellis", link="usb").link == sim.Link.Usb
    assert sim.DeviceConfig(model="KestrelAin", link=sim.Link.Wifi).link == sim.Link.Wifi

"""The pyorv command line (the `pyorv` script, or `python -m pyorv`).

    pyorv demo                      a short tour against a simulated device
    pyorv sim [--model NAME ...]    simulated devices on loopback until Ctrl-C
    pyorv find --broadcast HOST     discovery of network devices
    pyorv info HOST[:PORT]          driver info and serial number of one device
    pyorv udev-rules                where the udev rules for USB access without root are
    pyorv examples                  the example programs by category
    pyorv examples run CATEGORY/NAME [ARGS...]   run one (against the simulator by default)

MAC addresses are printed in one form, the two-digit upper-case form the
device's configuration uses ("02:4F:52:56:00:0A"), and read in any of the
usual ones (colons, dashes, dots or none, either case).
"""

import argparse
import asyncio
import ipaddress
import os
import pathlib
import re
import runpy
import signal
import sys
import threading
import time

import pyorv

GET_SERIAL_NUMBER = 122
DEMO_COMMANDS = 1000


def _fail(msg, code=1):
    print(f"pyorv: {msg}", file=sys.stderr)
    return code


def _split_host_port(text, default_port):
    host, sep, port = text.rpartition(":")
    if not sep:
        return text, default_port
    if not port.isdigit() or not 0 <= int(port) <= 65535:
        raise argparse.ArgumentTypeError(f"bad port in {text!r}")
    return host, int(port)


def _is_loopback(host):
    if host == "localhost":
        return True
    try:
        return ipaddress.IPv4Address(host).is_loopback
    except ipaddress.AddressValueError:
        return False


def _mac_bytes(text):
    """The 6 bytes of a MAC address written with colons, dashes, dots or
    nothing between the digits, in either case; ValueError otherwise."""
    t = text.strip()
    parts = t.split(":") if ":" in t else t.split("-")
    if len(parts) == 6 and all(re.fullmatch(r"[0-9A-Fa-f]{1,2}", p) for p in parts):
        return bytes(int(p, 16) for p in parts)
    digits = t.replace(".", "")
    if re.fullmatch(r"[0-9A-Fa-f]{12}", digits) and ("." not in t or len(t) == 14):
        return bytes.fromhex(digits)
    raise ValueError(f"not a MAC address: {text!r}")


def _mac(value):
    """A MAC address (text or 6 bytes) as the command line prints it: 02:4F:52:56:00:0A."""
    b = value if isinstance(value, (bytes, bytearray)) else _mac_bytes(value)
    return ":".join(f"{x:02X}" for x in b)


def _mac_arg(text):
    try:
        return _mac(text)
    except ValueError as e:
        raise argparse.ArgumentTypeError(str(e)) from None


def _text(reply):
    return bytes(reply).decode("ascii", errors="replace").rstrip("\0 ")


# ---- demo -----------------------------------------------------------------------------

def _demo_digital(simulator):
    """Digital I/O on a simulated KestrelDioX on its own link: an output pin
    wired to an input pin in the simulator reads back what was written."""
    import pyorv.sim as sim

    model = pyorv.KestrelDioX
    sim_dev = simulator.add_device(sim.DeviceConfig(model="KestrelDioX", serial="SIMDIO01"))
    sim_dev.state_set("dio.loopback", [[0, 3, 2, 5]])  # DO port 0 pin 3 -> DI port 2 pin 5
    dev = model(verbose=False)
    try:
        if sim_dev.link == sim.Link.Usb:
            dev.connect(sim_dev.serial, verbose=False)
        else:
            dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
        dev.DO_openPins(0, [3])
        dev.DI_openPins(2, [5])
        seen = []
        for level in (1, 0):
            dev.DO_writePins(0, [3], [level])
            seen.append(dev.DI_readPins(2, [5])[0])

        async def awaitable_loopback():
            await dev.DO_writePins_async(0, [3], [1])
            return (await dev.DI_readPins_async(2, [5]))[0]

        seen.append(asyncio.run(awaitable_loopback()))
        print(f"digital loopback       KestrelDioX DO 0.3 -> DI 2.5 wrote 1, 0, 1 "
              f"(awaitable) and read {seen[0]}, {seen[1]}, {seen[2]}")
        dev.disconnect(verbose=False)
    finally:
        dev.close(verbose=False)


def _demo_analog(simulator):
    """A short analog stream from a simulated KestrelAin: sine waves on the
    first channels, read back as volts; plotted when matplotlib is there."""
    import pyorv.sim as sim

    sim_dev = simulator.add_device(sim.DeviceConfig(model="KestrelAin", serial="SIMAIN01"))
    sim_dev.state_set("ai.wave", [["sine", 2.0 + c, 5.0 * (c + 1), 0.0] for c in range(8)])
    sim_dev.state_set("ai.flat_out", True)
    n = 2000
    dev = pyorv.KestrelAin(verbose=False)
    try:
        dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
        dev.AI_open(0)
        dev.AI_setMode(0, 1)  # N samples, then the stream ends
        dev.AI_setNumSamples(0, n)
        dev.AI_start(0)
        samples = []
        while len(samples) < n:
            part = dev.AI_readStreaming(0, n - len(samples), 2.0)
            if not part:
                break
            samples += part
        peaks = [max(abs(s[c]) for s in samples) for c in range(3)] if samples else []
        print(f"analog stream          KestrelAin {len(samples)} samples x "
              f"{len(samples[0]) if samples else 0} channels; peaks of channels 0-2 "
              + ", ".join(f"{p:.2f} V" for p in peaks))
        _plot_analog(samples[:400])
        dev.AI_close(0)
        dev.disconnect(verbose=False)
    finally:
        dev.close(verbose=False)


def _plot_analog(samples):
    try:
        import matplotlib
        matplotlib.use("Agg")
        import matplotlib.pyplot as plt
    except ImportError:
        return
    fig, ax = plt.subplots(figsize=(8, 3))
    for c in range(3):
        ax.plot([s[c] for s in samples], label=f"channel {c}")
    ax.set_xlabel("sample")
    ax.set_ylabel("V")
    ax.legend(loc="upper right")
    fig.tight_layout()
    fig.savefig("pyorv_demo_analog.png")
    plt.close(fig)
    print("                       plotted to pyorv_demo_analog.png")


def cmd_demo(args):
    import pyorv.sim as sim

    with sim.Simulator() as simulator:
        sim_dev = simulator.add_device(sim.DeviceConfig(model="Trellis", serial="SIM00001"))
        print(f"pyorv {pyorv.__version__} demo: a simulated {sim_dev.model} in this process, "
              f"on loopback TCP")
        dev = pyorv.Trellis()
        try:
            dev.connect(sim_dev.host, sim_dev.cmd_port)
            sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)

            # The system services of the model.
            print(f"driver info            {dev.Sys_getDriverInfo()}")
            info_async = asyncio.run(dev.Sys_getDriverInfo_async())
            print(f"driver info, awaitable {info_async}")
            print(f"serial number          {dev.Sys_getSerialNumber()}")
            print(f"clock                  {dev.Sys_getRTC()}")
            print(f"address and mask       {dev.Net_getIPAddrAndSubmask()}")
            print(f"MAC address            {_mac(dev.Net_getMACAddr())}")
            print(f"pin modes of port 0    {dev.Sys_getPinModeInPort(0)}")

            start = time.perf_counter()
            for _ in range(DEMO_COMMANDS):
                dev._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3)
            mean_us = (time.perf_counter() - start) / DEMO_COMMANDS * 1e6
            print(f"{DEMO_COMMANDS} commands          mean round trip {mean_us:.0f} us")

            # The simulated firmware swallows the next reply: the first attempt
            # times out after a third of the timeout, the retry gets through.
            sim_dev.clear_packets()
            sim_dev.faults.drop_next = 1
            start = time.perf_counter()
            dev._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=0.6)
            took = time.perf_counter() - start
            sim_dev.wait_for_packets(2, 1.0)
            sent = [p.cmd for p in sim_dev.packets()]
            print(f"fault injection        one reply dropped, recovered by a retry in "
                  f"{took:.2f} s; the simulator recorded {len(sent)} packets {sent}")
            dev.disconnect()
            _demo_digital(simulator)
            _demo_analog(simulator)
        finally:
            dev.close()
    print("demo done")
    return 0


# ---- sim ------------------------------------------------------------------------------

def cmd_sim(args):
    import pyorv.sim as sim

    if not _is_loopback(args.host):
        return _fail(f"refusing to listen on {args.host}: the simulator serves loopback "
                     f"addresses (127.0.0.0/8) only", 2)
    stop = threading.Event()
    for sig in (signal.SIGINT, signal.SIGTERM):
        signal.signal(sig, lambda *_: stop.set())

    link = {"eth": sim.Link.Ethernet, "wifi": sim.Link.Wifi, "usb": sim.Link.Usb}[args.link]
    simulator = sim.Simulator()
    try:
        for i, model in enumerate(args.model, start=1):
            cfg = sim.numbered_config(model, link, i)
            cfg.host = args.host
            cfg.firmware = args.firmware
            dev = simulator.add_device(cfg)
            if args.link == "eth":
                where = f"{dev.host} cmd_port={dev.cmd_port}"
            elif args.link == "wifi":
                where = f"{dev.host} cmd_port={dev.cmd_port} data_port={dev.data_port}"
            else:
                where = "virtual, reachable from this process only"
            print(f"{dev.model} {args.link} {where} serial={dev.serial} mac={_mac(cfg.mac)}",
                  flush=True)
        if args.discovery:
            port = simulator.start_discovery(args.host, args.discovery_port,
                                             pyorv.UDP_RECV_PORT)
            print(f"discovery udp {args.host}:{port} answers to port {pyorv.UDP_RECV_PORT}; "
                  f"use PYORV_BROADCAST_ADDR={args.host}:{port}", flush=True)
        print("running; Ctrl-C or SIGTERM stops", flush=True)
        while not stop.is_set():
            stop.wait(0.5)
    except (pyorv.Error, OSError, ValueError) as e:
        return _fail(str(e))
    finally:
        simulator.stop()
    print("stopped", flush=True)
    return 0


# ---- find -----------------------------------------------------------------------------

def _device_info_line(answer):
    b = bytes(answer)
    if len(b) < 14:
        return f"(short answer {b.hex()})"
    ip = ".".join(str(x) for x in b[0:4])
    mask = ".".join(str(x) for x in b[4:8])
    model = b[14:].decode("ascii", errors="replace").rstrip("\0")
    return f"{model} eth {ip} mask={mask} mac={_mac(b[8:14])}"


def _collect(finder, timeout):
    if timeout is None:
        return finder._broadcastPacket(pyorv.GET_DEVICE_INFO, [0])

    async def window():
        try:
            return await asyncio.wait_for(
                finder._broadcastPacket_async(pyorv.GET_DEVICE_INFO, [0]), timeout)
        except asyncio.TimeoutError:
            return finder._broadcastAnswers(pyorv.GET_DEVICE_INFO)

    return asyncio.run(window())


def cmd_find(args):
    target = args.broadcast or os.environ.get("PYORV_BROADCAST_ADDR")
    if not target:
        return _fail("no broadcast target: set PYORV_BROADCAST_ADDR, or pass --broadcast "
                     "HOST[:PORT] (--broadcast 255.255.255.255 scans the local network)", 2)
    try:
        host, port = _split_host_port(target, pyorv.UDP_SEND_PORT)
    except argparse.ArgumentTypeError as e:
        return _fail(f"broadcast target: {e}", 2)
    finder = pyorv.DeviceFinder(verbose=False, broadcast_addr=f"{host}:{port}")
    window = finder.broadcast_window
    if args.timeout is not None:
        window = min(window, args.timeout)
    try:
        finder.connect(verbose=False)
    except (pyorv.Error, OSError) as e:
        # The socket of a failed bind stays with the client; shut it so that
        # the receive thread, let through by close(), does not wait on it.
        try:
            finder.client_udp.disconnect()
        except (pyorv.Error, OSError):
            pass  # no socket was made
        finder.close(verbose=False)
        return _fail(f"cannot receive answers on UDP port {pyorv.UDP_RECV_PORT}: {e}")
    try:
        print(f"searching for devices on {host}:{port} (answers to UDP port "
              f"{pyorv.UDP_RECV_PORT}) for {window:.1f} s ...", file=sys.stderr, flush=True)
        answers = sorted(_collect(finder, args.timeout))
        print("listing USB devices ...", file=sys.stderr, flush=True)
        usb = finder.Bcst_enumerateUSBDevices()
        finder.disconnect(verbose=False)
    except (pyorv.Error, OSError) as e:
        return _fail(str(e))
    finally:
        finder.close(verbose=False)
    if args.mac:
        answers = [a for a in answers if len(a) >= 14 and _mac(bytes(a)[8:14]) == args.mac]
        usb = []
    for a in answers:
        print(_device_info_line(a))
    for serial, product in usb:
        print(f"{product} usb serial={serial}")
    if not answers and not usb:
        print("no device answered")
    return 0


# ---- info -----------------------------------------------------------------------------

def cmd_info(args):
    host, port = args.address
    dev = pyorv.ETHDevice(verbose=False)
    try:
        dev.connect(host, port, verbose=False)
        info = _text(dev._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3))
        serial = _text(dev._echoPacketWithRetry(GET_SERIAL_NUMBER, [], timeout=3)[:8])
        dev.disconnect(verbose=False)
    except (pyorv.Error, OSError) as e:
        return _fail(f"{host}:{port}: {e}")
    finally:
        dev.close(verbose=False)
    print(f"{host}:{port} driver info {info.split('_')} serial number {serial}")
    # The model named by the driver text knows the clock and network services.
    model = getattr(pyorv, info.split("_")[0], None)
    if not (isinstance(model, type) and issubclass(model, pyorv.NetworkDevice)
            and issubclass(model, pyorv.SystemModule)):
        return 0
    dev = model(verbose=False)
    try:
        dev.connect(host, port, verbose=False)
        print(f"model                  {dev._getDeviceName()}")
        print(f"clock                  {dev.Sys_getRTC()}")
        print(f"address and mask       {dev.Net_getIPAddrAndSubmask()}")
        print(f"gateway                {dev.Net_getGateway()}")
        print(f"MAC address            {_mac(dev.Net_getMACAddr())}")
        dev.disconnect(verbose=False)
    except (pyorv.Error, OSError) as e:
        return _fail(f"{host}:{port}: {e}")
    finally:
        dev.close(verbose=False)
    return 0


# ---- udev-rules -------------------------------------------------------------------------

def udev_rules_path():
    """The udev rules file the package ships for USB access without root."""
    from importlib import resources
    return resources.files("pyorv") / "data" / "99-orv.rules"


def cmd_udev_rules(args):
    path = udev_rules_path()
    if args.print:
        print(path.read_text(), end="")
        return 0
    print(path)
    print(f"install it with: sudo cp {path} /etc/udev/rules.d/ && "
          f"sudo udevadm control --reload-rules && sudo udevadm trigger", file=sys.stderr)
    return 0


# ---- examples -------------------------------------------------------------------------

def examples_root():
    """The folder of the example scripts: inside the installed package
    (pyorv/examples), or the source tree's examples/ beside python/pyorv."""
    here = pathlib.Path(__file__).resolve().parent
    for folder in (here / "examples", here.parents[1] / "examples"):
        if (folder / "_target.py").is_file():
            return folder
    return None


def _example_script(category, name):
    root = examples_root()
    path = root / category / f"{name}.py" if root else None
    return path if path and path.is_file() else None


def cmd_examples_list(args):
    label = pyorv.LABEL_DICT
    print("Console examples: pyorv examples run CATEGORY/NAME [--usb SERIAL | --ip HOST] [--quick]")
    print("(+ a script to run; - listed in the catalogue, no script here yet)")
    for category, names in pyorv.EXAMPLE_CONSOLE_DICT.items():
        print(f"\n{label.get(category, category)} [{category}]")
        for name in names:
            mark = "+" if _example_script(category, name) else "-"
            print(f"  {mark} {category + '/' + name:<52} {label.get(name, '')}")
    print("\nGUI examples: panels in the browser, `pyorv panel`")
    for category, names in pyorv.EXAMPLE_GUI_DICT.items():
        for name in names:
            print(f"    {category + '/' + name:<52} {label.get(name, '')}")
    root = examples_root()
    print(f"\nscripts in {root}" if root else "\nno example scripts installed")
    return 0


def _find_example(text):
    """(kind, category, name) of an example named CATEGORY/NAME or a bare NAME;
    a text that names none, or several, fails with the candidates."""
    tables = (("console", pyorv.EXAMPLE_CONSOLE_DICT), ("gui", pyorv.EXAMPLE_GUI_DICT))
    category, _, name = text.rpartition("/")
    name = name.removesuffix(".py")
    found = [(kind, cat, name) for kind, table in tables for cat, names in table.items()
             if name in names and category in ("", cat)]
    if len(found) == 1:
        return found[0]
    if not found:
        raise LookupError(f"no example {text!r}; `pyorv examples` lists them")
    raise LookupError(f"{text!r} names several examples, say which: "
                      + ", ".join(f"{c}/{n}" for _, c, n in found))


def run_gui_example(category, name, argv):
    """GUI examples are panels of the browser app."""
    print(f"{category}/{name} is a GUI panel ({pyorv.LABEL_DICT.get(name, name)}); "
          f"GUI panels open with `pyorv panel` for now")
    return 0


def cmd_examples_run(args):
    try:
        kind, category, name = _find_example(args.example)
    except LookupError as e:
        return _fail(str(e), 2)
    if kind == "gui":
        return run_gui_example(category, name, args.args)
    path = _example_script(category, name)
    if path is None:
        return _fail(f"{category}/{name} is in the catalogue but has no script here yet")
    argv = sys.argv
    sys.argv = [str(path), *args.args]
    try:
        runpy.run_path(str(path), run_name="__main__")
    except SystemExit as e:
        return e.code if isinstance(e.code, int) else (0 if e.code is None else _fail(e.code))
    finally:
        sys.argv = argv
    return 0


def cmd_examples(args):
    if getattr(args, "examples_command", None) == "run":
        return cmd_examples_run(args)
    return cmd_examples_list(args)


# ---- entry ----------------------------------------------------------------------------

def _parser(prog="pyorv"):
    p = argparse.ArgumentParser(prog=prog,
                                description="ORV driver tools and the device simulator. "
                                            "Nothing here sends to the network unless told "
                                            "where.")
    p.add_argument("--version", action="version", version=f"pyorv {pyorv.__version__}",
                   help="print the package version and exit")
    sub = p.add_subparsers(dest="command", required=True, metavar="COMMAND",
                           help="one of the commands below; COMMAND -h tells more")

    d = sub.add_parser("demo", help="a short tour against a simulated device in this process")
    d.set_defaults(run=cmd_demo)

    s = sub.add_parser("sim", help="run simulated devices on loopback until Ctrl-C or SIGTERM")
    s.add_argument("--model", nargs="+", action="extend", metavar="NAME",
                   help="one device per model name (default: Trellis); repeatable")
    s.add_argument("--link", choices=("eth", "wifi", "usb"), default="eth",
                   help="how the devices are reached: eth (TCP commands), wifi (TCP commands "
                        "and data) or usb (virtual USB, this process only); default eth")
    s.add_argument("--discovery", action="store_true",
                   help="answer UDP discovery on HOST (see the printed PYORV_BROADCAST_ADDR)")
    s.add_argument("--discovery-port", type=int, default=pyorv.UDP_SEND_PORT, metavar="N",
                   help=f"UDP port of discovery (default {pyorv.UDP_SEND_PORT}; 0: any free)")
    s.add_argument("--host", default="127.0.0.1", help="a loopback address (default 127.0.0.1)")
    s.add_argument("--firmware", default="", metavar="127.0.0.1:PORT",
                   help="a TCP server on loopback that answers for the devices (see the user "
                        "guide, Bring your own firmware)")
    s.set_defaults(run=cmd_sim)

    f = sub.add_parser("find", help="discover network devices (and USB devices when listable)")
    f.add_argument("--broadcast", metavar="HOST[:PORT]",
                   help="where discovery is sent; default: the PYORV_BROADCAST_ADDR variable, "
                        "and without either nothing is sent. --broadcast 255.255.255.255 "
                        "scans the real local network")
    f.add_argument("--timeout", type=float, metavar="S",
                   help=f"seconds to collect answers (at most the {pyorv.PACKET_TIMEOUT} s "
                        f"discovery window, which is the default)")
    f.add_argument("--mac", type=_mac_arg, metavar="MAC",
                   help="show only the network device with this MAC address "
                        "(02:4F:52:56:00:0A, 02-4f-52-56-00-0a, 024f.5256.000a or "
                        "024F5256000A)")
    f.set_defaults(run=cmd_find)

    i = sub.add_parser("info", help="driver info and serial number of a network device")
    i.add_argument("address", metavar="HOST[:PORT]",
                   type=lambda t: _split_host_port(t, pyorv.TCP_CMD_PORT),
                   help=f"the device's address; PORT defaults to {pyorv.TCP_CMD_PORT}")
    i.set_defaults(run=cmd_info)

    u = sub.add_parser("udev-rules",
                       help="print where the udev rules file for USB access without root is")
    u.add_argument("--print", action="store_true",
                   help="print the rules themselves instead of the file's path")
    u.set_defaults(run=cmd_udev_rules)

    e = sub.add_parser("examples", help="list the example programs, or run one")
    e.set_defaults(run=cmd_examples)
    e_sub = e.add_subparsers(dest="examples_command", metavar="run")
    r = e_sub.add_parser("run", help="run one example (the built-in simulator unless its "
                                     "arguments name a device)")
    r.add_argument("example", metavar="CATEGORY/NAME",
                   help="the example, or its bare NAME when only one category has it")
    r.add_argument("args", nargs=argparse.REMAINDER,
                   help="passed to the example: --usb SERIAL, --ip HOST, --quick, ...")
    return p


def main(argv=None):
    # `python -m pyorv` and the `pyorv` script are the same program.
    prog = "python -m pyorv" if sys.argv[0].endswith("__main__.py") else "pyorv"
    args = _parser(prog).parse_args(argv)
    if getattr(args, "model", "") is None:
        args.model = ["Trellis"]
    return args.run(args)


if __name__ == "__main__":
    sys.exit(main())

"""Where an example's device comes from.

Every example runs against a simulated device of its model by default, and
against real hardware when given a target:

    python examples/DIO/DO_write_pins.py                  # the built-in simulator
    python examples/DIO/DO_write_pins.py --usb SERIAL     # a USB model ("default": the first one)
    python examples/DIO/DO_write_pins.py --ip 192.168.1.110

`--quick` shortens examples that stream or loop, so that the whole catalogue
runs in seconds (the test suite runs them this way).

An example does:

    import _target
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelDio, args) as dev:
        ...
"""

import argparse
import contextlib
import io
import os
import sys
import warnings

import pyorv
import pyorv.sim


def parse(description=None, argv=None, extra=None):
    """The command line every example shares; `extra(parser)` adds its own options."""
    p = argparse.ArgumentParser(description=(description or "").strip().splitlines()[0]
                                if description else None)
    target = p.add_mutually_exclusive_group()
    target.add_argument("--usb", metavar="SERIAL",
                        help="a real USB device by serial number ('default': the first found)")
    target.add_argument("--ip", metavar="HOST", help="a real network device by address")
    p.add_argument("--port", type=int, default=None,
                   help="the device's command port (network models; default: the model's)")
    p.add_argument("--quick", action="store_true",
                   help="a short run: fewer loops, shorter streams")
    if extra:
        extra(p)
    return p.parse_args(argv)


def is_usb_model(model):
    return issubclass(model, pyorv.USBDevice)


def is_wifi_model(model):
    return issubclass(model, pyorv.WifiDevice)


def _connect_real(dev, model, args):
    if args.usb is not None:
        if not is_usb_model(model):
            sys.exit(f"{model.__name__} is not a USB model: give --ip HOST")
        dev.connect(args.usb)
    else:
        if is_usb_model(model):
            sys.exit(f"{model.__name__} is a USB model: give --usb SERIAL")
        if is_wifi_model(model):
            kw = {"port2": args.port} if args.port is not None else {}
            dev.connect(args.ip, **kw)
        else:
            dev.connect(args.ip, *([args.port] if args.port is not None else []))


def _connect_sim(dev, sim_dev):
    if sim_dev.link == pyorv.sim.Link.Usb:
        # The simulator's virtual USB bus needs no libusb: the driver's warning
        # that it found none (and the call stack it prints before warning)
        # says nothing about the simulated device.
        with warnings.catch_warnings(), contextlib.redirect_stdout(io.StringIO()):
            warnings.simplefilter("ignore", pyorv.ExtLibNotFoundWarning)
            dev.connect(sim_dev.serial, verbose=False)
        print(f"Connected to {sim_dev.serial} ({dev._getDeviceName()})")
    elif sim_dev.link == pyorv.sim.Link.Wifi:
        dev.connect(sim_dev.host, port1=sim_dev.data_port, port2=sim_dev.cmd_port)
    else:
        dev.connect(sim_dev.host, sim_dev.cmd_port)


@contextlib.contextmanager
def simulated(model_name, serial="SIM00001"):
    """A running simulator with one device of the model; yields (simulator, sim_dev)."""
    with pyorv.sim.Simulator() as sim:
        yield sim, sim.add_device(pyorv.sim.DeviceConfig(model=model_name, serial=serial))


@contextlib.contextmanager
def open_device(model, args, sim_state=None):
    """A connected device object of class `model`: the real target the command
    line names, or else a simulated device of the model.  `sim_state(sim_dev)`
    may prepare the simulated device (wire a loopback, load a sensor) before
    the example starts; it is not called for real hardware.  Closes
    everything on the way out."""
    dev = model()
    try:
        if args.usb is not None or args.ip is not None:
            _connect_real(dev, model, args)
            yield dev
            return
        with simulated(model.__name__) as (_, sim_dev):
            if sim_state is not None:
                sim_state(sim_dev)
            _connect_sim(dev, sim_dev)
            try:
                yield dev
            finally:
                dev.close()
    finally:
        dev.close()


def loops(args, normal, quick=2):
    """How many rounds an example's loop runs: `normal`, or `quick` with --quick."""
    return quick if args.quick else normal


def here():
    """The folder the calling example lives in (for files it writes beside itself)."""
    return os.path.dirname(os.path.abspath(sys.argv[0]))

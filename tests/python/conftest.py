"""Fixtures: simulated devices on loopback and driver objects connected to them."""

import asyncio
import os
import time

import pytest

# Discovery collects answers for a window; the simulator answers at once, so a
# short one keeps the suite fast (test_discovery checks the default window).
os.environ.setdefault("PYORV_BROADCAST_WINDOW", "0.3")

import pyorv  # noqa: E402
import pyorv.sim as sim  # noqa: E402


@pytest.fixture
def simulator():
    s = sim.Simulator()
    yield s
    s.stop()


def connect(dev, sim_dev, verbose=False):
    """Connects a driver object over its simulated device's link; returns the
    text the connect message names."""
    if sim_dev.link == sim.Link.Usb:
        dev.connect(sim_dev.serial, verbose=verbose)
        return sim_dev.serial
    if sim_dev.link == sim.Link.Wifi:
        assert dev.connect(sim_dev.host, port1=sim_dev.data_port, port2=sim_dev.cmd_port,
                           verbose=verbose) is True
    else:
        dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=verbose)
    return sim_dev.host


@pytest.fixture
def pair(simulator):
    """pair(model, **config): a connected model object and its simulated device."""
    made = []

    def make(model, **config):
        config.setdefault("serial", f"SIMD{len(made):04d}")
        sim_dev = simulator.add_device(sim.DeviceConfig(model=model, **config))
        dev = getattr(pyorv, model)(verbose=False)
        connect(dev, sim_dev)
        made.append(dev)
        return dev, sim_dev

    yield make
    for dev in made:
        dev.close(verbose=False)


@pytest.fixture
def trellis(pair):
    return pair("Trellis", mac="02:4F:52:56:00:0A", gateway="127.0.0.254")


@pytest.fixture
def heron(pair):
    return pair("HeronAin")


@pytest.fixture
def model(request):
    """The trellis or heron pair, by model name: parametrize indirectly."""
    return request.getfixturevalue("heron" if request.param == "HeronAin" else "trellis")


@pytest.fixture
def eth_sim(simulator):
    """A simulated Ethernet device."""
    return simulator.add_device(sim.DeviceConfig(model="Trellis", serial="SIMETH01"))


@pytest.fixture
def eth(eth_sim):
    """An ETHDevice connected to the simulated Ethernet device."""
    dev = pyorv.ETHDevice(verbose=False)
    dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)
    assert eth_sim.wait_for_host(sim.Channel.Cmd, 5.0)  # the device has taken the connection
    yield dev
    dev.disconnect(verbose=False)
    dev.close(verbose=False)


def wire(sim_dev):
    """(command, data) of every packet the simulated device received."""
    return [(p.cmd, bytes(p.data)) for p in sim_dev.packets()]


def last(sim_dev):
    return wire(sim_dev)[-1]


def answer(data):
    """A per-device handler that answers every request with `data`."""
    return lambda ctx, req: ctx.reply(bytes(data))


def run(coro):
    return asyncio.run(coro)


def refuses(sim_dev, error, *calls):
    """Each call raises `error`, and nothing reaches the simulated device."""
    for call in calls:
        with pytest.raises(error):
            call()
    assert sim_dev.packets() == []


def sent(sim_dev, cmd):
    """How many packets of a command the simulated device received."""
    return sum(1 for p in sim_dev.packets() if p.cmd == cmd)


def thread_ids():
    """The native ids of this process's threads (compared as sets: a thread of
    an earlier test may end at any moment)."""
    return set(os.listdir("/proc/self/task"))


def threads_gone(ids, timeout=5.0):
    """True once none of the native thread ids `ids` is left.  A joined
    thread's entry under /proc can outlive the join by a moment: the join
    returns when the system clears the thread's id, before it is reaped."""
    return wait_until(lambda: not set(ids) & thread_ids(), timeout)


def wait_until(pred, timeout=5.0):
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        if pred():
            return True
        time.sleep(0.005)
    return pred()

"""Fixtures: simulated devices on loopback and driver objects connected to them."""

import os
import time

import pytest

import pyorv
import pyorv.sim as sim


@pytest.fixture
def simulator():
    s = sim.Simulator()
    yield s
    s.stop()


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


def sent(sim_dev, cmd):
    """How many packets of a command the simulated device received."""
    return sum(1 for p in sim_dev.packets() if p.cmd == cmd)


def thread_count():
    return len(os.listdir("/proc/self/task"))


def fd_count():
    return len(os.listdir("/proc/self/fd"))


def wait_until(pred, timeout=5.0):
    end = time.monotonic() + timeout
    while time.monotonic() < end:
        if pred():
            return True
        time.sleep(0.005)
    return pred()

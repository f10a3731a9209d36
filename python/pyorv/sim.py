"""Simulated devices on loopback TCP, UDP discovery and virtual USB.

    import pyorv.sim

    with pyorv.sim.start(["Trellis"], link="wifi") as sim:
        dev = sim.devices[0]
        # connect a model object to dev.host, dev.data_port / dev.cmd_port
        dev.faults.drop_next = 1
        print(dev.packets())

Everything lives in the compiled module; this file re-exports it.
"""

from ._pyorv._sim import *  # noqa: F401,F403

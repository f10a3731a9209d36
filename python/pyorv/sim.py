"""Simulated devices on loopback TCP, UDP discovery and virtual USB.

    import pyorv, pyorv.sim

    with pyorv.sim.start(["HeronAin"], link="wifi") as sim:
        sim_dev = sim.devices()[0]                  # the simulated device
        with pyorv.HeronAin(verbose=False) as dev:  # the driver's object for it
            dev.connect(sim_dev.host, port1=sim_dev.data_port, port2=sim_dev.cmd_port,
                        verbose=False)
            sim_dev.faults.drop_next = 1            # lose the next reply: a retry gets it
            print(dev.Sys_getDriverInfo())
        print(sim_dev.packets())                    # what the device received

Everything lives in the compiled module; this file re-exports it.
"""

from ._pyorv._sim import *  # noqa: F401,F403

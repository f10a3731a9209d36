"""Two device loops at once as asyncio tasks on one event loop, with the
awaitable twins (name_async): an I/O task writes an output pin of a
KestrelDio and reads it back on an input pin, a clock task reads the
device's clock.  No thread per task: a pending call costs none.

A reply is matched to its request by the operation, not by the caller: two
tasks should not await the same operation on one device at the same time.
Give each task its own kind of work, as here, or its own device.

In the simulator output 0.0 is wired to input 1.0; on hardware, wire them:

    python examples/Tutorial/multiple_loops_async.py
    python examples/Tutorial/multiple_loops_async.py --ip 192.168.1.110
"""

import asyncio

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

DO_PORT = 0
DI_PORT = pyorv.HANDLE_PROPERTIES["KestrelDio"]["DIO"]  # the input port
PERIOD = 0.1  # seconds between rounds


def wire(sim_dev):
    sim_dev.state_set("dio.loopback", [[DO_PORT, 0, DI_PORT, 0]])


async def io_loop(dev, rounds):
    matched = 0
    for r in range(rounds):
        level = r % 2
        await dev.DO_writePins_async(DO_PORT, [0], [level])
        matched += (await dev.DI_readPins_async(DI_PORT, [0]))[0] == level
        await asyncio.sleep(PERIOD)
    return f"{matched} of {rounds} read-backs matched"


async def clock_loop(dev, rounds):
    times = []
    for _ in range(rounds):
        times.append(await dev.Sys_getRTC_async())
        await asyncio.sleep(PERIOD)
    return f"{rounds} readings, {times[0]} to {times[-1]}"


async def run(dev, rounds):
    await dev.DO_openPins_async(DO_PORT, [0])
    await dev.DI_openPins_async(DI_PORT, [0])
    return await asyncio.gather(io_loop(dev, rounds), clock_loop(dev, rounds))


def main():
    args = _target.parse(__doc__)
    rounds = _target.loops(args, 20, 4)
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        io, clock = asyncio.run(run(dev, rounds))
        print(f"io task: {io}")
        print(f"clock task: {clock}")


if __name__ == "__main__":
    main()

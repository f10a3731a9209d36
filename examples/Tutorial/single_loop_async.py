"""A device loop as an asyncio task, with the awaitable twins (name_async):
each round writes an output pin of a KestrelDio and reads it back on an input
pin; the event loop stays free while a reply is on its way.

In the simulator output 0.0 is wired to input 1.0; on hardware, wire them:

    python examples/Tutorial/single_loop_async.py
    python examples/Tutorial/single_loop_async.py --ip 192.168.1.110
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


async def loop(dev, rounds, pin=0):
    await dev.DO_openPins_async(DO_PORT, [pin])
    await dev.DI_openPins_async(DI_PORT, [pin])
    for r in range(1, rounds + 1):
        level = r % 2
        await dev.DO_writePins_async(DO_PORT, [pin], [level])
        read = (await dev.DI_readPins_async(DI_PORT, [pin]))[0]
        print(f"round {r}: wrote {level}, read {read}")
        await asyncio.sleep(PERIOD)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        asyncio.run(loop(dev, _target.loops(args, 6, 3)))
        print("the task has ended")


if __name__ == "__main__":
    main()

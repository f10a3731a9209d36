"""Two device loops at once on one KestrelDio, one worker thread each: an I/O
loop writes an output pin and reads it back on an input pin, a clock loop
reads the device's clock.  Both go through the same link.

A reply is matched to its request by the operation, not by the caller: two
threads should not run the same operation on one device at the same time.
Give each thread its own kind of work, as here, or its own device.

In the simulator output 0.0 is wired to input 1.0; on hardware, wire them:

    python examples/Tutorial/multiple_loops_thread.py
    python examples/Tutorial/multiple_loops_thread.py --ip 192.168.1.110
"""

import threading

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


def io_loop(dev, rounds, results):
    pause = threading.Event()  # never set: wait() paces the rounds
    matched = 0
    for r in range(rounds):
        level = r % 2
        dev.DO_writePins(DO_PORT, [0], [level])
        matched += dev.DI_readPins(DI_PORT, [0])[0] == level
        pause.wait(PERIOD)
    results["io"] = f"{matched} of {rounds} read-backs matched"


def clock_loop(dev, rounds, results):
    pause = threading.Event()
    times = []
    for _ in range(rounds):
        times.append(dev.Sys_getRTC())
        pause.wait(PERIOD)
    results["clock"] = f"{rounds} readings, {times[0]} to {times[-1]}"


def main():
    args = _target.parse(__doc__)
    rounds = _target.loops(args, 20, 4)
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        dev.DO_openPins(DO_PORT, [0])
        dev.DI_openPins(DI_PORT, [0])
        results = {}
        workers = [threading.Thread(target=f, args=(dev, rounds, results), name=f.__name__)
                   for f in (io_loop, clock_loop)]
        for w in workers:
            w.start()
        for w in workers:
            w.join()
        for name in ("io", "clock"):
            print(f"{name} loop: {results[name]}")


if __name__ == "__main__":
    main()

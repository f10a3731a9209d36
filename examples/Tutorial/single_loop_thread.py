"""A device loop in a worker thread: each round writes an output pin of a
KestrelDio and reads it back on an input pin, while the main thread waits.

In the simulator output 0.0 is wired to input 1.0; on hardware, wire them:

    python examples/Tutorial/single_loop_thread.py
    python examples/Tutorial/single_loop_thread.py --ip 192.168.1.110
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


def loop(dev, rounds, pin=0):
    pause = threading.Event()  # never set: wait() paces the rounds
    dev.DO_openPins(DO_PORT, [pin])
    dev.DI_openPins(DI_PORT, [pin])
    for r in range(1, rounds + 1):
        level = r % 2
        dev.DO_writePins(DO_PORT, [pin], [level])
        read = dev.DI_readPins(DI_PORT, [pin])[0]
        print(f"round {r}: wrote {level}, read {read}")
        pause.wait(PERIOD)


def main():
    args = _target.parse(__doc__)
    with _target.open_device(pyorv.KestrelDio, args, sim_state=wire) as dev:
        worker = threading.Thread(target=loop, args=(dev, _target.loops(args, 6, 3)))
        worker.start()
        worker.join()
        print("the worker thread has ended")


if __name__ == "__main__":
    main()

"""End-to-end analog input throughput against the simulator: a flat-out
stream (records back to back on loopback) decoded by ai_stream_thread and
read by AI_readStreaming, in values per second, per model link.

    PYTHONPATH=build/dev/stage python3 bench/bench_analog.py [--samples N]
"""

import argparse
import time

import pyorv
import pyorv.sim as sim


def connect(dev, s):
    if s.link == sim.Link.Usb:
        dev.connect(s.serial, verbose=False)
    elif s.link == sim.Link.Wifi:
        dev.connect(s.host, port1=s.data_port, port2=s.cmd_port, verbose=False)
        s.wait_for_host(sim.Channel.Data, 5.0)
    else:
        dev.connect(s.host, s.cmd_port, verbose=False)


def run(model, samples):
    with sim.Simulator() as simulator:
        s = simulator.add_device(sim.DeviceConfig(model=model, serial="BENCH001"))
        s.state_set("ai.flat_out", True)
        s.state_set("ai.record_samples", 256)
        dev = getattr(pyorv, model)(verbose=False)
        connect(dev, s)
        try:
            dev.AI_open(0)
            dev.AI_setMode(0, 1)
            dev.AI_setNumSamples(0, samples)
            t0 = time.perf_counter()
            dev.AI_start(0)
            got = 0
            while got < samples:
                part = dev.AI_readStreaming(0, samples - got, 2.0)
                if not part:
                    break
                got += len(part)
            dt = time.perf_counter() - t0
            values = got * dev.ai_num_channels
            print(f"{model:12s} {s.link!s:12s} {got} samples x {dev.ai_num_channels} channels "
                  f"in {dt:.3f} s: {values / dt / 1e6:.2f} M values/s")
        finally:
            dev.close(verbose=False)


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--samples", type=int, default=200_000, help="samples per model (default 200000)")
    args = ap.parse_args()
    for model in ("KestrelAin", "HeronAinPlus", "PloverAin"):
        run(model, args.samples)


if __name__ == "__main__":
    main()

"""Analog input from the simulator to Python, through the list read
(AI_readStreaming) and the array reads (AI_readStreamingInto, AI_readStreamingArray).

throughput   a flat-out stream (records back to back on loopback) of N samples
             per model and read method, simulator and driver in this process on
             one CPU: values per second and CPU time per million values
sustained    DEVICES simulated KestrelAin (8 channels) streaming continuously at
             RATE Hz, in a child process of its own, while one reader thread per
             device drains it for DURATION seconds, then stops the streams and
             reads the rest.  Every value is checked against the simulated ramp
             (channel c of sample k counts 1000*c + k), the samples read are
             compared with what the device sent, and every read's dropped count
             is summed.  Reports the driver's CPU per device (its receive and
             decoder threads) and the readers' CPU inside their read calls,
             where they wait for samples; and, before the streams start, the
             CPU of a read that waits 1 s for samples that do not come.

    PYTHONPATH=build/dev/stage python3 bench/bench_analog.py [--duration 60] [--samples N]
                                                                [--only throughput|sustained]

numpy is needed (the array reads, and the checks).  Everything goes to 127.0.0.1.
"""

import argparse
import contextlib
import io
import multiprocessing as mp
import os
import resource
import threading
import time

import numpy as np

import pyorv
import pyorv.sim as sim

PER_READ = 2000  # samples asked per read in the sustained run (0.1 s at 20 kHz)


def connect(dev, s):
    if s.link == sim.Link.Usb:
        with contextlib.redirect_stdout(io.StringIO()):  # the libusb warning's call stack
            dev.connect(s.serial, verbose=False)
    elif s.link == sim.Link.Wifi:
        dev.connect(s.host, port1=s.data_port, port2=s.cmd_port, verbose=False)
        s.wait_for_host(sim.Channel.Data, 5.0)
    else:
        dev.connect(s.host, s.cmd_port, verbose=False)


def process_cpu():
    r = resource.getrusage(resource.RUSAGE_SELF)
    return r.ru_utime + r.ru_stime


def ramp_errors(values, first, ratio):
    """Values of samples first, first+1, ... that are not the ramp's."""
    values = np.asarray(values, dtype=float)
    k = np.arange(first, first + len(values), dtype=np.int64)[:, None]
    c = np.arange(values.shape[1], dtype=np.int64)[None, :]
    expect = (1000 * c + k + 32768) % 65536 - 32768
    return int(np.count_nonzero(np.rint(values / ratio).astype(np.int64) != expect))


class Reader:
    """Takes samples by one of the read methods, as an array."""

    def __init__(self, dev, api, rows):
        self.dev, self.api = dev, api
        self.out = np.empty((rows, dev.ai_num_channels))

    def __call__(self, n, delay):
        """The samples: a list of lists from the list read, else an array."""
        if self.api == "list":
            return self.dev.AI_readStreaming(0, n, delay)
        if self.api == "array":
            return self.dev.AI_readStreamingArray(0, n, delay)
        got = self.dev.AI_readStreamingInto(0, self.out[:n], delay)
        return self.out[:got]


# ---- throughput -------------------------------------------------------------------------

def throughput(model, api, samples):
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
            read = Reader(dev, api, 4096)
            cpu0, t0 = process_cpu(), time.perf_counter()
            dev.AI_start(0)
            got = bad = 0
            while got < samples:
                part = read(min(4096, samples - got), 2.0)
                if not len(part):
                    break
                bad += ramp_errors(part, got, dev.ai_ratio) if got % 65536 < 4096 else 0
                got += len(part)
            dt, cpu = time.perf_counter() - t0, process_cpu() - cpu0
            values = got * dev.ai_num_channels
            print(f"  {model:12s} {str(s.link):13s} {api:5s} {got} x {dev.ai_num_channels}: "
                  f"{values / dt / 1e6:5.2f} M values/s, {cpu / values * 1e6:.2f} CPU s per M values"
                  f"{'' if got == samples and not bad else f'  (WRONG: {samples - got} missing, {bad} bad)'}")
        finally:
            with contextlib.redirect_stdout(io.StringIO()):
                dev.close(verbose=False)


# ---- sustained --------------------------------------------------------------------------

def sim_process(conn, devices, cpu):
    if cpu is not None:
        os.sched_setaffinity(0, {cpu})
    with sim.Simulator() as simulator:
        devs = [simulator.add_device(sim.DeviceConfig(model="KestrelAin", serial=f"BENCH{i:03d}"))
                for i in range(devices)]
        conn.send([(d.host, d.cmd_port) for d in devs])
        conn.recv()  # the driver is done
        r = resource.getrusage(resource.RUSAGE_SELF)
        conn.send(r.ru_utime + r.ru_stime)


def thread_cpu(tid):
    """CPU seconds of one thread of this process, from /proc."""
    with open(f"/proc/self/task/{tid}/stat") as f:
        fields = f.read().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def drain(dev, api, stop, stats):
    """One device's reader: reads until stop is set and a read finds nothing."""
    stats["tid"] = threading.get_native_id()
    read = Reader(dev, api, PER_READ)
    ratio = dev.ai_ratio
    got = bad = dropped = 0
    in_read = 0.0
    while True:
        c0 = time.thread_time()
        part = read(PER_READ, 0.5)
        in_read += time.thread_time() - c0
        dropped += dev.AI_getReadDropped(0)
        if len(part):
            bad += ramp_errors(part, got, ratio)
            got += len(part)
        elif stop.is_set():
            break
    stats.update(got=got, bad=bad, dropped=dropped, in_read=in_read, total=time.thread_time())


def sustained(devices, rate, duration, apis, pin):
    ctx = mp.get_context("spawn")
    here, there = ctx.Pipe()
    child = ctx.Process(target=sim_process, args=(there, devices, 1 if pin else None))
    child.start()
    addresses = here.recv()
    devs, threads, stats = [], [], []
    stop = threading.Event()
    try:
        for host, port in addresses:
            dev = pyorv.KestrelAin(verbose=False)
            dev.connect(host, port, verbose=False)
            dev.AI_open(0)
            dev.AI_setMode(0, 2)
            dev.AI_setSamplingRate(0, rate)
            devs.append(dev)
        for i, dev in enumerate(devs):
            st = {"api": apis[i % len(apis)]}
            th = threading.Thread(target=drain, args=(dev, st["api"], stop, st))
            threads.append(th)
            stats.append(st)
            th.start()
        # A read that waits with nothing coming: its CPU is that of the wait alone.
        idle = []
        for api in ("list", "into", "array"):
            c0, t0 = time.thread_time(), time.perf_counter()
            n = len(Reader(devs[0], api, 10)(10, 1.0))
            idle.append(f"{api} {(time.thread_time() - c0) * 1e3:.2f} ms CPU in "
                        f"{time.perf_counter() - t0:.2f} s ({n} samples)")
        print("  a read waiting 1 s for samples that do not come: " + ", ".join(idle))
        main_tid = threading.get_native_id()
        cpu0, t0 = process_cpu(), time.perf_counter()
        main0 = thread_cpu(main_tid)
        for dev in devs:
            dev.AI_start(0)
        time.sleep(duration)
        for dev in devs:
            dev.AI_stop(0)
        streamed = time.perf_counter() - t0
        stop.set()
        for th in threads:
            th.join()
        cpu = process_cpu() - cpu0
        wall = time.perf_counter() - t0
        main = thread_cpu(main_tid) - main0
        sent = [dev._AI_readBufferStatus(0)[0] for dev in devs]
        total_dropped = [dev.ai_dropped_samples for dev in devs]
    finally:
        with contextlib.redirect_stdout(io.StringIO()):
            for dev in devs:
                dev.close(verbose=False)
        here.send("done")
        sim_cpu = here.recv()
        child.join()
    readers = sum(st["total"] for st in stats)
    driver = cpu - readers - main
    print(f"  {devices} x KestrelAin, 8 channels at {rate} Hz, streamed {streamed:.1f} s, "
          f"drained in {wall - streamed:.2f} s more")
    ok = True
    for i, st in enumerate(stats):
        lost = sent[i] - st["got"]
        ok = ok and lost == 0 and st["bad"] == 0 and st["dropped"] == 0 and total_dropped[i] == 0
        print(f"    device {i} ({st['api']:5s}): sent {sent[i]}, read {st['got']}, lost {lost}, "
              f"values off the ramp {st['bad']}, dropped (per-read sum {st['dropped']}, "
              f"total {total_dropped[i]}); reader CPU in read calls "
              f"{st['in_read'] / wall * 100:.1f} % of a core, with its checks "
              f"{st['total'] / wall * 100:.1f} %")
    print(f"    driver threads (receive, decoder): {driver / wall / devices * 100:.1f} % of a core "
          f"per device; simulator process {sim_cpu / wall * 100:.1f} % of a core in all")
    print(f"    {'ZERO samples lost, every value on the ramp' if ok else 'SAMPLES LOST OR WRONG'}")


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--duration", type=float, default=60.0,
                    help="seconds of the sustained run (default 60)")
    ap.add_argument("--samples", type=int, default=200_000,
                    help="samples per throughput run (default 200000)")
    ap.add_argument("--devices", type=int, default=4)
    ap.add_argument("--rate", type=float, default=20000.0)
    ap.add_argument("--api", choices=["list", "array", "into", "mixed"], default="mixed",
                    help="read method of the sustained readers; mixed: list, into, array by turns")
    ap.add_argument("--only", choices=["throughput", "sustained"])
    ap.add_argument("--no-pin", action="store_true",
                    help="do not pin: by default this process runs on CPU 0 and the sustained "
                         "run's simulator on CPU 1")
    args = ap.parse_args()
    pin = not args.no_pin and len(os.sched_getaffinity(0)) > 1
    if pin:
        os.sched_setaffinity(0, {0})
    print(f"pyorv {pyorv.__version__}, numpy {np.__version__}, {os.cpu_count()} CPUs"
          f"{', pinned to CPU 0' if pin else ''}")
    if args.only != "sustained":
        print("throughput (flat-out stream, simulator in this process):")
        for model in ("KestrelAin", "HeronAinPlus", "PloverAin"):
            for api in ("list", "into", "array"):
                throughput(model, api, args.samples)
    if args.only != "throughput":
        print("sustained (simulator in a child process):")
        apis = ["list", "into", "array"] if args.api == "mixed" else [args.api]
        sustained(args.devices, args.rate, args.duration, apis, pin)


if __name__ == "__main__":
    main()

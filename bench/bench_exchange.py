"""Round-trip latency of one command from Python, against the simulator on
loopback in this process.

    PYTHONPATH=build/py/stage python bench/bench_exchange.py [-n 3000] [--mode pinned|free|both]

Every row runs twice: first with the whole process pinned to one CPU (the
headline: client, simulator and receive threads share a core, so the figures
do not depend on how the scheduler spreads threads), then free (unpinned).

Rows:
  floor           GET_DRIVER_INFO written on a plain blocking socket and read
                  back up to its CR LF: Python, the kernel and the simulated
                  firmware, no driver
  floor, asyncio  the same through loop.sock_sendall / loop.sock_recv: what an
                  event loop that waits on the socket itself costs
  blocking        dev._echoPacketWithRetry(240, [0], timeout=3)
  awaitable       await dev._echoPacketWithRetry_async(240, [0]), one at a
                  time on one event loop
  32 in flight    32 tasks on one loop, each awaiting exchanges on its own
                  connected device (the simulator answers two commands only,
                  so independent exchanges are spread over devices, not keys)
  sparse          one call every 10 ms: the blocking call against the raw
                  socket at the same sparsity (threads that sleep between calls)
  1000 awaitables 1000 awaitables at once on 100 devices, 10 reads of
                  different commands each: the wall time of a first and a second
                  burst, and the threads of the process before, during and
                  after them (a pending awaitable holds no thread)

Figures only: nothing here passes or fails on a time.
"""

import argparse
import asyncio
import logging
import os
import socket
import statistics
import sys
import time

import pyorv
import pyorv.sim as sim

DRIVER_INFO_PACKET = bytes([0x02, 0x00, 0x02, 0xF0, 0x00, 0x0D, 0x0A])
TARGET_BLOCKING = 1.25  # blocking p50 over the raw-socket floor's, at most
TARGET_AWAITABLE = 1.25  # awaitable p50 over the asyncio floor's, at most
CONCURRENT = 32
TURN = 250  # round trips per row and turn
SPARSE_GAP = 0.010  # seconds between two calls of the sparse rows
BURST_DEVICES = 100
# Ten reads of different commands on each device.  Driver info, serial number, date and time, IP, MAC, gateway, threads,
# EEPROM device, DIO state, DIO current.
BURST_CMDS = [240, 122, 241, 243, 245, 124, 126, 249, 229, 226]


def percentile(sorted_ns, q):
    k = min(len(sorted_ns) - 1, max(0, round(q * (len(sorted_ns) - 1))))
    return sorted_ns[k]


def summary(samples_ns):
    s = sorted(samples_ns)
    return {"p50": statistics.median(s) / 1000.0, "p99": percentile(s, 0.99) / 1000.0}


def loopback_only(host):
    if not host.startswith("127."):
        sys.exit(f"bench_exchange: the simulator must be on loopback, not {host}")


def raw_socket(sim_dev):
    loopback_only(sim_dev.host)
    sock = socket.create_connection((sim_dev.host, sim_dev.cmd_port), timeout=5)
    sock.settimeout(None)  # plain blocking calls, no poll() ahead of each
    sock.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
    assert sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)
    return sock


def check_reply(reply):
    if len(reply) < 7 or reply[3] != 0xF0:
        raise RuntimeError(f"unexpected reply {reply!r}")


def floor_call(sock):
    def one():
        sock.sendall(DRIVER_INFO_PACKET)
        buf = sock.recv(4096)
        while not buf.endswith(b"\r\n"):
            more = sock.recv(4096)
            if not more:
                raise ConnectionError("the simulated device closed the link")
            buf += more
        return buf

    return one


def asyncio_floor_call(sock, loop):
    async def one():
        await loop.sock_sendall(sock, DRIVER_INFO_PACKET)
        buf = await loop.sock_recv(sock, 4096)
        while not buf.endswith(b"\r\n"):
            more = await loop.sock_recv(sock, 4096)
            if not more:
                raise ConnectionError("the simulated device closed the link")
            buf += more
        return buf

    return one


def connect(sim_dev):
    loopback_only(sim_dev.host)
    dev = pyorv.ETHDevice(verbose=False)
    dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
    assert sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)
    return dev


def release(dev):
    dev.disconnect(verbose=False)
    dev.close(verbose=False)


def timed(call, count, out):
    clock = time.perf_counter_ns
    for _ in range(count):
        t0 = clock()
        call()
        out.append(clock() - t0)


async def timed_async(call, count, out):
    clock = time.perf_counter_ns
    for _ in range(count):
        t0 = clock()
        await call()
        out.append(clock() - t0)


def bench_sequential(floor_sock, aio_sock, dev, n, warmup):
    """The sequential rows, run in turns of TURN round trips so that a slow
    spell of the machine falls on all of them alike."""
    loop = asyncio.new_event_loop()
    aio_sock.setblocking(False)
    rows = {
        "floor": (False, floor_call(floor_sock)),
        "floor_asyncio": (True, asyncio_floor_call(aio_sock, loop)),
        "blocking": (False, lambda: dev._echoPacketWithRetry(240, [0], timeout=3)),
        "awaitable": (True, lambda: dev._echoPacketWithRetry_async(240, [0])),
    }
    out = {name: [] for name in rows}
    try:
        check_reply(floor_call(floor_sock)())
        check_reply(loop.run_until_complete(asyncio_floor_call(aio_sock, loop)()))
        for count, sink in [(warmup, None), (n, out)]:
            done = 0
            while done < count:
                k = min(TURN, count - done)
                for name, (is_async, call) in rows.items():
                    samples = sink[name] if sink is not None else []
                    if is_async:
                        loop.run_until_complete(timed_async(call, k, samples))
                    else:
                        timed(call, k, samples)
                done += k
        return out
    finally:
        loop.close()


def bench_gather(devs, n, warmup):
    """Each of len(devs) tasks runs its share of n exchanges on its own device."""
    per_task = max(1, n // len(devs))

    async def worker(dev, count, lat):
        clock = time.perf_counter_ns
        for _ in range(count):
            t0 = clock()
            await dev._echoPacketWithRetry_async(240, [0])
            lat.append(clock() - t0)

    async def main():
        await asyncio.gather(*(worker(d, max(1, warmup // len(devs)), []) for d in devs))
        lat = []
        t0 = time.perf_counter_ns()
        await asyncio.gather(*(worker(d, per_task, lat) for d in devs))
        return lat, time.perf_counter_ns() - t0

    lat, wall_ns = asyncio.run(main())
    return lat, len(lat) / (wall_ns / 1e9)


def thread_count():
    return len(os.listdir("/proc/self/task"))


def set_affinity(cpus):
    """Every thread of the process (threads made later inherit it)."""
    for tid in os.listdir("/proc/self/task"):
        try:
            os.sched_setaffinity(int(tid), cpus)
        except OSError:
            pass  # the thread ended meanwhile


def bench_sparse(floor_sock, dev, count):
    """One call every SPARSE_GAP, the floor and the driver by turns."""
    calls = {"floor": floor_call(floor_sock),
             "blocking": lambda: dev._echoPacketWithRetry(240, [0], timeout=3)}
    out = {name: [] for name in calls}
    clock = time.perf_counter_ns
    for _ in range(count):
        for name, call in calls.items():
            time.sleep(SPARSE_GAP)
            t0 = clock()
            call()
            out[name].append(clock() - t0)
    return {name: summary(v) for name, v in out.items()}


def bench_burst(devs):
    """One awaitable of each BURST_CMDS on each device, all at once; wall
    times of a first and a second burst, and thread counts before, while the
    first burst is pending, and after."""
    threads = {"before": thread_count()}

    async def burst():
        t0 = time.perf_counter_ns()
        pending = asyncio.gather(*(d._echoPacketWithRetry_async(cmd, [0])
                                   for d in devs for cmd in BURST_CMDS))
        await asyncio.sleep(0)  # every call sent, none answered yet
        threads.setdefault("during", thread_count())
        replies = await pending
        took = (time.perf_counter_ns() - t0) / 1e6
        if not all(replies):
            raise RuntimeError("an empty reply in the burst")
        return took

    cold = asyncio.run(burst())
    warm = asyncio.run(burst())
    threads["after"] = thread_count()
    return cold, warm, threads


def print_table(n, warmup, rows, throughput, mode):
    print(f"== {mode}: GET_DRIVER_INFO round trips on loopback, {n} timed per row after {warmup} "
          f"warm-up (pyorv {pyorv.__version__}, Python {sys.version.split()[0]})")
    print(f"{'':32} {'p50 us':>9} {'p99 us':>9} {'p50/floor':>10} {'target':>8}")
    for name, st, ratio, target in rows:
        r = f"{ratio:9.2f}x" if ratio is not None else ""
        t = f"<= {target:g}x" if target is not None else ""
        verdict = ""
        if target is not None:
            verdict = "  met" if ratio <= target else "  missed"
        print(f"{name:32} {st['p50']:9.1f} {st['p99']:9.1f} {r:>10} {t:>8}{verdict}")
    if throughput is not None:
        print(f"{'':32} {CONCURRENT} in flight: {throughput:,.0f} round trips/s")


def print_extra(sparse, burst):
    if sparse is not None:
        f, b = sparse["floor"], sparse["blocking"]
        print(f"{'sparse floor (every 10 ms)':32} {f['p50']:9.1f} {f['p99']:9.1f}")
        print(f"{'sparse blocking (every 10 ms)':32} {b['p50']:9.1f} {b['p99']:9.1f} "
              f"{b['p50'] / f['p50']:9.2f}x")
    if burst is not None:
        cold, warm, th = burst
        total = BURST_DEVICES * len(BURST_CMDS)
        print(f"{total} awaitables on {BURST_DEVICES} devices: cold {cold:.0f} ms, warm {warm:.0f} ms;"
              f" threads before {th['before']}, during {th['during']}, after {th['after']}")


def run(args, n, warmup, mode):
    with sim.Simulator() as s:
        def device(i):
            return s.add_device(sim.DeviceConfig(model="Trellis", serial=f"BENCH{i:03d}",
                                                 mac=f"02:4F:52:56:01:{i:02X}"))

        floor_sock, aio_sock = raw_socket(device(0)), raw_socket(device(1))
        dev = connect(device(2))
        sparse = None
        try:
            seq = bench_sequential(floor_sock, aio_sock, dev, n, warmup)
            if args.sparse > 0:
                sparse = bench_sparse(floor_sock, dev, args.sparse)
        finally:
            release(dev)
            floor_sock.close()
            aio_sock.close()
        st = {name: summary(samples) for name, samples in seq.items()}

        def ratio(name, floor="floor"):
            return st[name]["p50"] / st[floor]["p50"]

        rows = [
            ("floor: raw socket", st["floor"], None, None),
            ("floor, asyncio: loop.sock_*", st["floor_asyncio"], ratio("floor_asyncio"), None),
            ("blocking _echoPacketWithRetry", st["blocking"], ratio("blocking"), TARGET_BLOCKING),
            ("awaitable (ratio: asyncio floor)", st["awaitable"],
             ratio("awaitable", "floor_asyncio"), TARGET_AWAITABLE),
        ]

        throughput = None
        if not args.no_gather:
            devs = [connect(device(10 + i)) for i in range(CONCURRENT)]
            try:
                lat, throughput = bench_gather(devs, n, warmup)
            finally:
                for d in devs:
                    release(d)
            rows.append((f"awaitable, {CONCURRENT} in flight", summary(lat), None, None))

        burst = None
        if not args.no_burst:
            devs = [connect(device(100 + i)) for i in range(BURST_DEVICES)]
            try:
                burst = bench_burst(devs)
            finally:
                for d in devs:
                    release(d)

    print_table(n, warmup, rows, throughput, mode)
    print_extra(sparse, burst)


def main(argv=None):
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("-n", "--rounds", type=int, default=3000, help="timed round trips per row")
    ap.add_argument("--warmup", type=int, default=300, help="untimed round trips first")
    ap.add_argument("--no-gather", action="store_true", help=f"skip the {CONCURRENT}-task row")
    ap.add_argument("--sparse", type=int, default=200,
                    help="calls per sparse row, one every 10 ms (0 skips them)")
    ap.add_argument("--no-burst", action="store_true", help="skip the 1000-awaitable row")
    ap.add_argument("--mode", choices=["pinned", "free", "both"], default="both",
                    help="pinned to one CPU, unpinned, or pinned then unpinned")
    ap.add_argument("--trace", action="store_true",
                    help="run with the pyorv logger at DEBUG (a hexdump of every packet, "
                         "handed to a NullHandler): the cost of the wire trace")
    args = ap.parse_args(argv)
    n, warmup = max(1, args.rounds), max(0, args.warmup)
    if args.trace:
        logging.getLogger("pyorv").setLevel(logging.DEBUG)
        logging.getLogger("pyorv").propagate = False
        print("wire trace on: pyorv logger at DEBUG, records dropped by its NullHandler")

    cpus = os.sched_getaffinity(0)
    if args.mode in ("pinned", "both"):
        cpu = min(cpus)
        set_affinity({cpu})
        run(args, n, warmup, f"pinned to CPU {cpu} (headline)")
        set_affinity(cpus)
    if args.mode in ("free", "both"):
        if args.mode == "both":
            print()
        run(args, n, warmup, f"free: unpinned, {len(cpus)} CPUs")
    return 0


if __name__ == "__main__":
    sys.exit(main())

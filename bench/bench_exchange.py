"""Round-trip latency of one command, from Python, against the simulator on
loopback in this process.

    PYTHONPATH=build/py/stage python bench/bench_exchange.py [-n 3000]

Rows:
  floor      GET_DRIVER_INFO written on a plain socket and read back up to its
             CR LF: what Python, the kernel and the simulated firmware cost
  blocking   dev._echoPacketWithRetry(240, [0], timeout=3)
  awaitable  await dev._echoPacketWithRetry_async(240, [0]), one at a time on
             one event loop
  gather     32 awaitables in flight on one loop, one per connected device
             (the simulator answers two commands only, so independent
             exchanges are spread over devices rather than keys)

Figures only: nothing here passes or fails on a time.
"""

import argparse
import asyncio
import socket
import statistics
import sys
import time

import pyorv
import pyorv.sim as sim

DRIVER_INFO_PACKET = bytes([0x02, 0x00, 0x02, 0xF0, 0x00, 0x0D, 0x0A])
TARGET_BLOCKING = 1.5  # blocking p50 over the floor median, at most
TARGET_AWAITABLE = 3.0  # awaitable p50 over the floor median, at most
CONCURRENT = 32


def percentile(sorted_ns, q):
    if not sorted_ns:
        return float("nan")
    k = min(len(sorted_ns) - 1, max(0, round(q * (len(sorted_ns) - 1))))
    return sorted_ns[k]


def summary(samples_ns):
    s = sorted(samples_ns)
    return {"p50": statistics.median(s) / 1000.0, "p99": percentile(s, 0.99) / 1000.0}


def loopback_only(host):
    if not host.startswith("127."):
        sys.exit(f"bench_exchange: the simulator must be on loopback, not {host}")


class Floor:
    """GET_DRIVER_INFO on a plain socket, read up to the reply's CR LF."""

    def __init__(self, sim_dev):
        loopback_only(sim_dev.host)
        self.sock = socket.create_connection((sim_dev.host, sim_dev.cmd_port), timeout=5)
        self.sock.settimeout(None)  # plain blocking calls, no poll() ahead of each
        self.sock.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        assert sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)
        reply = self()
        if reply[3] != 0xF0:
            raise RuntimeError(f"unexpected reply {reply!r}")

    def __call__(self):
        s = self.sock
        s.sendall(DRIVER_INFO_PACKET)
        buf = s.recv(4096)
        while not buf.endswith(b"\r\n"):
            more = s.recv(4096)
            if not more:
                raise ConnectionError("the simulated device closed the link")
            buf += more
        return buf

    def close(self):
        self.sock.close()


def connect(sim_dev):
    loopback_only(sim_dev.host)
    dev = pyorv.ETHDevice(verbose=False)
    dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
    assert sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)
    return dev


def release(dev):
    dev.disconnect(verbose=False)
    dev.close(verbose=False)


def timed_blocking(call, count, out):
    clock = time.perf_counter_ns
    for _ in range(count):
        t0 = clock()
        call()
        out.append(clock() - t0)


async def timed_awaitable(dev, count, out):
    clock = time.perf_counter_ns
    for _ in range(count):
        t0 = clock()
        await dev._echoPacketWithRetry_async(240, [0])
        out.append(clock() - t0)


def bench_sequential(floor, dev, n, warmup, block=250):
    """The three sequential rows, run in turns of `block` round trips so that
    a slow spell of the machine falls on all of them alike."""
    blocking = lambda: dev._echoPacketWithRetry(240, [0], timeout=3)  # noqa: E731
    loop = asyncio.new_event_loop()
    try:
        timed_blocking(floor, warmup, [])
        timed_blocking(blocking, warmup, [])
        loop.run_until_complete(timed_awaitable(dev, warmup, []))
        out = {"floor": [], "blocking": [], "awaitable": []}
        done = 0
        while done < n:
            k = min(block, n - done)
            timed_blocking(floor, k, out["floor"])
            timed_blocking(blocking, k, out["blocking"])
            loop.run_until_complete(timed_awaitable(dev, k, out["awaitable"]))
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


def main(argv=None):
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("-n", "--rounds", type=int, default=3000, help="timed round trips per row")
    ap.add_argument("--warmup", type=int, default=300, help="untimed round trips first")
    ap.add_argument("--no-gather", action="store_true", help="skip the 32-task row")
    args = ap.parse_args(argv)
    n, warmup = args.rounds, args.warmup

    rows = []
    with sim.Simulator() as s:
        floor_dev = s.add_device(sim.DeviceConfig(model="Trellis", serial="BENCH001"))
        drv_dev = s.add_device(sim.DeviceConfig(model="Trellis", serial="BENCH002",
                                                mac="02:4F:52:56:00:02"))

        floor = Floor(floor_dev)
        dev = connect(drv_dev)
        try:
            seq = bench_sequential(floor, dev, n, warmup)
        finally:
            release(dev)
            floor.close()
        base = summary(seq["floor"])
        blk, awt = summary(seq["blocking"]), summary(seq["awaitable"])
        rows.append(("floor: raw socket", base, None, None))
        rows.append(("blocking _echoPacketWithRetry", blk, blk["p50"] / base["p50"],
                     TARGET_BLOCKING))
        rows.append(("awaitable, sequential", awt, awt["p50"] / base["p50"], TARGET_AWAITABLE))

        throughput = None
        if not args.no_gather:
            sims = [s.add_device(sim.DeviceConfig(model="Trellis", serial=f"BENCH{i + 100:03d}",
                                                  mac=f"02:4F:52:56:01:{i:02X}"))
                    for i in range(CONCURRENT)]
            devs = [connect(d) for d in sims]
            try:
                lat, throughput = bench_gather(devs, n, warmup)
                rows.append((f"awaitable, {CONCURRENT} in flight", summary(lat), None, None))
            finally:
                for d in devs:
                    release(d)

    print(f"GET_DRIVER_INFO round trips on loopback, {n} timed after {warmup} warm-up "
          f"(pyorv {pyorv.__version__}, Python {sys.version.split()[0]})")
    print(f"{'':34} {'p50 us':>9} {'p99 us':>9} {'p50/floor':>10} {'target':>8}")
    for name, st, ratio, target in rows:
        r = f"{ratio:9.2f}x" if ratio is not None else ""
        t = f"<= {target:g}x" if target is not None else ""
        verdict = ""
        if ratio is not None:
            verdict = "  met" if ratio <= target else "  MISSED"
        print(f"{name:34} {st['p50']:9.1f} {st['p99']:9.1f} {r:>10} {t:>8}{verdict}")
    if throughput is not None:
        print(f"{'':34} throughput with {CONCURRENT} in flight: {throughput:,.0f} round trips/s")
    return 0


if __name__ == "__main__":
    sys.exit(main())

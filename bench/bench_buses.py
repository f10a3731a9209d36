"""UART and CAN through the driver end to end, against the simulator on
loopback in this process.

    PYTHONPATH=build/dev/stage python bench/bench_buses.py [--uart-bytes 1000000] [--can-frames 200000]

Rows:
  UART stream     the simulated port sends n bytes flat out (records of 1024
                  bytes); the driver's stream thread moves them byte by byte to
                  the signal queue and one blocking UART_read takes them all
  CAN stream      the simulated controller sends n frames flat out (records of
                  100 frames); one blocking CAN_read takes them all
  CAN write+read  CAN_write then CAN_read(1) of the looped-back frame, one at a
                  time: frames/s of the round trip
  idle            the process's CPU time over 2 s, connected with nothing open
                  (the USB link's own reading: 1 ms transfers of the
                  simulated USB device), then with both UARTs and the CAN
                  controller open and their stream threads waiting: the
                  difference is the readers' share, near 0

Figures only: nothing here passes or fails on a time.
"""

import argparse
import asyncio
import time

import pyorv
import pyorv.sim as sim

START_CAN = 49


def rate(n, seconds):
    return n / seconds if seconds > 0 else float("inf")


def idle_cpu(label):
    c0, w0 = time.process_time(), time.perf_counter()
    time.sleep(2.0)
    cpu = (time.process_time() - c0) / (time.perf_counter() - w0)
    print(f"{label:<20} CPU {100 * cpu:6.2f} % of one core over 2 s")


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--uart-bytes", type=int, default=1_000_000)
    ap.add_argument("--can-frames", type=int, default=200_000)
    ap.add_argument("--round-trips", type=int, default=2000)
    args = ap.parse_args()

    with sim.Simulator() as s:
        sim_dev = s.add_device(sim.DeviceConfig(model="PloverCan", serial="BENCH001"))
        dev = pyorv.PloverCan(verbose=False)
        dev.connect(sim_dev.serial, verbose=False)
        try:
            idle_cpu("idle, nothing open")
            # UART: the flood starts with the port's reading.
            sim_dev.state_set("uart.flood.1", args.uart_bytes)
            t0 = time.perf_counter()
            dev.UART_open(1)
            got = dev.UART_read(1, args.uart_bytes)
            t = time.perf_counter() - t0
            print(f"UART stream      {len(got):>9} bytes   {rate(len(got), t) / 1e6:8.2f} MB/s")

            # CAN: records of 100 frames of counter bytes.
            sim_dev.state_set("can.loopback", True)
            dev.CAN_open(1)
            # The blocking CAN_start waits for an echo that never comes.
            asyncio.run(dev.CAN_start_async(1))
            records = args.can_frames // 100
            t0 = time.perf_counter()
            sim_dev.stream_records(START_CAN, bytes([0, 0]), records, 0, 1200)
            frames = dev.CAN_read(1, records * 100)
            t = time.perf_counter() - t0
            print(f"CAN stream       {len(frames):>9} frames  {rate(len(frames), t) / 1e3:8.1f} kframes/s")

            t0 = time.perf_counter()
            for i in range(args.round_trips):
                dev.CAN_write(1, i & 0x7FF, [i & 0xFF])
                dev.CAN_read(1, 1)
            t = time.perf_counter() - t0
            print(f"CAN write+read   {args.round_trips:>9} frames  {rate(args.round_trips, t):8.0f} frames/s")

            dev.UART_open(2)
            idle_cpu("idle, readers open")
        finally:
            dev.close(verbose=False)


if __name__ == "__main__":
    main()

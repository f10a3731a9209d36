"""Device objects, links and the command exchange, against simulated devices
over real loopback sockets and the virtual USB backend."""

import asyncio
import logging
import errno
import gc
import os
import re
import signal
import subprocess
import sys
import textwrap
import threading
import time

import pytest

import pyorv
import pyorv.sim as sim
from conftest import connect as conftest_connect
from conftest import refuses, sent, thread_ids, threads_gone, wait_until

SILENT = 120  # a command the simulated firmware never answers here


# ---- lifecycle and messages -------------------------------------------------------

def test_messages_of_a_network_device_and_a_with_statement(capsys, eth_sim):
    dev = pyorv.ETHDevice()
    dev.connect(eth_sim.host, eth_sim.cmd_port)
    dev.connect(eth_sim.host, eth_sim.cmd_port)  # already connected: nothing
    dev.disconnect()
    dev.disconnect()  # not connected: nothing
    dev.close()
    dev.close()  # closed: nothing
    assert capsys.readouterr().out.splitlines() == [
        "Opened handle (ETHDevice)",
        f"Connected to {eth_sim.host} (ETHDevice)",
        f"Disconnected from {eth_sim.host} (ETHDevice)",
        "Closed handle (ETHDevice)",
    ]
    assert dev.killed and dev._aliveThreads() == []
    with pyorv.ETHDevice() as dev:  # a with statement closes
        dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)
    assert dev.killed and dev._aliveThreads() == []
    assert capsys.readouterr().out.splitlines()[-1] == "Closed handle (ETHDevice)"


def test_connect_defaults_are_the_devices_own_ports():
    # What connect(ip) assumes, as help() shows it: commands on TCP_CMD_PORT.
    def default(method, name):
        return int(re.search(rf"{name}: [^=]*= (\d+)", method.__doc__)[1])

    assert default(pyorv.ETHDevice.connect, "port") == pyorv.TCP_CMD_PORT
    assert default(pyorv.WifiDevice.connect, "port2") == pyorv.TCP_CMD_PORT


def test_close_disconnects_with_its_own_message_and_never_connected_close(capsys, eth_sim):
    dev = pyorv.ETHDevice(verbose=False)
    dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)
    dev.close(verbose=False)
    assert capsys.readouterr().out == f"Disconnected from {eth_sim.host} (ETHDevice)\n"
    fresh = pyorv.ETHDevice(verbose=False)
    assert fresh._aliveThreads() == ["recv_cmd_thread"]
    fresh.close()
    assert capsys.readouterr().out == "Closed handle (ETHDevice)\n"
    assert fresh._aliveThreads() == []


def test_unconnected_reconnect_keeps_pools_and_failed_connect_can_be_retried(eth_sim):
    dev = pyorv.ETHDevice(verbose=False)
    with pytest.raises(pyorv.LinkNotOpenError):
        dev._echoPacketWithRetry(240, [0], timeout=0.3)
    with pytest.raises(pyorv.NetworkConnectionError) as info:
        dev.connect("127.0.0.1", 1, verbose=False)  # nothing listens on port 1
    assert info.value.code == -8002 and not dev.connect_status_cmd
    cause = info.value.__cause__  # the operating system's reason
    assert type(cause) is ConnectionRefusedError
    assert (cause.errno, cause.strerror) == (errno.ECONNREFUSED, os.strerror(errno.ECONNREFUSED))
    dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)
    dev._putToDataPool(240, b"kept")
    dev.disconnect(verbose=False)
    dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)
    assert dev.data_pool_echo == {240: b"kept"}
    assert dev._echoPacketWithRetry(240, [0], timeout=3) == b"kept"  # stale reply first
    assert wait_until(lambda: 240 in dev.data_pool_echo)  # the fresh one waits behind
    dev.disconnect(verbose=False)
    dev.close(verbose=False)
    with pytest.raises(pyorv.DeviceClosedError):
        dev._sendPacketWithoutReply(240, [0])


def test_garbage_collected_open_device_warns_and_is_closed(simulator):
    sim_dev = simulator.add_device(sim.DeviceConfig(model="KestrelDioX", serial="SIMGC001"))
    before = thread_ids()
    dev = pyorv.KestrelDioX(verbose=False)
    dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
    receiver = thread_ids() - before  # the receive thread and the DataLogger's writer
    assert len(receiver) == 2 and sim_dev.wait_for_host(sim.Channel.Cmd, 5.0)
    with pytest.warns(ResourceWarning,
                      match=rf"^unclosed device Kestrel-Dio_X at {re.escape(sim_dev.host)}:"):
        del dev
        gc.collect()
    assert threads_gone(receiver)  # the destructor joined both
    assert wait_until(lambda: not sim_dev.host_connected())


@pytest.mark.parametrize("cls, model", [
    ("ETHDevice", "Trellis"), ("WifiDevice", "HeronAin"), ("USBDevice", "PloverDio"),
    ("BroadcastDevice", None), ("KestrelDioX", "KestrelDioX"), ("HeronAin", "HeronAin"),
    ("PloverDio", "PloverDio"),
])
def test_connect_on_a_closed_device_is_refused_before_the_link(simulator, cls, model):
    dev = getattr(pyorv, cls)(verbose=False)
    dev.close(verbose=False)
    sim_dev = model and simulator.add_device(sim.DeviceConfig(model=model, serial="SIMCL001"))
    with pytest.raises(pyorv.DeviceClosedError) as info:
        if sim_dev:
            conftest_connect(dev, sim_dev)
        else:
            dev.connect(verbose=False)  # would bind the discovery port
    assert info.value.code == pyorv.errDeviceClosed
    assert dev._aliveThreads() == []
    if sim_dev and sim_dev.link != sim.Link.Usb:
        assert not sim_dev.host_connected()


def test_open_device_at_interpreter_exit_does_not_hang(tmp_path):
    script = textwrap.dedent("""
        import asyncio, pyorv, pyorv.sim as sim
        s = sim.Simulator()
        d = s.add_device(sim.DeviceConfig(model="Trellis"))
        dev = pyorv.ETHDevice(verbose=False)
        dev.connect(d.host, d.cmd_port, verbose=False)
        async def pending():
            dev._getReplyFromPool_async(12345)  # left pending at exit
            return await dev._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0])
        print(asyncio.run(pending())[:7])
        print("end of script")
    """)
    out = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True,
                         timeout=60)
    assert out.returncode == 0, out.stderr
    assert out.stdout.splitlines()[-1] == "end of script"


# Ctrl-C during a blocking call on the main thread, in a process of its own: each
# call would wait 30 s (the stream read for ever); the parent sends SIGINT.
INTERRUPTED = textwrap.dedent("""
    import sys, pyorv, pyorv.sim as sim
    s = sim.Simulator()
    d = s.add_device(sim.DeviceConfig(model="Trellis"))
    dev = pyorv.Trellis(verbose=False)
    dev.connect(d.host, d.cmd_port, verbose=False)
    d.faults.never_answer = {241}  # GET_DATE_TIME, the command of Sys_getRTC
    q = dev._streamQueue((pyorv.START_AI_STREAMING, 1, 0))
    finder = pyorv.BroadcastDevice(
        verbose=False, broadcast_addr=f"127.0.0.1:{s.start_discovery('127.0.0.1', 0)}")
    calls = {
        "exchange": lambda: dev.Sys_getRTC(timeout=30),
        "stream": lambda: dev._getStreamingFromPool(q, 5, 0.1),
        "broadcast window": lambda: (finder.connect(verbose=False),
                                     finder._broadcastPacket(pyorv.GET_DEVICE_INFO, [0])),
    }
    call = calls[sys.argv[1]]
    try:
        print("ready", flush=True)  # a SIGINT from here on is caught below
        call()
    except KeyboardInterrupt:
        print("interrupted", flush=True)
    d.faults.never_answer = set()
    print(len(dev.Sys_getRTC(timeout=3)), flush=True)  # the device is still usable
""")


@pytest.mark.parametrize("call", ["exchange", "stream", "broadcast window"])
def test_ctrl_c_interrupts_a_blocking_call(call):
    env = dict(os.environ, PYORV_BROADCAST_WINDOW="30")
    proc = subprocess.Popen([sys.executable, "-c", INTERRUPTED, call], env=env, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    watchdog = threading.Timer(40, proc.kill)  # a call Ctrl-C misses must not hang the suite
    watchdog.start()
    try:
        assert proc.stdout.readline() == "ready\n"
        time.sleep(0.5)  # the call is waiting now
        proc.send_signal(signal.SIGINT)
        start = time.monotonic()
        line = proc.stdout.readline()
        took = time.monotonic() - start
        # Read through the same buffered reader: readline may already hold the next line.
        out, err = proc.stdout.read(), proc.stderr.read()
        proc.wait(timeout=30)
    finally:
        watchdog.cancel()
    assert line == "interrupted\n", err
    assert took < 2
    assert out == "20\n" and proc.returncode == 0, err


# ---- the blocking exchange ---------------------------------------------------------

def test_driver_info_round_trip_with_wire_bytes(eth, eth_sim):
    # Arguments are checked before sending.
    refuses(eth_sim, ValueError, lambda: eth._echoPacketWithRetry(240, [0, 256], timeout=1))
    refuses(eth_sim, TypeError, lambda: eth._echoPacketWithRetry(240, {"a": 1}, timeout=1))
    reply = eth._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3)
    assert reply == eth_sim.config.driver_info.encode()
    (p,) = eth_sim.packets()
    assert (p.cmd, p.data, p.link) == (240, b"\x00", "cmd")
    assert eth._preparePacket(pyorv.GET_DRIVER_INFO, [0]) == [2, 0, 2, 0xF0, 0, 13, 10]
    assert eth._preparePacket(pyorv.AHRS_START) == [2, 0, 2, 0x24, 0x01, 13, 10]


def test_log_traces_packets_and_warns_of_missed_replies(eth, eth_sim, caplog):
    logger = logging.getLogger("pyorv")
    assert any(isinstance(h, logging.NullHandler) for h in logger.handlers)
    eth._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3)
    assert caplog.records == []  # the level was not lowered: nothing reaches the log
    with caplog.at_level(logging.DEBUG, logger="pyorv"):
        eth_sim.faults.drop_next = 1
        reply = eth._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=0.3)
    lines = [(r.levelno, r.getMessage()) for r in caplog.records]
    sent = (logging.DEBUG, "ETHDevice 127.0.0.1 > command 0xF0 (240), 7 bytes: 02 00 02 F0 00 0D 0A")
    assert lines == [
        sent,
        (logging.WARNING, "ETHDevice 127.0.0.1: no reply to command 0xF0 (240) within 0.1 s "
                          "(attempt 1 of 3)"),
        sent,
        (logging.DEBUG, f"ETHDevice 127.0.0.1 < command 0xF0 (240), {len(reply)} bytes: "
                        + " ".join(f"{b:02X}" for b in reply)),
    ]


# ---- the awaitable exchange -------------------------------------------------------

def test_awaitable_round_trip_and_concurrency(eth, eth_sim):
    async def main():
        # Different keys are independent exchanges, in flight together.
        return await asyncio.gather(
            eth._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0]),
            eth._echoPacket_async(122, [], timeout=2))

    info, serial = asyncio.run(main())
    assert info == eth_sim.config.driver_info.encode()
    assert serial.startswith(b"SIMETH01")


def test_awaitable_timeout_is_the_event_loop_error(eth, eth_sim):
    eth_sim.faults.never_answer = {SILENT}

    async def main():
        assert await eth._echoPacket_async(SILENT, [0], timeout=0.05) is None
        with pytest.raises(asyncio.TimeoutError) as info:
            await eth._echoPacketWithRetry_async(SILENT, [0], num_retries=1, timeout=1.1)
        assert not isinstance(info.value, pyorv.ReceivePacketTimeoutError)
        assert str(info.value) == "no reply to command 0x78 (120) within 1.1 s"

    asyncio.run(main())


def test_event_loop_keeps_running_during_an_exchange(eth, eth_sim):
    eth_sim.faults.delay_us = 200_000

    async def main():
        ticks = 0

        async def ticker():
            nonlocal ticks
            while True:
                await asyncio.sleep(0.01)
                ticks += 1

        t = asyncio.create_task(ticker())
        reply = await eth._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0])
        t.cancel()
        return reply, ticks

    reply, ticks = asyncio.run(main())
    assert reply and ticks >= 5


def test_cancelling_an_awaitable_stops_its_retries(eth, eth_sim):
    eth_sim.faults.never_answer = {SILENT}

    async def main():
        task = asyncio.ensure_future(eth._echoPacketWithRetry_async(SILENT, [0]))
        await asyncio.sleep(0.2)
        task.cancel()
        with pytest.raises(asyncio.CancelledError):
            await task
        await asyncio.sleep(1.2)  # an attempt would have been resent by now

    asyncio.run(main())
    assert sent(eth_sim, SILENT) == 1
    assert eth._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3)


def test_awaitables_never_wait_for_each_other(simulator):
    # Ten devices answering in 0.2 s: ten awaitables take one delay, not ten,
    # also after a warm-up call.
    sims = [simulator.add_device(sim.DeviceConfig(model="Trellis", serial=f"SIMQ{i:04d}"))
            for i in range(11)]
    devs = [pyorv.ETHDevice(verbose=False) for _ in sims]
    for dev, d in zip(devs, sims):
        dev.connect(d.host, d.cmd_port, verbose=False)
        d.faults.delay_us = 200_000
    silent, healthy = sims[10], devs[:10]
    silent.faults.never_answer = {SILENT}

    async def burst():
        await healthy[0]._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0])  # warm-up
        start = time.monotonic()
        await asyncio.gather(*(d._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0])
                               for d in healthy))
        return time.monotonic() - start

    async def behind_stuck_ones():
        stuck = [asyncio.ensure_future(devs[10]._getReplyFromPool_async(5000 + k))
                 for k in range(70)]
        await asyncio.sleep(0.3)  # every one is waiting now
        held = thread_ids()
        start = time.monotonic()
        await asyncio.wait_for(healthy[0]._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0]),
                               10)
        took = time.monotonic() - start
        for f in stuck:
            f.cancel()
        await asyncio.gather(*stuck, return_exceptions=True)
        return took, held

    threads = thread_ids()
    assert asyncio.run(burst()) < 1.2  # ten delays would be 2 s
    took, held = asyncio.run(behind_stuck_ones())
    assert took < 3
    assert not held - threads  # a pending awaitable holds no thread
    for dev in devs:
        dev.close(verbose=False)


def test_closing_the_device_fails_pending_futures(eth_sim):
    dev = pyorv.ETHDevice(verbose=False)
    dev.connect(eth_sim.host, eth_sim.cmd_port, verbose=False)

    async def main():
        fut = dev._getReplyFromPool_async(4242)
        await asyncio.sleep(0.05)
        dev.disconnect(verbose=False)
        dev.close(verbose=False)
        with pytest.raises(pyorv.DeviceClosedError):
            await asyncio.wait_for(fut, 5)

    asyncio.run(main())


def test_result_delivered_after_its_loop_closed_is_dropped(eth, eth_sim):
    eth_sim.faults.delay_us = 300_000
    loop = asyncio.new_event_loop()

    async def start():
        task = asyncio.ensure_future(eth._echoPacketWithRetry_async(pyorv.GET_DRIVER_INFO, [0]))
        await asyncio.sleep(0.05)  # the call now runs on a worker
        assert not task.done()
        return task

    loop.run_until_complete(start())
    loop.close()  # the worker completes into a closed loop and must survive it
    time.sleep(0.6)
    assert eth._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3)


# ---- streams, USB, a broadcast link --------------------------------------------------

def test_stream_records_routed_by_port_and_chip(eth, eth_sim):
    q = eth._streamQueue((pyorv.START_AI_STREAMING, 1, 0))
    # The port-2 records go first on the one link, whose records are routed in
    # arrival order: once the port-1 read has its three, port 2 has its two.
    eth_sim.stream_records(pyorv.START_AI_STREAMING, bytes([2, 0]), 2, 0, payload_len=4)
    eth_sim.stream_records(pyorv.START_AI_STREAMING, bytes([1, 0]), 3, 0, payload_len=4)
    assert len(eth._getStreamingFromPool(q, 3, 0.1)) == 12
    key = (pyorv.START_AI_STREAMING, 2, 0)
    assert eth.data_pool_strm[key].qsize() == 2

    async def main():
        return await eth._getStreamingFromPool_async(eth.data_pool_strm[key], 5, 0.1)

    assert len(asyncio.run(main())) == 8  # fewer than asked: what is there, no wait
    assert eth._getStreamingFromPool(q, -1, 0.1) == []


def test_usb_round_trip_through_the_virtual_backend(simulator, recwarn):
    usb = simulator.add_device(sim.DeviceConfig(model="KestrelAin", link=sim.Link.Usb,
                                                serial="SIMUSB01"))
    dev = pyorv.USBDevice(verbose=False)
    dev.connect("SIMUSB01", verbose=False)
    assert dev.serial_num == "SIMUSB01"
    assert dev._echoPacketWithRetry(pyorv.GET_DRIVER_INFO, [0], timeout=3) == \
        usb.config.driver_info.encode()
    with pyorv.USBDevice(verbose=False) as other:
        with pytest.raises(pyorv.USBConnectionError) as info:
            other.connect("NOSUCH", verbose=False)
    assert info.value.__cause__.errno == errno.ENODEV
    dev.disconnect(verbose=False)
    dev.close(verbose=False)
    assert dev._aliveThreads() == []


def test_close_after_a_failed_bind_ends_the_thread():
    import socket
    blocker = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    blocker.bind(("", pyorv.UDP_RECV_PORT))
    try:
        finder = pyorv.BroadcastDevice(verbose=False, broadcast_addr="127.0.0.1")
        with pytest.raises(pyorv.NetworkConnectionError) as info:
            finder.connect(verbose=False)
        assert info.value.__cause__.errno == errno.EADDRINUSE
        finder.close(verbose=False)  # must not wait on the socket that never bound
        assert finder._aliveThreads() == []
    finally:
        blocker.close()

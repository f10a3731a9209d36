"""Bring-your-own firmware: a simulated device whose answers come from a TCP
peer on loopback, through the device's own USB or TCP link."""

import asyncio
import socket
import threading

import pytest

import pyorv
import pyorv.sim as sim
from conftest import connect, wait_until

OPEN_I2C, READ_I2C, GET_PIN_MODE_OF_SLOT, GET_DRIVER_INFO = 144, 145, 127, 240
START_CAN = 49  # a streaming command: its records take the stream link


def packet(cmd, data):
    return bytes([2, 0, len(data) + 1, cmd]) + bytes(data) + b"\r\n"


class Peer:
    """A firmware on a socket: answers the driver info (after an unasked CAN
    stream record), the pin modes (all Idle),
    OPEN_I2C and READ_I2C (bytes counting from the read address), and keeps
    what it got."""

    def __init__(self):
        self.server = socket.create_server(("127.0.0.1", 0))
        self.address = f"127.0.0.1:{self.server.getsockname()[1]}"
        self.received = []
        self.conn = None
        self.thread = threading.Thread(target=self.serve)
        self.thread.start()

    def serve(self):
        self.conn, _ = self.server.accept()
        while head := self.conn.recv(3, socket.MSG_WAITALL):
            body = self.conn.recv(head[1] * 256 + head[2] + 2, socket.MSG_WAITALL)
            cmd, data = body[0], body[1:-2]
            self.received.append((cmd, data))
            if cmd == GET_DRIVER_INFO:
                self.conn.sendall(packet(START_CAN, [0, 0, 7, 8, 9]) + packet(cmd, b"Peer_1.0"))
            elif cmd == GET_PIN_MODE_OF_SLOT:
                self.conn.sendall(packet(cmd, [8, data[0], 0x11, 0x11, 0x11, 0x11]))
            elif cmd == OPEN_I2C:
                self.conn.sendall(packet(cmd, [data[0], 0]))
            elif cmd == READ_I2C:
                # Split in two writes: the device must reassemble the packet.
                reply = packet(cmd, [data[0], 0, data[2], *range(data[1], data[1] + data[2])])
                self.conn.sendall(reply[:5])
                self.conn.sendall(reply[5:])

    def close(self):
        if self.conn:
            self.conn.shutdown(socket.SHUT_RDWR)
        self.thread.join(timeout=5)
        self.server.close()


@pytest.fixture
def peer():
    p = Peer()
    yield p
    p.close()


def test_a_peer_serves_i2c_through_virtual_usb(simulator, peer):
    sim_dev = simulator.add_device(model="PloverDio", serial="PEER0001", firmware=peer.address)
    assert sim_dev.link == sim.Link.Usb
    dev = pyorv.PloverDio(verbose=False)
    try:
        connect(dev, sim_dev)
        assert dev.I2C_open(1) == 0
        assert dev.I2C_read(1, 0x30, 4) == [0x30, 0x31, 0x32, 0x33]
        assert asyncio.run(dev.I2C_read_async(1, 0x10, 2)) == [0x10, 0x11]
    finally:
        dev.close(verbose=False)
    expected = [(GET_PIN_MODE_OF_SLOT, bytes([0])), (OPEN_I2C, bytes([1])),
                (READ_I2C, bytes([1, 0x30, 4])), (READ_I2C, bytes([1, 0x10, 2]))]
    assert [(p.cmd, bytes(p.data)) for p in sim_dev.packets()] == expected  # still recorded
    simulator.remove_device(sim_dev)  # the peer sees the end of its stream
    peer.thread.join(timeout=5)
    assert not peer.thread.is_alive()
    assert peer.received == expected


@pytest.mark.parametrize("model", ["KestrelDioX", "HeronAin", "PloverAin"])
def test_a_peer_serves_any_model_and_link(simulator, peer, model):
    sim_dev = simulator.add_device(model=model, serial="PEER0005", firmware=peer.address)
    dev = getattr(pyorv, model)(verbose=False)
    try:
        connect(dev, sim_dev)
        stream_link = sim.Channel.Data if sim_dev.link == sim.Link.Wifi else sim.Channel.Cmd
        assert sim_dev.wait_for_host(stream_link, 5.0)  # a record with no host is dropped
        assert dev.Sys_getDriverInfo() == ["Peer", "1.0"]
        # The stream record reached the stream pool, over the data link on Wi-Fi.
        assert wait_until(lambda: dev._streamQueue(START_CAN).qsize() == 1)
        assert bytes(dev._streamQueue(START_CAN).get_nowait()) == bytes([7, 8, 9])  # its frames
    finally:
        dev.close(verbose=False)
    assert peer.received[-1] == (GET_DRIVER_INFO, bytes([0]))


def test_a_silent_peer_ends_the_call_by_its_timeout(simulator, peer):
    sim_dev = simulator.add_device(model="PloverDio", serial="PEER0002", firmware=peer.address)
    dev = pyorv.PloverDio(verbose=False)
    try:
        connect(dev, sim_dev)
        with pytest.raises(pyorv.ReceivePacketTimeoutError):
            dev.I2C_close(1, timeout=0.3)  # the peer does not answer CLOSE_I2C
    finally:
        dev.close(verbose=False)


@pytest.mark.parametrize("address", ["10.0.0.1:5000", "192.168.1.110:7", "example.com:80",
                                     "127.0.0.1", "127.0.0.1:0", "127.0.0.1:http"])
def test_only_a_loopback_peer_is_taken(simulator, address):
    with pytest.raises(ValueError, match="loopback"):
        simulator.add_device(model="PloverDio", serial="PEER0003", firmware=address)
    assert len(simulator) == 0


def test_no_peer_listening_refuses_the_device(simulator):
    with socket.create_server(("127.0.0.1", 0)) as s:
        port = s.getsockname()[1]
    with pytest.raises(OSError):
        simulator.add_device(model="PloverDio", serial="PEER0004", firmware=f"127.0.0.1:{port}")

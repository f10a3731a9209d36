"""
Simulated devices on loopback and virtual USB
"""
from __future__ import annotations
import collections.abc
import typing
__all__: list[str] = ['Channel', 'Context', 'DeviceConfig', 'Faults', 'Link', 'Packet', 'Request', 'SimDevice', 'Simulator', 'numbered_config', 'registered_commands', 'start']
class Link:
    """
    How a simulated device is reached.
    
    Members:
    
      Ethernet
    
      Wifi
    
      Usb
    """
    Ethernet: typing.ClassVar[Link]
    Usb: typing.ClassVar[Link]
    Wifi: typing.ClassVar[Link]
    __members__: typing.ClassVar[dict[str, Link]]
    @typing.overload
    def __eq__(self, other: Link) -> bool:
        ...
    @typing.overload
    def __eq__(self, other: typing.Any) -> bool:
        ...
    def __getstate__(self) -> int:
        ...
    def __hash__(self) -> int:
        ...
    def __index__(self) -> int:
        ...
    def __init__(self, value: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    def __int__(self) -> int:
        ...
    @typing.overload
    def __ne__(self, other: Link) -> bool:
        ...
    @typing.overload
    def __ne__(self, other: typing.Any) -> bool:
        ...
    def __repr__(self) -> str:
        ...
    def __setstate__(self, state: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    def __str__(self) -> str:
        ...
    @property
    def name(self) -> str:
        ...
    @property
    def value(self) -> int:
        ...
class Channel:
    """
    A link of a simulated device.
    
    Members:
    
      Auto
    
      Cmd
    
      Data
    
      Udp
    """
    Auto: typing.ClassVar[Channel]
    Cmd: typing.ClassVar[Channel]
    Data: typing.ClassVar[Channel]
    Udp: typing.ClassVar[Channel]
    __members__: typing.ClassVar[dict[str, Channel]]
    @typing.overload
    def __eq__(self, other: Channel) -> bool:
        ...
    @typing.overload
    def __eq__(self, other: typing.Any) -> bool:
        ...
    def __getstate__(self) -> int:
        ...
    def __hash__(self) -> int:
        ...
    def __index__(self) -> int:
        ...
    def __init__(self, value: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    def __int__(self) -> int:
        ...
    @typing.overload
    def __ne__(self, other: Channel) -> bool:
        ...
    @typing.overload
    def __ne__(self, other: typing.Any) -> bool:
        ...
    def __repr__(self) -> str:
        ...
    def __setstate__(self, state: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    def __str__(self) -> str:
        ...
    @property
    def name(self) -> str:
        ...
    @property
    def value(self) -> int:
        ...
class DeviceConfig:
    """
    What a simulated device is: model, link, serial, addresses (port 0: a free port).
    """
    driver_info: str
    gateway: str
    host: str
    ip_addr: str
    mac: str
    model: str
    serial: str
    subnet_mask: str
    def __init__(self, *, model: str = 'Trellis', link: typing.Any = None, serial: str = 'SIM00001', host: str = '127.0.0.1', cmd_port: typing.SupportsInt | typing.SupportsIndex = 0, data_port: typing.SupportsInt | typing.SupportsIndex = 0, driver_info: str = '', mac: str = '02:4F:52:56:00:01', ip_addr: str = '', subnet_mask: str = '255.255.255.0', gateway: str = '127.0.0.1', firmware: str = '') -> None:
        ...
    def __repr__(self) -> str:
        ...
    @property
    def cmd_port(self) -> int:
        ...
    @cmd_port.setter
    def cmd_port(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def data_port(self) -> int:
        ...
    @data_port.setter
    def data_port(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def firmware(self) -> str:
        """
        "127.0.0.1:PORT": a TCP peer on loopback serves the firmware; empty: the built-in handlers
        """
    @firmware.setter
    def firmware(self, arg0: str) -> None:
        ...
    @property
    def link(self) -> Link:
        ...
    @link.setter
    def link(self, arg1: typing.Any) -> None:
        ...
class Faults:
    """
    Faults a simulated device injects into its answers.
    """
    def clear(self) -> None:
        """
        back to a healthy device
        """
    @property
    def corrupt_next(self) -> int:
        """
        break the length field of the next N replies
        """
    @corrupt_next.setter
    def corrupt_next(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def delay_us(self) -> int:
        """
        delay every reply by this many us
        """
    @delay_us.setter
    def delay_us(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def drop_next(self) -> int:
        """
        swallow the next N replies
        """
    @drop_next.setter
    def drop_next(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def junk_bytes(self) -> int:
        """
        junk bytes written ahead of each packet
        """
    @junk_bytes.setter
    def junk_bytes(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def never_answer(self) -> set[int]:
        """
        commands the device ignores (recorded, never answered)
        """
    @never_answer.setter
    def never_answer(self, arg1: collections.abc.Set[typing.SupportsInt | typing.SupportsIndex]) -> None:
        ...
    @property
    def split_bytes(self) -> int:
        """
        write each packet in pieces of N bytes (TCP)
        """
    @split_bytes.setter
    def split_bytes(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def split_pause_us(self) -> int:
        """
        pause between split pieces, in us
        """
    @split_pause_us.setter
    def split_pause_us(self, arg1: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
class Packet:
    """
    A packet the simulated device received from the host.
    """
    def __repr__(self) -> str:
        ...
    @property
    def channel(self) -> Channel:
        ...
    @property
    def cmd(self) -> int:
        ...
    @property
    def data(self) -> bytes:
        ...
    @property
    def link(self) -> str:
        ...
    @property
    def time(self) -> float:
        """
        seconds on the clock of time.monotonic()
        """
class Request:
    """
    The command a handler answers.
    """
    @property
    def channel(self) -> Channel:
        ...
    @property
    def cmd(self) -> int:
        ...
    @property
    def data(self) -> bytes:
        ...
class SimDevice:
    """
    A running simulated device: its addresses, faults and packet record.
    """
    def __repr__(self) -> str:
        ...
    def clear_packets(self) -> None:
        """
        forgets the packets received so far
        """
    def close_link(self) -> None:
        """
        drops the host's connection, as a device that goes away
        """
    def host_connected(self, channel: Channel = ...) -> bool:
        """
        whether a host is connected on the channel
        """
    def packet_count(self) -> int:
        """
        how many packets were received
        """
    def packets(self) -> list[Packet]:
        """
        every packet received from the host, in order
        """
    def send(self, cmd: typing.SupportsInt | typing.SupportsIndex, data: typing.Any = b'', channel: Channel = ...) -> bool:
        """
        sends an unasked packet to the host
        """
    def set_fallback_handler(self, handler: typing.Any) -> None:
        """
        handler(ctx, req) for commands nobody handles; None: silent
        """
    def set_handler(self, cmd: typing.SupportsInt | typing.SupportsIndex, handler: typing.Any) -> None:
        """
        handler(ctx, req) for one command of this device; None removes it
        """
    def state_get(self, key: str, default: typing.Any = None) -> typing.Any:
        """
        a value of the device's key/value store (see the handler files)
        """
    def state_set(self, key: str, value: typing.Any) -> None:
        """
        sets a value of the device's key/value store
        """
    def stop_streams(self) -> None:
        """
        stops every stream
        """
    def stream_records(self, cmd: typing.SupportsInt | typing.SupportsIndex, prefix: typing.Any = b'', count: typing.SupportsInt | typing.SupportsIndex = 1, interval_us: typing.SupportsInt | typing.SupportsIndex = 0, payload_len: typing.SupportsInt | typing.SupportsIndex = 16) -> int:
        """
        send count records (prefix + counter bytes) on the streaming link; blocks until done
        """
    def wait_for_host(self, channel: Channel = ..., timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> bool:
        """
        waits until a host connects on the channel or timeout seconds passed; whether it did
        """
    def wait_for_packets(self, n: typing.SupportsInt | typing.SupportsIndex, timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> bool:
        """
        waits until n packets were received or timeout seconds passed; whether they were
        """
    @property
    def cmd_port(self) -> int:
        ...
    @property
    def config(self) -> DeviceConfig:
        ...
    @property
    def data_port(self) -> int:
        ...
    @property
    def faults(self) -> Faults:
        ...
    @property
    def handler_errors(self) -> int:
        ...
    @property
    def host(self) -> str:
        ...
    @property
    def ip_addr(self) -> str:
        ...
    @property
    def link(self) -> Link:
        ...
    @property
    def model(self) -> str:
        ...
    @property
    def periodic_count(self) -> int:
        ...
    @property
    def reboot_count(self) -> int:
        ...
    @property
    def running(self) -> bool:
        ...
    @property
    def serial(self) -> str:
        ...
    @property
    def subnet_mask(self) -> str:
        ...
class Context:
    """
    What a handler answers through.
    """
    @typing.overload
    def reply(self, data: typing.Any) -> None:
        """
        Answers the request with these payload bytes.
        """
    @typing.overload
    def reply(self, cmd: typing.SupportsInt | typing.SupportsIndex, data: typing.Any) -> None:
        """
        Answers with another command code.
        """
    def stream(self, cmd: typing.SupportsInt | typing.SupportsIndex, data: typing.Any) -> None:
        """
        Sends a record on the streaming link.
        """
    @property
    def device(self) -> SimDevice:
        ...
class Simulator:
    """
    Simulated devices on loopback; a `with` block stops them.
    """
    def __enter__(self) -> Simulator:
        ...
    def __exit__(self, *args) -> bool:
        ...
    def __init__(self) -> None:
        ...
    def __len__(self) -> int:
        ...
    def add_device(self, config: DeviceConfig | None = None, **kwargs) -> SimDevice:
        """
        Adds and starts a device: add_device(DeviceConfig) or add_device(model=..., ...).
        """
    def devices(self) -> list[SimDevice]:
        """
        the devices, in the order they were added
        """
    def find_device(self, serial: str) -> SimDevice:
        """
        the device with this serial, or None
        """
    def remove_device(self, device: SimDevice) -> None:
        """
        stops a device and removes it
        """
    def start_discovery(self, host: str = '127.0.0.1', port: typing.SupportsInt | typing.SupportsIndex = 61557, reply_port: typing.SupportsInt | typing.SupportsIndex = 6667) -> int:
        """
        answers discovery broadcasts on host:port, to reply_port
        """
    def stop(self) -> None:
        """
        stops every device and discovery
        """
    def stop_discovery(self) -> None:
        """
        stops answering broadcasts
        """
    @property
    def discovery_port(self) -> int:
        ...
def _stop_all() -> None:
    ...
def numbered_config(model: str, link: Link, index: typing.SupportsInt | typing.SupportsIndex) -> DeviceConfig:
    """
    the DeviceConfig of the index-th device (from 1) of a numbered set: serial SIM%05d, a MAC from the index
    """
def registered_commands() -> list[int]:
    """
    the command codes the simulated firmware answers
    """
def start(models: typing.Any = 'Trellis', link: typing.Any = 'eth', discovery: bool = False, host: str = '127.0.0.1') -> Simulator:
    """
    a started Simulator with one device per model (serials SIM00001, ...)
    """

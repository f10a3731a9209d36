"""Misuses a type checker must report: test_typing.py runs mypy --strict on
this file and expects an error on exactly the lines whose comment starts
with "error:"."""

import pyorv


async def misuse(dev: pyorv.KestrelDio) -> None:
    dev.DO_writePin(0, [0], [1])  # error: a misspelled method
    dev.DO_writePins("0", [0], [1])  # error: port is an int
    dev.DO_writePort(0, 1, timeout="3")  # error: timeout is a float
    await dev.DI_readPort_async(1, timeout=3)  # error: the twin has no timeout
    states: list[int] = dev.DI_readPort_async(1)  # error: a coroutine, not awaited
    count: int = dev.Counter_read(0)  # error: KestrelDio has no counter
    serial: int = dev.Sys_getSerialNumber()  # error: the serial number is text
    print(states, count, serial)

"""Correct use of the package as a type checker sees it: test_typing.py runs
mypy --strict on this file and expects no error, then runs it against the
simulator."""

import asyncio

import pyorv
import pyorv.sim


def blocking(dev: pyorv.KestrelDio) -> list[int]:
    written: int = dev.DO_writePins(0, [0, 2], [1, 1], timeout=2.5)
    mask_written: int = dev.DO_writePins(0, 0b101, 0b001)
    toggled: list[int] = dev.DO_togglePort(0)
    inputs: list[int] = dev.DI_readPins(1, [0, 3])
    modes: list[str] = dev.Sys_getPinModeInPort(1)
    serial: str = dev.Sys_getSerialNumber()
    address: list[str] = dev.Net_getIPAddrAndSubmask()
    pwm: int = dev.PWM_setFrequency(0, 1000.0)
    pin_map: dict[int, list[int]] = dev.DO_getPinMap()
    print(written, mask_written, toggled, inputs, modes, serial, address, pwm, pin_map)
    return dev.DI_readPort(1)


async def awaited(dev: pyorv.KestrelDio) -> list[int]:
    duty: int = await dev.PWM_setDutyCycle_async(1, 50.0)
    words: tuple[list[int], list[int], list[int]] = await dev.DIO_loadStartup_async(0)
    print(duty, words)
    return await dev.DI_readPort_async(1)


def main() -> None:
    with pyorv.sim.Simulator() as simulator:
        sim_dev = simulator.add_device(pyorv.sim.DeviceConfig(model="KestrelDio"))
        with pyorv.KestrelDio(verbose=False) as dev:
            dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
            states = blocking(dev)
            assert states == asyncio.run(awaited(dev))
        assert sim_dev.packet_count() > 0


if __name__ == "__main__":
    main()

"""The import-time check that each model class has the bases its line of the
model table asks for: the device class, then its bound modules in order."""
import pytest

import pyorv
from pyorv import _pyorv


# (Every model class passing: the check runs at import, before any test.)
@pytest.mark.parametrize("bases", [
    (pyorv.ETHDevice, pyorv.DataLogger, pyorv.SystemModule, pyorv.NetworkModule,
     pyorv.DIOModule),  # no relay
    (pyorv.ETHDevice, pyorv.DataLogger, pyorv.SystemModule, pyorv.NetworkModule,
     pyorv.RelayModule, pyorv.DIOModule),
    (pyorv.USBDevice, pyorv.DataLogger, pyorv.SystemModule, pyorv.NetworkModule,
     pyorv.DIOModule, pyorv.RelayModule),
    (pyorv.DataLogger, pyorv.ETHDevice, pyorv.SystemModule, pyorv.NetworkModule,
     pyorv.DIOModule, pyorv.RelayModule),  # the logger before the device: Trellis only
    (pyorv.ETHDevice, pyorv.SystemModule, pyorv.NetworkModule, pyorv.DIOModule,
     pyorv.RelayModule),  # no logger
])
def test_a_class_against_its_line_fails_the_import(monkeypatch, bases):
    monkeypatch.setattr(_pyorv, "KestrelRelay", type("KestrelRelay", bases, {}))
    with pytest.raises(ImportError) as e:
        _pyorv._checkModelClasses()
    named = "(" + ", ".join(b.__name__ for b in bases) + ")"
    assert str(e.value) == (
        f"pyorv: model class KestrelRelay has the bases {named}, but its line in models.def "
        "asks for (ETHDevice, DataLogger, SystemModule, NetworkModule, DIOModule, RelayModule)")

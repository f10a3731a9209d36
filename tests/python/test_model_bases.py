"""The import-time check that each model class has the bases its line of the
model table asks for: the device class, then its bound modules in order."""
import pytest

import pyorv
from pyorv import _pyorv


def test_every_model_class_passes():
    _pyorv._checkModelClasses()


@pytest.mark.parametrize("bases, named", [
    ((pyorv.ETHDevice, pyorv.SystemModule, pyorv.NetworkModule, pyorv.DIOModule),
     "(ETHDevice, SystemModule, NetworkModule, DIOModule)"),  # RelayModule left out
    ((pyorv.ETHDevice, pyorv.SystemModule, pyorv.NetworkModule, pyorv.RelayModule,
      pyorv.DIOModule), "(ETHDevice, SystemModule, NetworkModule, RelayModule, DIOModule)"),
    ((pyorv.USBDevice, pyorv.SystemModule, pyorv.NetworkModule, pyorv.DIOModule,
      pyorv.RelayModule), "(USBDevice, SystemModule, NetworkModule, DIOModule, RelayModule)"),
])
def test_a_class_against_its_line_fails_the_import(monkeypatch, bases, named):
    monkeypatch.setattr(_pyorv, "KestrelRelay", type("KestrelRelay", bases, {}))
    with pytest.raises(ImportError) as e:
        _pyorv._checkModelClasses()
    assert str(e.value) == (
        f"pyorv: model class KestrelRelay has the bases {named}, but its line in models.def "
        "asks for (ETHDevice, SystemModule, NetworkModule, DIOModule, RelayModule)")

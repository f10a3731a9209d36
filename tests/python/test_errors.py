"""The error and warning classes as a script sees them."""

import warnings

import pytest

import pyorv


# The packet timeout is also the builtin TimeoutError, so that one handler
# serves the blocking twin and the awaitable one.
@pytest.mark.parametrize(
    "cls, code, message, bases",
    [
        (pyorv.ReceivePacketTimeoutError, -8004, "Receive packet timeout.",
         (pyorv.Error, TimeoutError)),
        (pyorv.USBConnectionError, -8001,
         "Failed to connect to ORV DAQ. Please check USB plugin status and serial number.",
         (pyorv.Error,)),
        (pyorv.CANTXNotVaildError, -8903, "The CAN TX is not valid or is not recognized",
         (pyorv.Error,)),
        (pyorv.FirmwareEnableError, -7000, "The functionality is not enabled in the firmware",
         (pyorv.Error,)),
        (pyorv.MRDRPortNotAvaliable, -8900,
         "The drive port is not available or is already occupied by another process.",
         (pyorv.Error,)),
    ],
)
def test_default_text_code_and_constant(cls, code, message, bases):
    e = cls()
    assert (e.code, e.msg) == (code, message)
    assert str(e) == f"Error {code}: {message}"
    assert isinstance(e, pyorv.Error) and isinstance(e, Exception)
    assert type(e).__bases__ == bases


def test_constants_own_message_and_printed_error(capsys):
    assert pyorv.errPacketTimeout == -8004 and pyorv.warnAIOverflow == 520000
    e = pyorv.NetworkConnectionLostError("cable pulled")
    assert (e.code, e.msg, str(e)) == (-8003, "cable pulled", "Error -8003: cable pulled")
    pyorv.printGenericError(pyorv.ReceivePacketTimeoutError())
    assert capsys.readouterr().out == "ReceivePacketTimeoutError: Error -8004: Receive packet timeout.\n"


# (The status map itself: test_pools.cpp.)
@pytest.mark.parametrize("status, code, message", [
    (13, -7003, "The HAL error in the firmware."),
    ("13", -7028, "The other error in the firmware."),
])
def test_check_firmware_error(status, code, message):
    assert pyorv.checkFirmwareError(0) == 0
    with pytest.raises(pyorv.Error) as info:
        pyorv.checkFirmwareError(status)
    assert (info.value.code, info.value.msg) == (code, message)


def test_motion_family_is_a_warning_not_an_error(capsys):
    with warnings.catch_warnings(record=True):
        warnings.simplefilter("always")
        with pytest.raises(pyorv.ORVWarning):
            try:
                raise pyorv.MotionAxisError()
            except pyorv.Error:  # must not catch it
                pytest.fail("an Error handler caught a motion error")
    assert pyorv.MotionAxisError().code == -9100
    assert issubclass(pyorv.MotionAxisError, UserWarning)


def test_warning_reports_at_construction_unless_silent(capsys):
    with warnings.catch_warnings(record=True) as caught:
        warnings.simplefilter("always")
        w = pyorv.AIQueueOverflowWarning(silent=True)
        assert caught == [] and capsys.readouterr().out == ""
        assert (w.code, w.msg) == (520000, "Occurrence AI queue overflow.")
        pyorv.AIQueueOverflowWarning()
    out = capsys.readouterr().out
    assert "test_warning_reports_at_construction_unless_silent" in out  # the call stack
    assert [str(c.message) for c in caught] == ["Warning 520000: Occurrence AI queue overflow."]
    assert issubclass(caught[0].category, pyorv.ORVWarning)

"""Measurement: multimeter frames decoded into fields, the displayed number as
an exact decimal."""

import decimal
from decimal import Decimal

import pytest

from pyorv import Measurement


def frame(mode, rng, display, progress=0, f11=0, f12=0, f13=0):
    return bytes([Measurement._MODE.index(mode), ord(rng)]) + display.rjust(7).encode() + \
        bytes([progress // 10, progress % 10, f11, f12, f13])


@pytest.mark.parametrize("mode, rng, display, value, unit, display_unit", [
    ("DCV", "1", " 12.345", Decimal("12.345"), "V", "V"),
    ("DCV", "0", "-0.0012", Decimal("-0.0012"), "V", "V"),
    ("DCmV", "0", "123.4", Decimal("234000000000000000000000000.1"), "V", "mV"),  # rotated, not scaled
    ("OHM", "1", "1.234", Decimal("1234.000"), "Ω", "kΩ"),
    ("Hz", "5", "1.0000", Decimal("1.0000").rotate(6), "Hz", "MHz"),
    ("CAP", "0", "47.5", Decimal("47.5").rotate(-9), "F", "nF"),
    ("°C", "1", "23.5", Decimal("23.5"), "°C", "°C"),
])
def test_value_and_unit(mode, rng, display, value, unit, display_unit):
    m = Measurement(frame(mode, rng, display))
    assert (m.mode, m.range, m.display) == (mode, rng, display.replace(" ", ""))
    assert m.display_decimal == Decimal(display.strip())
    assert isinstance(m.value, Decimal) and m.value.as_tuple() == value.as_tuple()
    assert (m.unit, m.display_unit, m._data["unit"]) == (display_unit, display_unit, unit)
    assert m.overload is False


def test_rotation_against_the_host_decimal():
    # The exact digits of a rotation by each prefix, compared with decimal itself.
    for text in ["1.234", "-0.0012", "999.999", "0", "0.000", "12345.6"]:
        for mode, rng, exp in [("OHM", "1", 3), ("OHM", "4", 6), ("DCmV", "0", -3),
                               ("DCuA", "0", -6), ("CAP", "1", -9)]:
            m = Measurement(frame(mode, rng, text))
            want = Decimal(text).rotate(exp)
            assert m.value.as_tuple() == want.as_tuple() and str(m.value) == str(want)


def test_overload_keeps_the_prefix_and_gives_the_overflow_marker():
    m = Measurement(frame("OHM", "4", "OL"))
    assert m.overload is True
    assert isinstance(m.display_decimal, decimal.Overflow) and m.value is m.display_decimal
    assert m.unit == "MΩ" and m._data["unit"] == "MΩ"


@pytest.mark.parametrize("display, level", [("EF", 0), ("--", 2), ("-----", 5)])
def test_ncv_levels(display, level):
    m = Measurement(frame("NCV", "0", display))
    assert m.display_decimal == level and m.value == level and m._data["ncv"] is True


def test_flags_and_progress():
    m = Measurement(frame("DCV", "1", "1.0", progress=42, f11=0b1010, f12=0b0011, f13=0b1001))
    assert m.progress == 42
    assert (m.isMax, m.isMin, m.isHold, m.isRel) == (True, False, True, False)
    assert (m.isAuto, m.hasBatteryWarning, m.hasHVWarning) == (True, True, True)
    assert (m.isDC, m.isMaxPeak, m.isMinPeak, m.isBarPol) == (True, False, False, True)
    assert Measurement(frame("DCV", "1", "1.0", f12=0b100)).isAuto is False


def test_str_lines_and_labels():
    b = frame("OHM", "1", "1.234", f11=0b0100)
    m = Measurement(b)
    assert m.binary == b
    assert str(m).split("\n") == [
        "mode=OHM", "range=1", "display=1.234", "display_decimal=1.234", "display_unit=kΩ",
        "overload=False", "value=1234.000", "unit=kΩ", "isMax=False", "ismin=True",
        "isHold=False", "isRel=False", "isAuto=True", "hasBatteryWarning=False",
        "hashasHVWarning=False", "isDC=False", "isMaxPeak=False", "isMinPeak=False"]


def test_class_tables():
    assert len(Measurement._MODE) == 31 and Measurement._MODE[30] == "INRUSH"
    assert Measurement._EXPONENTS == {"M": 6, "k": 3, "m": -3, "u": -6, "n": -9}
    assert Measurement._UNITS["CAP"]["5"] == "mF" and "OL" in Measurement._OVERLOAD
    assert set(Measurement(frame("DCV", "1", "1"))._data) == {
        "binary", "mode", "range", "display", "overload", "ncv", "display_decimal",
        "display_unit", "unit", "decimal", "progres", "max", "min", "hold", "rel", "auto",
        "battery", "hvwarning", "dc", "peak_max", "peak_min", "bar_pol"}


@pytest.mark.parametrize("b, error", [
    (frame("DCV", "1", "1.0")[:13], IndexError),          # no byte 13
    (bytes([31]) + frame("DCV", "1", "1.0")[1:], IndexError),  # no such mode
    (frame("Live", "0", "1.0"), KeyError),                # a mode without units
    (frame("DCV", "7", "1.0"), TypeError),                # no unit for the range digit
    (frame("DCV", "1", "1.2.3"), decimal.InvalidOperation),
])
def test_bad_frames(b, error):
    with pytest.raises(error):
        Measurement(b)


@pytest.mark.parametrize("display", ["-OL", "O.L", "-.OL"])
def test_overload_texts_and_a_signed_rotation(display):
    assert Measurement(frame("DCmV", "0", display)).overload is True
    m = Measurement(frame("DCmV", "0", "-12.5"))
    assert m.value.as_tuple() == Decimal("-12.5").rotate(-3).as_tuple() and m.value < 0

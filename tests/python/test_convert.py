"""Wire conversions and argument checks exposed at module level."""

import math
import socket
import struct

import pytest

import pyorv

# ---------------------------------------------------------------------------
# Bytes to numbers


@pytest.mark.parametrize("name, data, expected", [
    # (the integer rows are checked against struct further down)
    ("convert2U8ToU16", (0, 1), 1), ("convert2U8ToU16", bytearray(b"\x01\x00"), 256),
    ("convert4U8ToF32", [0x3F, 0xC0, 0, 0], 1.5),
    ("convert4U8ToF32", [0x3D, 0xCC, 0xCC, 0xCD], struct.unpack(">f", b"\x3d\xcc\xcc\xcd")[0]),
    ("convert8U8ToF64", [0xC0, 0x24, 0, 0, 0, 0, 0, 0], -10.0),
    ("convert2U8ToU16", [True, False], 256),
])
def test_bytes_to_number(name, data, expected):
    result = getattr(pyorv, name)(data)
    assert result == expected
    assert type(result) is type(expected)


@pytest.mark.parametrize("name, width", [
    ("convert2U8ToU16", 2), ("convert4U8ToU32", 4), ("convert8U8ToU64", 8), ("convert2U8ToI16", 2),
    ("convert4U8ToI32", 4), ("convert8U8ToI64", 8), ("convert4U8ToF32", 4), ("convert8U8ToF64", 8),
])
@pytest.mark.parametrize("delta", [-1, 1])
def test_bytes_to_number_wrong_count(name, width, delta):
    with pytest.raises(ValueError, match=f"unpack requires a buffer of {width} bytes"):
        getattr(pyorv, name)([1] * (width + delta))


# ---------------------------------------------------------------------------
# Numbers to bytes, checked against the struct module

INT_ROWS = [
    ("convertU16To2U8", "convert2U8ToU16", ">H", 16, False),
    ("convertU32To4U8", "convert4U8ToU32", ">I", 32, False),
    ("convertU64To8U8", "convert8U8ToU64", ">Q", 64, False),
    ("convertI16To2U8", "convert2U8ToI16", ">h", 16, True),
    ("convertI32To4U8", "convert4U8ToI32", ">i", 32, True),
    ("convertI64To8U8", "convert8U8ToI64", ">q", 64, True),
]


def _wrapped(value, bits, signed):
    v = value % (1 << bits)
    if signed and v >= 1 << (bits - 1):
        v -= 1 << bits
    return v


# Floats are truncated toward zero first.
@pytest.mark.parametrize("to_name, from_name, fmt, bits, signed", INT_ROWS)
@pytest.mark.parametrize("value", [0, 1, -1, 255, 256, 32767, 32768, -32769, 70000, 2**31,
                                   -(2**31) - 1, 2**63, 2**64 + 5,
                                   2.9, -2.9, 65537.5, True, 1e19])
def test_int_rows_wrap_like_a_cast(to_name, from_name, fmt, bits, signed, value):
    expected = _wrapped(int(value), bits, signed)
    packed = getattr(pyorv, to_name)(value)
    assert type(packed) is bytes
    assert packed == struct.pack(fmt, expected)
    assert getattr(pyorv, from_name)(packed) == expected
    assert getattr(pyorv, from_name)(list(packed)) == expected


@pytest.mark.parametrize("to_name", [row[0] for row in INT_ROWS])
@pytest.mark.parametrize(
    "value, error",
    [("1", TypeError), ([1], TypeError), (None, TypeError), (math.nan, ValueError),
     (math.inf, ValueError)],
)
def test_int_rows_refuse(to_name, value, error):
    with pytest.raises(error):
        getattr(pyorv, to_name)(value)


@pytest.mark.parametrize(
    "value", [0.0, -0.0, 1.5, 0.1, -10.0, 1 / 3, 3.4028234663852886e38, 1e-45, 7, True]
)
def test_float_rows_match_struct(value):
    assert pyorv.convertF32To4U8(value) == struct.pack(">f", value)
    assert pyorv.convertF64To8U8(value) == struct.pack(">d", value)
    assert pyorv.convert8U8ToF64(pyorv.convertF64To8U8(value)) == float(value)


def test_float_rows_edges():
    assert pyorv.convertF32To4U8(1e40) == b"\x7f\x80\x00\x00"  # beyond float range: infinity
    assert pyorv.convertF32To4U8(-1e40) == b"\xff\x80\x00\x00"
    assert math.isnan(pyorv.convert4U8ToF32(pyorv.convertF32To4U8(math.nan)))
    assert pyorv.convertF64To8U8(2**70) == struct.pack(">d", 2**70)
    with pytest.raises(TypeError):
        pyorv.convertF32To4U8("1.0")


# ---------------------------------------------------------------------------
# Text and addresses


@pytest.mark.parametrize("data, expected", [
    ([0, 0, 0], ""), ([], ""), (list(b"abc"), "abc"), (b"ab\x00cd", "ab"), (b"\x00abc", ""),
    (list("1.0_é".encode()), "1.0_é"), (b"\xe2\x82\xac\x00\xf0\x9f\x98\x80", "€"),
])
def test_u8_list_to_str(data, expected):
    assert pyorv.convertU8ListToStr(data) == expected


@pytest.mark.parametrize("text", ["", "abc", "Aé€😀", "a\x00b", "Trellis_1.2"])
def test_str_to_u8_list_gives_code_points(text):
    assert pyorv.convertStrToU8List(text) == [ord(ch) for ch in text]


@pytest.mark.parametrize(
    "text", ["192.168.1.110", "192.168.5.79", "255.255.255.0", "0.0.0.0", "127.1", "10.1.258",
             "0x7f.1", "2130706433", "010.0.0.1"]
)
def test_ip_address_parses_like_inet_aton(text):
    result = pyorv.convertIPAddrTo4U8(text)
    assert type(result) is bytes
    assert result == socket.inet_aton(text)


@pytest.mark.parametrize(
    "text", ["", "256.1.1.1", "1.2.3.4.5", "a.b.c.d", "1..2.3", "192.168.1.-1"]
)
def test_ip_address_malformed(text):
    with pytest.raises(OSError, match="illegal IP address string passed to inet_aton"):
        pyorv.convertIPAddrTo4U8(text)


@pytest.mark.parametrize(
    "text", ["00:1A:2b:3C:4d:FF", "1:2:3", "abc", " a :0x1f:-1:+f:1_0:0x_f", "DE:AD:BE:EF:00:01:02"]
)
def test_mac_address_reads_hex_parts(text):
    assert pyorv.convertMACAddrTo6U8(text) == [int(part, 16) for part in text.split(":")]


# Bad text or a bad MAC part: the error names them as Python's own decoding does.
@pytest.mark.parametrize("ours, reference, data", [
    *[(lambda d: pyorv.convertU8ListToStr(list(d)), lambda d: d.decode("utf-8"), data)
      for data in (b"abc\xff", b"a\x00\x80", b"\xc0\x80", b"x\xe2\x82", b"\xe2\x28\xa1",
                   b"\xed\xa0\x80")],
    *[(pyorv.convertMACAddrTo6U8, lambda t: [int(part, 16) for part in t.split(":")], text)
      for text in ("00:zz:11", "00::11", "", "0x", "1__0", "0o1", "1 0")],
])
def test_bad_input_gives_pythons_error_text(ours, reference, data):
    with pytest.raises(ValueError) as ref:  # UnicodeDecodeError is a ValueError
        reference(data)
    with pytest.raises(ValueError) as err:
        ours(data)
    assert str(err.value) == str(ref.value)


# ---------------------------------------------------------------------------
# Bit helpers and bit lists


@pytest.mark.parametrize("call, expected", [
    (lambda: pyorv.clearBit(0b1111, 1), 0b1101), (lambda: pyorv.clearBit(0b1101, 1), 0b1101),
    (lambda: pyorv.fillBit(0b1000, 0), 0b1001), (lambda: pyorv.readBit(0b0100, 2), 1),
    (lambda: pyorv.readBit(0b0100, 1), 0), (lambda: pyorv.readBit(-1, 100), 1),
    (lambda: pyorv.writeBit(0, 3, 1), 8), (lambda: pyorv.writeBit(0, 3, True), 8),
    (lambda: pyorv.writeBit(0, 3, 1.0), 8), (lambda: pyorv.writeBit(8, 3, 0), 0),
    (lambda: pyorv.writeBit(8, 3, 2), 0), (lambda: pyorv.writeBit(8, 3, "1"), 0),
    (lambda: pyorv.changeToTrellisPort(1), 0), (lambda: pyorv.changeToTrellisPort(5), 4),
    (lambda: pyorv.changeToTrellisPort(2.0), 1.0),  # the numeric kind is kept
    (lambda: pyorv.convertIndexListToInt([1, 1]), 2),
])
def test_bit_helpers(call, expected):
    result = call()
    assert result == expected and type(result) is type(expected)


@pytest.mark.parametrize("value, width, expected", [
    (5, 8, [1, 0, 1, 0, 0, 0, 0, 0]), (5, 2, [1, 0]), (0, 0, []), (0, 3, [0, 0, 0]),
    (255, 4, [1, 1, 1, 1]), (True, 2, [1, 0]),
    (0xA5A5, 16, [1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 1, 0, 1]),
])
def test_int_to_binary_list(value, width, expected):
    assert pyorv.convertIntToBinaryList(value, width) == expected


@pytest.mark.parametrize("index_list, binary_list, expected", [
    ([0, 1, 2], [1, 0, 1], 5), ([4, 5, 6, 7], [1, 1], 0x30), ([0, 1, 2], [True, False, 5], 5),
    ([0, 1], [7, -3], 1), ((3,), (1,), 8), ([0, 1], [], 0),
])
def test_index_and_binary_lists_to_int(index_list, binary_list, expected):
    assert pyorv.convertIndexAndBinaryListsToInt(index_list, binary_list) == expected


@pytest.mark.parametrize("mask", [0, 1, 0b1010, 0xFFFF, 0x5A5A5A, 2**62])
def test_index_list_round_trip(mask):
    indices = pyorv.convertIntToIndexList(mask)
    assert indices == [i for i in range(63) if mask >> i & 1]
    assert pyorv.convertIndexListToInt(indices) == mask
    bits = pyorv.convertIntToBinaryList(mask, 63)
    assert pyorv.convertIndexAndBinaryListsToInt(list(range(63)), bits) == mask


# ---------------------------------------------------------------------------
# List shaping


@pytest.mark.parametrize("args, expected", [
    (([5, -1],), [1, 0]), (([True, False, 0],), [1, 0, 0]), (([5, 0.5, -1],), [1.0, 0.5, 0.0]),
    (([5, -1], 0.5, 1), [1.0, 0.5]), (([-300, 0, 300], -255, 255), [-255, 0, 255]), (([],), []),
])
def test_coerce(args, expected):
    result = pyorv.coerce(*args)
    assert result == expected
    assert [type(x) for x in result] == [type(x) for x in expected]


@pytest.mark.parametrize("values", [[5, -1, 0, 1], [0.25, 3.5, -2.0], [1, 2.5], [True, 7]])
def test_coerce_matches_a_clipped_array(values):
    np = pytest.importorskip("numpy")
    expected = np.clip(np.array(values), 0, 1).tolist()
    assert pyorv.coerce(values) == expected
    assert [type(x) for x in pyorv.coerce(values)] == [type(x) for x in expected]


@pytest.mark.parametrize("args, expected", [
    (([1, 2, 3], 8, 7), [1, 2, 3, 7, 7, 7, 7, 7]), ((list(range(10)),), list(range(8))),
    (([0.5],), [0.5, 0, 0, 0, 0, 0, 0, 0]), (((1, 2), 2), [1, 2]), (([1, 2, 3], 0), []),
])
def test_adjust_data_list(args, expected):
    assert pyorv.adjustDataList(*args) == expected


# ---------------------------------------------------------------------------
# Argument checks


DEFAULT = object()  # no type given: checkInputType's own default, int or list


@pytest.mark.parametrize("data, correct_type, ok", [
    *[(data, DEFAULT, True) for data in (0, -5, True, False, [], [1, "x"], 2**80)],
    *[(data, DEFAULT, False) for data in ("3", 3.0, (1,), None, b"\x01", {}, {1}, object())],
    ("x", str, True), (1, str, False), (1, bool, False), (True, bool, True),
    (1.5, (int, float), True), (1, (str, (float, int)), True), ((1,), tuple, True),
    ([1], tuple, False), (None, type(None), True), ({}, object, True), (b"", bytes, True),
    (1, int | list, True), ("x", int | list, False),
])
def test_check_input_type(data, correct_type, ok):
    args = (data,) if correct_type is DEFAULT else (data, correct_type)
    if ok:
        assert pyorv.checkInputType(*args) is None
    else:
        with pytest.raises(pyorv.InputTypeNotCorrectError) as err:
            pyorv.checkInputType(*args)
        assert err.value.code == pyorv.errInputTypeNotCorrect == -8008
        assert err.value.msg == "The data type is not valid or is not recognized."


@pytest.mark.parametrize("a, b, ok", [
    (1, 2, True), ([1], ["a"], True), ("a", "bc", True), ({}, {1: 2}, True), (True, 1, False),
    ([1], (1,), False), (1, 1.0, False), ({}, [], False), (None, 0, False),
])
def test_check_input_type_consistent(a, b, ok):
    if ok:
        pyorv.checkInputTypeConsistent(a, b)
    else:
        with pytest.raises(pyorv.InputTypeNotConsistentError) as err:
            pyorv.checkInputTypeConsistent(a, b)
        assert err.value.code == pyorv.errInputTypeNotConsistent == -8007


@pytest.mark.parametrize("args, kwargs, msg", [
    (([0, 256],), {}, "The input value is not the acceptable range."),
    (([-1],), {"msg": "pin out of range"}, "pin out of range"),
    (([10.5], 0, 10), {}, "The input value is not the acceptable range."),
    (([math.nan], -1.0, 1.0), {}, "The input value is not the acceptable range."),
    (([300, "x"],), {}, "The input value is not the acceptable range."),
])
def test_check_each_item_in_range(args, kwargs, msg):
    for good in [([],), ([0, 255],), (b"\x00\xff",), ([-10.0, 0.5, 10], -10, 10.0),
                 ([True, 1], 1, 1)]:
        assert pyorv.checkEachItemInRange(*good) is None
    with pytest.raises(pyorv.InputDataNotInRangeError) as err:
        pyorv.checkEachItemInRange(*args, **kwargs)
    assert err.value.code == pyorv.errInputDataNotInRange == -8009
    assert err.value.msg == msg


PIN_MAP = ["Idle", "UART", "Idle", "GPIO"]
ALLOWED = ["Idle", "UART"]


# The third cell of the failing checkPinMap case is outside the map: the walk stops first.
@pytest.mark.parametrize("check, cells, expected", [
    *[("checkFuncPinMap", cell, ok) for cell, ok in (((0, 0), True), ((0, 1), True),
                                                     ([1, 3], False), ((0, -1), False))],
    ("checkPinMap", [], True), ("checkPinMap", [(0, 0), (0, 1), (0, 2)], True),
    ("checkPinMap", [(0, 0), (0, 3), (0, 99)], False),
])
def test_check_pin_maps(check, cells, expected):
    assert getattr(pyorv, check)(cells, PIN_MAP, ALLOWED) is expected


# ---------------------------------------------------------------------------
# Refusals, and the conversion of Python values at the boundary

SELF_CONTAINING = []
SELF_CONTAINING.append(SELF_CONTAINING)


@pytest.mark.parametrize("call, error, match", [
    (lambda: pyorv.convert2U8ToU16([1, 256]), ValueError, ""),
    (lambda: pyorv.convert2U8ToU16([1, -1]), ValueError, ""),
    (lambda: pyorv.convert2U8ToU16([1, 1.0]), TypeError, ""),
    (lambda: pyorv.convert2U8ToU16("ab"), TypeError, ""),
    (lambda: pyorv.convertStrToU8List(5), TypeError, ""),
    (lambda: pyorv.convertStrToU8List(b"ab"), TypeError, ""),
    (lambda: pyorv.convertIPAddrTo4U8(0x7F000001), TypeError, ""),
    (lambda: pyorv.convertIPAddrTo4U8("1.2.3.4\x00"), ValueError, ""),
    (lambda: pyorv.fillBit(0, -1), ValueError, ""),
    (lambda: pyorv.clearBit(1.0, 0), TypeError, ""),
    (lambda: pyorv.readBit(1, 0.0), TypeError, ""),
    (lambda: pyorv.changeToTrellisPort("1"), TypeError, ""),
    # Negative values are refused, not looped on.
    (lambda: pyorv.convertIntToBinaryList(-1, 8), ValueError, "value_int must not be negative"),
    (lambda: pyorv.convertIntToIndexList(-3), ValueError, "value_int must not be negative"),
    (lambda: pyorv.convertIndexAndBinaryListsToInt([0], [1.0]), TypeError, ""),
    (lambda: pyorv.checkInputType(1, 5), TypeError, ""),
    (lambda: pyorv.checkInputType(1, "int"), TypeError, ""),
    (lambda: pyorv.checkEachItemInRange([1, "x"]), TypeError, ""),
    (lambda: pyorv.checkEachItemInRange(5), TypeError, ""),
    (lambda: pyorv.checkFuncPinMap((0, 4), PIN_MAP, ALLOWED), IndexError, ""),
    (lambda: pyorv.checkEachItemInRange([2**70]), OverflowError, "int too large for the device"),
    (lambda: pyorv.coerce([{}]), TypeError, ""),
    (lambda: pyorv.coerce({1, 2}), TypeError, ""),
    (lambda: pyorv.coerce([object()]), TypeError, ""),
    (lambda: pyorv.coerce(SELF_CONTAINING), RecursionError, ""),  # and no crash
])
def test_refusals(call, error, match):
    with pytest.raises(error, match=match):
        call()


def test_numpy_values_convert():
    np = pytest.importorskip("numpy")
    assert pyorv.convert2U8ToU16(np.array([1, 2], dtype=np.uint8)) == 258
    assert pyorv.convertU16To2U8(np.uint16(513)) == b"\x02\x01"
    assert pyorv.convertU64To8U8(np.uint64(2**64 - 1)) == b"\xff" * 8
    assert pyorv.convertF32To4U8(np.float32(1.5)) == b"\x3f\xc0\x00\x00"
    assert pyorv.coerce(np.array([3, -3])) == [1, 0]
    assert pyorv.writeBit(0, np.int32(2), np.bool_(True)) == 4
    pyorv.checkInputType(np.int64(3))
    with pytest.raises(pyorv.InputTypeNotCorrectError):
        pyorv.checkInputType(np.float32(3.0))

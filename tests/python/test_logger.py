"""DataLogger: rows to a CSV file through its writer thread, byte for byte as
the host's csv module writes them; the logger as a base of the model classes."""

import csv
import io
import random
import struct
from decimal import Decimal

import pytest

import pyorv
from conftest import thread_ids, threads_gone, wait_until


class Half(float):
    def __repr__(self):
        return "half"


ROWS = [
    ["time", "value", "note"],
    [0.1, 1e-05, 1e16, 1e+22, 1234567890123456.0, 0.0001, 5e-324, 1.7976931348623157e308],
    [-0.0, float("inf"), float("-inf"), float("nan"), 2.5, -123.456e-10, 100.0],
    [0, -7, 2**63, -(2**70), True, False, None],
    ["a,b", 'say "hi"', "line\nbreak", "cr\rhere", "ünï ✓", " lead", ""],
    [""],
    [None],
    [],
    "abc",
    [Half(0.5), Decimal("1.50"), b"\x00", (1, 2)],
]


def python_csv(rows):
    out = io.StringIO(newline="")
    csv.writer(out).writerows(rows)
    return out.getvalue().encode("utf-8")


@pytest.fixture
def logger():
    lg = pyorv.DataLogger()
    yield lg
    lg._Logger_close()


def test_rows_are_byte_exact_with_the_csv_module(logger, tmp_path):
    path = tmp_path / "log.csv"
    assert logger.Logger_openFile(str(path), verbose=False) == 0
    assert logger.Logger_writeHeader(ROWS[0]) == 0
    for row in ROWS[1:5]:
        assert logger.Logger_writeList(row) == 0
    assert logger.Logger_write2DList(ROWS[5:]) == 0
    assert logger._Logger_flush()
    assert path.read_bytes() == python_csv(ROWS)


def test_random_floats_read_as_repr(logger, tmp_path):
    rnd = random.Random(5)
    rows = [[struct.unpack("<d", rnd.randbytes(8))[0] for _ in range(50)] for _ in range(40)]
    rows += [[rnd.uniform(-1e6, 1e6) for _ in range(50)], [10.0 ** e for e in range(-30, 30)]]
    path = tmp_path / "r.csv"
    logger.Logger_openFile(str(path), verbose=False)
    logger.Logger_write2DList(rows)
    assert logger._Logger_flush()
    assert path.read_bytes() == python_csv(rows)


def test_value_rows_empty_matrix_and_append(logger, tmp_path):
    path = tmp_path / "log.csv"
    path.write_bytes(b"old\r\n")
    logger.Logger_openFile(path, clear_old=False, verbose=False)
    logger.Logger_writeValue(3.5)
    logger.Logger_write2DList([])
    logger.Logger_writeValue("x,y")
    assert logger._Logger_flush()
    assert path.read_bytes() == b'old\r\n3.5\r\n"x,y"\r\n'


def test_rows_wait_in_the_queue_until_a_file_opens(logger, tmp_path):
    logger.Logger_writeList([1, 2])
    assert not logger._Logger_flush(0.05)
    assert logger._save_data_queue_size == 1
    path = tmp_path / "late.csv"
    logger.Logger_openFile(str(path), verbose=False)
    assert logger._Logger_flush()
    assert path.read_bytes() == b"1,2\r\n" and logger.filename == str(path)


def test_open_prints_the_name_and_a_bad_path_raises(logger, tmp_path, capsys):
    path = tmp_path / "a.csv"
    logger.Logger_openFile(str(path))
    assert capsys.readouterr().out == f"Opened file name: ({path})\n"
    with pytest.raises(FileNotFoundError):
        logger.Logger_openFile(str(tmp_path / "missing" / "b.csv"))


def test_a_second_open_takes_the_new_file_then_raises(logger, tmp_path, capsys):
    first, second = tmp_path / "a.csv", tmp_path / "b.csv"
    logger.Logger_openFile(str(first), verbose=False)
    with pytest.raises(RuntimeError, match="release unlocked lock"):
        logger.Logger_openFile(str(second))
    assert capsys.readouterr().out == "" and logger.filename == str(second)
    logger.Logger_writeValue(1)
    assert logger._Logger_flush()
    assert second.read_bytes() == b"1\r\n" and first.read_bytes() == b""


def test_a_row_that_is_not_iterable_is_refused(logger):
    with pytest.raises(csv.Error, match="iterable expected, not int"):
        logger.Logger_write2DList([1, 2])
    assert logger._save_data_queue_size == 0


def test_close_ends_the_writer_and_later_rows_are_lost(tmp_path):
    before = thread_ids()
    lg = pyorv.DataLogger()
    assert wait_until(lambda: lg._save_data_thread_id != 0)
    assert str(lg._save_data_thread_id) in thread_ids() - before
    path = tmp_path / "c.csv"
    lg.Logger_openFile(str(path), verbose=False)
    lg.Logger_writeValue(1)
    assert lg._Logger_flush()
    writer = str(lg._save_data_thread_id)
    assert lg._Logger_close() == 0
    assert lg._save_data_thread_id == 0 and threads_gone({writer})
    lg.Logger_writeValue(2)
    assert path.read_bytes() == b"1\r\n"
    assert lg.queue_timeout == 999999


def test_model_close_frees_its_logger(pair, tmp_path):
    before = thread_ids()
    dev, _ = pair("KestrelTherm")
    path = tmp_path / "m.csv"
    dev.Logger_openFile(str(path), verbose=False)
    dev.Logger_writeList([dev.Thermal_open(1), 0.5])
    assert dev._Logger_flush()
    logger_thread = str(dev._save_data_thread_id)
    assert logger_thread in thread_ids() - before
    dev.close(verbose=False)
    assert dev._save_data_thread_id == 0 and threads_gone({logger_thread})
    assert path.read_bytes() == b"0,0.5\r\n"


@pytest.mark.parametrize("name", ["KestrelRes", "PloverTc", "HeronAin", "Trellis"])
def test_logger_stands_among_the_bases(name):
    cls = getattr(pyorv, name)
    bases = cls.__bases__
    device = {"KestrelRes": pyorv.ETHDevice, "PloverTc": pyorv.USBDevice,
              "HeronAin": pyorv.WifiDevice, "Trellis": pyorv.ETHDevice}[name]
    want = (pyorv.DataLogger, device) if name == "Trellis" else (device, pyorv.DataLogger)
    assert bases[:2] == want
    assert pyorv.DataLogger not in pyorv.MerlinDrive.__mro__


def test_rows_from_many_threads_each_land_whole(logger, tmp_path):
    import threading
    path = tmp_path / "t.csv"
    logger.Logger_openFile(str(path), verbose=False)

    def writer(k):
        for i in range(50):
            logger.Logger_write2DList([[k, i, "a"], [k, i, "b"]])

    threads = [threading.Thread(target=writer, args=(k,)) for k in range(4)]
    for t in threads:
        t.start()
    for t in threads:
        t.join()
    assert logger._Logger_flush()
    lines = path.read_bytes().split(b"\r\n")[:-1]
    assert len(lines) == 400
    assert sorted(lines[0::2]) == sorted(f"{k},{i},a".encode() for k in range(4) for i in range(50))
    assert all(b.endswith(b",b") and b[:-1] == a[:-1] for a, b in zip(lines[0::2], lines[1::2]))


@pytest.mark.parametrize("name", ["KestrelTherm", "Trellis"])
def test_killed_after_either_close(pair, name):
    dev, _ = pair(name)
    assert dev.killed is False
    dev._Logger_close()
    assert dev._save_data_thread_id == 0
    assert dev.Sys_getDriverInfo()  # the logger alone is closed: the device still answers
    dev.close(verbose=False)
    assert dev.killed is True

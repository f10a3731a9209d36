"""A continuous analog stream from a KestrelAin written to a CSV file by the
device's data logger, which writes on a thread of its own while the loop
reads on.

The file goes into --out (default: a new temporary folder):

    python examples/AI/AI_continuous_with_logger.py --out .
    python examples/AI/AI_continuous_with_logger.py --ip 192.168.1.110 --out /tmp/ai
"""

import csv
import tempfile

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["KestrelAin"]["AI"]
RATE = 1000  # samples per second
BLOCK = 250
CONTINUOUS_MODE = 2


def signals(sim_dev):
    sim_dev.state_set("ai.wave", [["sine", 1.0, 2.0, 0.0], ["const", 2.5]])


def main():
    args = _target.parse(__doc__, extra=lambda p: p.add_argument(
        "--out", metavar="FOLDER", help="where the CSV file goes (default: a new temporary folder)"))
    folder = pathlib.Path(args.out or tempfile.mkdtemp(prefix="orv_ai_"))
    path = folder / "AI_continuous.csv"
    written = 0
    with _target.open_device(pyorv.KestrelAin, args, sim_state=signals) as dev:
        dev.Logger_openFile(str(path))
        dev.Logger_writeHeader([f"ch{c} (V)" for c in range(8)])
        dev.AI_open(PORT)
        dev.AI_setMode(PORT, CONTINUOUS_MODE)
        dev.AI_setSamplingRate(PORT, RATE)
        dev.AI_start(PORT)
        for _ in range(_target.loops(args, 20, 3)):
            block = dev.AI_readStreaming(PORT, BLOCK, 2.0)
            dev.Logger_write2DList(block)
            written += len(block)
        dev.AI_stop(PORT)
        dev.AI_close(PORT)
        # Closing the device closes the file at once and drops rows the writer
        # has not taken yet: wait for it first.
        if not dev._Logger_flush(timeout=10.0):
            print("the logger is still writing: some rows will be missing")
    with open(path, newline="") as f:
        rows = list(csv.reader(f))
    print(f"logged {written} samples to {path}")
    print(f"the file holds a header and {len(rows) - 1} rows; channel 1 reads {rows[1][1]} V")


if __name__ == "__main__":
    main()

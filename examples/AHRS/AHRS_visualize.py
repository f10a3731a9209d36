"""The attitude of a HeronAinImu drawn as text: a bar per angle, refreshed a
few times; with matplotlib installed, the readings are also plotted to a PNG
file in --out (default: a new temporary folder).  No window opens.

The simulated unit swings in roll between readings:

    python examples/AHRS/AHRS_visualize.py
    python examples/AHRS/AHRS_visualize.py --ip 192.168.1.110 --out .
"""

import tempfile
import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["HeronAinImu"]["AHRS"]
ANGLES = 0  # estimate mode: roll, pitch, yaw
ROLLS = [-30.0, -15.0, 0.0, 15.0, 30.0, 15.0, 0.0, -15.0]
simulated = []


def keep(sim_dev):
    simulated.append(sim_dev)


def bar(angle, limit, width=36):
    """A bar centred on zero: '|' marks 0, '#' runs to the angle."""
    half = width // 2
    n = max(-half, min(half, round(angle / limit * half)))
    cells = [" "] * (width + 1)
    for i in range(min(0, n), max(0, n) + 1):
        cells[half + i] = "#"
    cells[half] = "|"
    return "".join(cells).rstrip()


def plot(readings, folder):
    try:
        import matplotlib
        matplotlib.use("Agg")  # files only, no window
        import matplotlib.pyplot as plt
    except ImportError:
        print("(matplotlib is not installed: no plot)")
        return
    fig, ax = plt.subplots(figsize=(6, 3))
    for i, name in enumerate(("roll", "pitch", "yaw")):
        ax.plot([r[i] for r in readings], marker="o", label=name)
    ax.set_xlabel("reading")
    ax.set_ylabel("degrees")
    ax.legend()
    path = folder / "AHRS_attitude.png"
    fig.savefig(path)
    plt.close(fig)
    print(f"plotted to {path}")


def main():
    args = _target.parse(__doc__, extra=lambda p: p.add_argument(
        "--out", metavar="FOLDER", help="where the PNG goes (default: a new temporary folder)"))
    pause = threading.Event()  # never set: wait() spaces the readings
    readings = []
    with _target.open_device(pyorv.HeronAinImu, args, sim_state=keep) as dev:
        dev.AHRS_open(PORT)
        dev.AHRS_start(PORT)
        for n in range(_target.loops(args, len(ROLLS), 4)):
            for sim_dev in simulated:  # the simulated unit swings
                sim_dev.state_set("ahrs.attitude", [ROLLS[n % len(ROLLS)], 5.0, 90.0])
            roll, pitch, yaw = dev.AHRS_getEstimate(PORT, ANGLES)
            readings.append((roll, pitch, yaw))
            print(f"roll  {roll:7.1f} {bar(roll, 90)}")
            print(f"pitch {pitch:7.1f} {bar(pitch, 90)}")
            print(f"yaw   {yaw:7.1f} {bar(yaw, 180)}")
            print()
            pause.wait(0.02 if args.quick else 0.5)
        dev.AHRS_stop(PORT)
        dev.AHRS_close(PORT)
    plot(readings, pathlib.Path(args.out or tempfile.mkdtemp(prefix="orv_ahrs_")))


if __name__ == "__main__":
    main()

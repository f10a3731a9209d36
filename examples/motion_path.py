"""Two interpolated moves of a simulated MerlinAxis, recorded and written out.

    python examples/motion_path.py [OUT_DIR]

Axes 0 and 1 first run a straight line to (4000, 3000), then a whole circle
of radius 2000 clockwise around the point 2000 pulses to the left of where
the line ended.  The simulator records the logical positions while the axes
move; the path goes to OUT_DIR/motion_path.csv (t, port, axis0..axis3), and
to OUT_DIR/motion_path.png when matplotlib is installed.  Without OUT_DIR a
new temporary directory is used.  Prints the files written.
"""

import csv
import os
import sys
import tempfile
import time

import pyorv
import pyorv.sim

PORT = 0


def wait_done(dev, axes, timeout=10.0):
    """Polls the move status of each axis until all report complete."""
    deadline = time.monotonic() + timeout
    while not all(dev.Motion_getMoveStatus(PORT, a) == 1 for a in axes):
        if time.monotonic() > deadline:
            raise TimeoutError("the move did not complete")


def run_moves(dev):
    dev.Motion_open(PORT)
    for a in (0, 1):
        dev.Motion_rstEncoderPosi(PORT, a, 0)
    dev.Motion_cfg2AxisLinearInterpo(PORT, 0, 4000, 1, 3000, 100000, 2000000, 2000000)
    dev.Motion_startLinearInterpo(PORT)
    wait_done(dev, (0, 1))
    # centre and finish point relative to the start: finish 0, 0 is a whole circle
    dev.Motion_cfgCircularInterpo(PORT, 0, 1, -2000, 0, 0, 0, 0, 100000)
    dev.Motion_startCircularInterpo(PORT)
    wait_done(dev, (0, 1))


def write_outputs(path, out_dir):
    csv_path = os.path.join(out_dir, "motion_path.csv")
    with open(csv_path, "w", newline="") as f:
        w = csv.writer(f)
        w.writerow(["t", "port", "axis0", "axis1", "axis2", "axis3"])
        w.writerows(path)
    written = [csv_path]
    try:
        import matplotlib
        matplotlib.use("Agg")
        import matplotlib.pyplot as plt
    except ImportError:
        return written
    fig, ax = plt.subplots(figsize=(5, 5))
    ax.plot([s[2] for s in path], [s[3] for s in path], ".-", markersize=2)
    ax.set_xlabel("axis 0 (pulses)")
    ax.set_ylabel("axis 1 (pulses)")
    ax.set_aspect("equal")
    ax.set_title("Simulated MerlinAxis: line, then circle")
    png_path = os.path.join(out_dir, "motion_path.png")
    fig.savefig(png_path, dpi=100)
    plt.close(fig)
    written.append(png_path)
    return written


def main(out_dir=None):
    out_dir = out_dir or tempfile.mkdtemp(prefix="motion_path_")
    os.makedirs(out_dir, exist_ok=True)
    with pyorv.sim.start(["MerlinAxis"], link="eth") as sim:
        sim_dev = sim.devices()[0]
        dev = pyorv.MerlinAxis(verbose=False)
        try:
            dev.connect(sim_dev.host, sim_dev.cmd_port, verbose=False)
            sim_dev.state_set("mcx514.path", [])  # a new recording
            run_moves(dev)
        finally:
            dev.disconnect(verbose=False)
            dev.close(verbose=False)
        path = sim_dev.state_get("mcx514.path")
    written = write_outputs(path, out_dir)
    for p in written:
        print(p)
    return written


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else None)

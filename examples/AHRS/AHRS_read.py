"""The attitude of a HeronAinImu's inertial unit: roll, pitch and yaw in
degrees, and the acceleration, read a few times while the unit runs.

The simulated unit is tilted 10 degrees in roll and -20 in pitch, heading 45:

    python examples/AHRS/AHRS_read.py
    python examples/AHRS/AHRS_read.py --ip 192.168.1.110
"""

import threading

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))  # the shared _target.py
import _target  # noqa: E402
import pyorv  # noqa: E402

PORT = pyorv.HANDLE_PROPERTIES["HeronAinImu"]["AHRS"]
ANGLES_AND_ACCELERATION = 2  # estimate mode
SAMPLING_PERIOD = 0.01  # seconds


def tilted(sim_dev):
    sim_dev.state_set("ahrs.attitude", [10.0, -20.0, 45.0])
    sim_dev.state_set("ahrs.acceleration", [1.70, -3.29, 9.06])


def main():
    args = _target.parse(__doc__)
    pause = threading.Event()  # never set: wait() spaces the readings
    with _target.open_device(pyorv.HeronAinImu, args, sim_state=tilted) as dev:
        dev.AHRS_open(PORT)
        dev.AHRS_setSamplingPeriod(PORT, SAMPLING_PERIOD)
        dev.AHRS_start(PORT)
        print("   roll    pitch      yaw  (deg)     ax      ay      az")
        for _ in range(_target.loops(args, 10, 3)):
            roll, pitch, yaw, ax, ay, az = dev.AHRS_getEstimate(PORT, ANGLES_AND_ACCELERATION)
            print(f"{roll:7.2f}  {pitch:7.2f}  {yaw:7.2f}        {ax:7.2f} {ay:7.2f} {az:7.2f}")
            pause.wait(0.02 if args.quick else 0.5)
        dev.AHRS_stop(PORT)
        dev.AHRS_close(PORT)


if __name__ == "__main__":
    main()

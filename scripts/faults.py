#!/usr/bin/env python3
"""Deliberate faults: proof that the test suite catches real mistakes.

Each fault is one small edit of the code (file, exact old text, new text).
For every fault the script applies the edit to a tree, rebuilds the dev build
(C++ tests, simulator and staged extension; incremental, ccache does the
rest), runs the C++ tests and then the Python tests, both stopping at the
first failure, records whether the suite caught the fault, and puts the file
back.  A fault whose old text is no longer in its file (the code moved on) is
reported as not applicable.

    scripts/faults.py [--tree DIR] [--only 3,7] [--jobs 1] [--out results.json]

The tree must have been configured and built once:
    cmake -S . -B build/dev -G Ninja -DORV_TESTS=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
import time
from pathlib import Path

# (what, file, old text, new text)
FAULTS = [
    ("I32 from bytes read with the wrong byte order",
     "src/link/convert.cpp",
     "return static_cast<int32_t>(static_cast<uint32_t>(readBE<4>(b)));",
     "return static_cast<int32_t>(__builtin_bswap32(static_cast<uint32_t>(readBE<4>(b))));"),
    ("payload byte check off by one (256 accepted)",
     "src/digital/payload.hpp",
     "if (i < 0 || i > 255) throw ValueError",
     "if (i < 0 || i > 256) throw ValueError"),
    ("model table: Trellis-style port map one port short",
     "src/models/table.cpp",
     "for (int port = 0; port <= 7; ++port)",
     "for (int port = 0; port < 7; ++port)"),
    ("blocking exchange makes one attempt instead of three",
     "src/link/device.cpp",
     "while (!value && count < NUM_RETRIES && timer < timeout) {",
     "while (!value && count < 1 && timer < timeout) {"),
    ("DI port check raises the DO port error",
     "src/digital/dio.cpp",
     "return checkPort(model().di_dict, port, ErrorId::DIPortNotAvaliableError);",
     "return checkPort(model().di_dict, port, ErrorId::DOPortNotAvaliableError);"),
    ("firmware status mapped to the neighbouring error code",
     "src/link/error.cpp",
     "row.firmware_status > 0 && row.firmware_status == status)",
     "row.firmware_status > 0 && row.firmware_status == status + 1)"),
    ("lost wake-up: a reply put in the echo pool notifies nobody",
     "src/link/pools.cpp",
     "  if (handler)\n    handler(std::move(data));\n  else\n    cv_.notify_all();",
     "  if (handler) handler(std::move(data));"),
    ("frame ends CR CR instead of CR LF",
     "src/link/framing.cpp",
     "pkt.push_back(static_cast<uint8_t>(CMD_LF));",
     "pkt.push_back(static_cast<uint8_t>(CMD_CR));"),
    ("serial number status read at offset 1 instead of 0",
     "src/services/system.cpp",
     "return c.exchangeStatus(SET_SERIAL_NUMBER, data_out, 0);",
     "return c.exchangeStatus(SET_SERIAL_NUMBER, data_out, 1);"),
    ("MOTION pool key built from the axis byte twice",
     "src/link/device.cpp",
     "(uint32_t{data[1]} << 8) | uint32_t{MOTION};",
     "(uint32_t{data[0]} << 8) | uint32_t{MOTION};"),
    ("bad default argument: network connect port",
     "src/bindings/bind_link.cpp",
     "py::arg(\"port\") = TCP_CMD_PORT, py::arg(\"verbose\") = true,",
     "py::arg(\"port\") = TCP_CMD_PORT + 1, py::arg(\"verbose\") = true,"),
    ("wrong message text on a network connect",
     "src/link/device_links.cpp",
     "announce(verbose, \"Connected to \" + ip_addr + \" (\" + deviceName() + \")\");",
     "announce(verbose, \"Connected with \" + ip_addr + \" (\" + deviceName() + \")\");"),
    ("simulator pads the serial number to 7 bytes",
     "sim/handlers_system.cpp",
     "s.resize(8, ' ');",
     "s.resize(7, ' ');"),
    ("close detaches the receive thread instead of joining it",
     "src/link/device.cpp",
     "      else\n        l->thread.join();",
     "      else\n        l->thread.detach();"),
    ("discovery reads the MAC one byte late",
     "src/services/discovery.cpp",
     "macText(&data_in[8])",
     "macText(&data_in[9])"),
    ("DIO whole-port mask misses pin 15",
     "src/digital/dio.cpp",
     "constexpr int64_t kWholePort = 0xFFFF;",
     "constexpr int64_t kWholePort = 0x7FFF;"),
    ("PWM float commands carry a stray byte before the value",
     "src/digital/pwm.cpp",
     "Bytes out{portByte(channel)};\n  appendF32(out, x);",
     "Bytes out{portByte(channel), 0};\n  appendF32(out, x);"),
    ("counter read takes its count from byte 4",
     "src/digital/counter.cpp",
     "std::min<size_t>(5, data_in.size())",
     "std::min<size_t>(4, data_in.size())"),
    ("broadcast answers classified by a zero first byte",
     "src/link/framing.cpp",
     "return (!data.empty() && data[0] == 1) ? CmdType::Broadcast : CmdType::Ignore;",
     "return (!data.empty() && data[0] == 0) ? CmdType::Broadcast : CmdType::Ignore;"),
    ("USB write sends the packet unpadded",
     "src/link/usb_client.cpp",
     "static_cast<int>(whole ? packet.size() : kPkt));",
     "static_cast<int>(packet.size()));"),
    ("Heron clock year counted from 1900",
     "src/services/system.cpp",
     "const int base = model().rtc_base_year;",
     "const int base = 1900;"),
    ("coerce clips integers one below the upper bound",
     "src/link/convert.cpp",
     "if (i > hi) i = hi;",
     "if (i > hi) i = hi - 1;"),
    ("simulator compares the set-IP MAC one byte early",
     "sim/discovery.cpp",
     "std::equal(mac, mac + 6, data.begin() + 9)",
     "std::equal(mac, mac + 6, data.begin() + 8)"),
    ("close no longer fails waiting exchanges",
     "src/link/device.cpp",
     "void Device::finishClose(std::initializer_list<Link*> links) {\n  echo_.close();",
     "void Device::finishClose(std::initializer_list<Link*> links) {"),
    ("broadcast target without a port goes to the receive port",
     "src/link/transport.cpp",
     "if (colon == std::string::npos) return {text, UDP_SEND_PORT};",
     "if (colon == std::string::npos) return {text, UDP_RECV_PORT};"),
    ("broadcast target port check off by one (65536 accepted)",
     "src/link/transport.cpp",
     "*end != '\\0' || port < 0 || port > 65535)",
     "*end != '\\0' || port < 0 || port > 65536)"),
    ("simulator cuts USB replies into overlapping transfers",
     "sim/usb_link.cpp",
     "for (size_t off = 0; off < bytes.size(); off += USB_PKT_SIZE) {",
     "for (size_t off = 0; off < bytes.size(); off += USB_PKT_SIZE - 1) {"),
    ("an awaitable's wait on its fiber never arms its deadline",
     "src/link/fiber.cpp",
     "      deadline == Clock::time_point::max()\n          ? 0",
     "      true\n          ? 0"),
    ("a reply handed to an awaitable's fiber is dropped instead of resuming it",
     "src/link/fiber.cpp",
     "if (reply) w->data = std::move(*reply);",
     "if (reply) return;"),
    ("the last caller leaving does not hand the socket back to the receive thread",
     "src/link/reader_role.cpp",
     "if (--callers_ == 0 && holder_ == Holder::None && !armed_) armLocked(true, held);",
     "--callers_;\n  (void)held;"),
    ("the receive thread registers its socket disarmed and never reads it",
     "src/link/reader_role.cpp",
     "ev.events = EPOLLONESHOT | (idle ? EPOLLIN : 0u);",
     "ev.events = EPOLLONESHOT;"),
    ("a reading caller files only the first record of what it read",
     "src/link/device.cpp",
     "    if (trace) tracePacket('<', p.cmd, p.data);",
     "    if (&p != &packets.front()) break;\n    if (trace) tracePacket('<', p.cmd, p.data);"),
]


def run(cmd, cwd, env=None, timeout=1800):
    """Runs a command quietly; returns (ok, its output)."""
    try:
        p = subprocess.run(cmd, cwd=cwd, env=env, stdout=subprocess.PIPE,
                           stderr=subprocess.STDOUT, text=True, timeout=timeout)
    except subprocess.TimeoutExpired:
        return False, "timed out"
    return p.returncode == 0, p.stdout.strip()


def build(tree, build_dir, jobs, *targets):
    cmd = ["nice", "-n", "19", "cmake", "--build", str(build_dir), "-j", str(jobs)]
    if targets:
        cmd += ["--target", *targets]
    # Paths relative to /work-like roots let worktrees share the compiler cache.
    env = dict(os.environ, CCACHE_BASEDIR=str(tree.parent), CCACHE_NOHASHDIR="1")
    return run(cmd, tree, env=env)


def isolated(cmd):
    """The command in a network namespace of its own (loopback only) when the
    system allows it: fixed ports such as the discovery receive port then
    never meet another test run on the machine."""
    if os.geteuid() == 0 and shutil.which("unshare") and shutil.which("ip"):
        return ["unshare", "-n", "sh", "-c", 'ip link set lo up && exec "$@"', "sh"] + cmd
    return cmd


def failed_tests(out):
    """The names of the failed tests in GoogleTest or pytest output."""
    names = []
    for line in out.splitlines():
        if line.startswith("[  FAILED  ]") and line.rstrip().endswith(" ms)"):
            name = line[len("[  FAILED  ]"):].split(" (")[0].split(", where")[0].strip()
        elif line.startswith(("FAILED ", "ERROR ")):
            name = line.split(" ", 1)[1].split(" - ")[0].strip()
        else:
            continue
        if name not in names:
            names.append(name)
    return names


def test(tree, build_dir, jobs):
    """(stage, detail): 'cpp' or 'python' and the failed tests for the suite
    that failed first, (None, "") when all pass, ('build', output) when a build
    fails.  Every C++ test runs, so a test that fails by chance shows beside
    the ones that catch the fault; the Python tests stop at the first failure.
    The extension is only rebuilt when the C++ tests pass."""
    ok, out = build(tree, build_dir, jobs, "orv_tests")
    if not ok:
        return "build", "\n".join(out.splitlines()[-15:])
    ok, out = run(isolated([str(build_dir / "orv_tests"), "--gtest_brief=1"]), tree, timeout=180)
    if not ok:
        names = failed_tests(out)
        return "cpp", ", ".join(names) if names else ("hang" if out == "timed out" else out[-300:])
    ok, out = build(tree, build_dir, jobs, "_pyorv")
    if not ok:
        return "build", "\n".join(out.splitlines()[-15:])
    env = dict(os.environ, PYTHONPATH=str(build_dir / "stage"))
    ok, out = run(isolated([sys.executable, "-m", "pytest", "-x", "-q", "-p", "no:cacheprovider",
                            "--timeout=120"]), tree / "tests" / "python", env=env, timeout=900)
    if not ok:
        names = failed_tests(out)
        return "python", ", ".join(names) if names else out[-300:]
    return None, ""


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    ap.add_argument("--tree", type=Path, default=Path(__file__).resolve().parent.parent)
    ap.add_argument("--build", type=Path, help="build dir (default TREE/build/dev)")
    ap.add_argument("--only", help="fault numbers, comma separated (1-based)")
    ap.add_argument("--jobs", type=int, default=1)
    ap.add_argument("--out", type=Path, help="write the results as JSON")
    ap.add_argument("--list", action="store_true", help="list the faults and stop")
    args = ap.parse_args()
    tree = args.tree.resolve()
    build_dir = (args.build or tree / "build" / "dev").resolve()

    if args.list:
        for n, (what, path, _, _) in enumerate(FAULTS, 1):
            print(f"{n:2}  {path:28} {what}")
        return 0
    numbers = range(1, len(FAULTS) + 1)
    if args.only:
        numbers = [int(x) for x in args.only.split(",")]

    results = []
    for n in numbers:
        what, rel, old, new = FAULTS[n - 1]
        path = tree / rel
        original = path.read_text()
        start = time.monotonic()
        if original.count(old) != 1:
            result, detail = "not applicable", f"old text found {original.count(old)} times"
        else:
            try:
                path.write_text(original.replace(old, new))
                stage, detail = test(tree, build_dir, args.jobs)
                result = {None: "MISSED", "build": "build failed"}.get(stage, f"caught ({stage})")
            finally:
                path.write_text(original)
        row = {"n": n, "what": what, "file": rel, "result": result, "by": detail,
               "seconds": round(time.monotonic() - start)}
        results.append(row)
        print(f"{n:2}  {result:17} {row['seconds']:5}s  {what}", flush=True)
        if detail:
            print("    " + detail.replace("\n", "\n    "), flush=True)
        if args.out:
            args.out.write_text(json.dumps(results, indent=1) + "\n")

    build(tree, build_dir, args.jobs)  # leave the build matching the restored tree
    caught = sum(r["result"].startswith("caught") for r in results)
    applicable = sum(r["result"] != "not applicable" for r in results)
    print(f"caught {caught} of {applicable} applicable faults")
    return 0


if __name__ == "__main__":
    sys.exit(main())

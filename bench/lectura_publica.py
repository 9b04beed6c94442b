#!/usr/bin/env python3
"""Times `veldix-cli info` on the largest record there can be beside public readers of tables on the same files.

    bench/lectura_publica.py build/release/src/batch/veldix-cli

veldix-cli is timed as a process of its own, start and JSON included; numpy and pandas (python3-numpy,
python3-pandas) are timed inside a process that runs already. All convert every sample by its channel's factors
and keep values and states.
"""

import subprocess
import sys
import tempfile
import time
from pathlib import Path

import numpy as np
import pandas as pd

SAMPLES, ANALOG, DIGITAL, ROUNDS = 32767, 64, 64, 7
A, B = 0.25, -3.0


def write(folder):
    rng = np.random.default_rng(1)
    counts = rng.integers(-32000, 32000, (SAMPLES, ANALOG), dtype=np.int16)
    words = rng.integers(0, 65536, (SAMPLES, DIGITAL // 16), dtype=np.uint16)
    states = np.unpackbits(words.view(np.uint8), axis=1, bitorder="little")
    heads = [np.arange(1, SAMPLES + 1), np.arange(SAMPLES) * 625]
    record = np.empty(SAMPLES, dtype=[("n", "<i4"), ("t", "<i4"), ("a", "<i2", ANALOG), ("d", "<u2", DIGITAL // 16)])
    record["n"], record["t"], record["a"], record["d"] = *heads, counts, words
    record.tofile(folder / "binary.dat")
    np.savetxt(folder / "ascii.dat", np.column_stack([*heads, counts, states]), "%d", ",", newline="\r\n")
    for kind in ("ASCII", "BINARY"):
        lines = ["BENCH,R", f"{ANALOG + DIGITAL},{ANALOG}A,{DIGITAL}D"]
        lines += [f"{i},A{i},,,A,{A},{B},0,-32767,32767" for i in range(1, ANALOG + 1)]
        lines += [f"{i},D{i},0" for i in range(1, DIGITAL + 1)]
        date = "01/02/03,04:05:06.000000"
        lines += ["50", "1", f"1600,{SAMPLES}", date, date, kind]
        (folder / f"{kind.lower()}.cfg").write_text("\r\n".join(lines) + "\r\n", newline="")
    return record.dtype


def best(*steps):
    times = [float("inf")] * len(steps)
    for _ in range(ROUNDS):
        for k, step in enumerate(steps):
            start = time.perf_counter()
            step()
            times[k] = min(times[k], time.perf_counter() - start)
    return times


def main():
    cli = sys.argv[1]
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        dtype = write(folder)

        def veldix(file):
            subprocess.run([cli, "info", folder / file], check=True, stdout=subprocess.DEVNULL)

        def binary():
            table = np.fromfile(folder / "binary.dat", dtype)
            values = table["a"].astype(np.float32) * np.float32(A) + np.float32(B)
            return values, np.unpackbits(table["d"].copy().view(np.uint8), axis=1, bitorder="little").astype(np.int16)

        def ascii_pandas():
            table = pd.read_csv(folder / "ascii.dat", header=None, dtype=np.int32).to_numpy()
            values = table[:, 2 : 2 + ANALOG].astype(np.float32) * np.float32(A) + np.float32(B)
            return values, table[:, 2 + ANALOG :].astype(np.int16)

        def ascii_numpy():
            return np.loadtxt(folder / "ascii.dat", np.int32, delimiter=",")

        steps = {
            "veldix-cli binary": lambda: veldix("binary.dat"),
            "numpy.fromfile": binary,
            "veldix-cli ascii": lambda: veldix("ascii.dat"),
            "pandas.read_csv": ascii_pandas,
            "numpy.loadtxt": ascii_numpy,
        }
        times = dict(zip(steps, best(*steps.values())))
        for own, others in (("veldix-cli binary", ["numpy.fromfile"]), ("veldix-cli ascii", ["pandas.read_csv", "numpy.loadtxt"])):
            for other in others:
                print(f"{own} {times[own] * 1e3:.0f} ms, {other} {times[other] * 1e3:.0f} ms, ratio {times[own] / times[other]:.2f}")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Writes the fuzz targets' first inputs into OUT/<target>/: the sample texts
the unit tests and scenarios use, so that fuzzing starts from inputs the
program is known to read and goes on from there."""

import pathlib
import struct
import sys

MEASURES = [
    "12'- 7 3/16\"", " 2'- 100 1/2\" sq.", " 1'- 0\" cu.", "3/16\"",
    "- 7 1/2\"", " 5'- 0\"", "6\"", "1/32\"", "0.", " 44\" sq.", " 3\" cu.",
    " 0\" sq.", "ERROR", "1e308", "-0", "  12.5  ", "7'", "7 '- 3 \"",
    "1/0\"", "99999999999999999999'", "5 1/2 sq", "3 cu",
]

NUMBERS = [0.0, -0.0, 1.0, -1.0, 0.5, 151.1875, 1 / 3, 1e15, -1e15, 1e300,
           5e-324, 32767.5, -32768.5, 2147483647.5, float("nan"),
           float("inf"), float("-inf")]

MEMORY_FILES = [
    "1200.5\r\n1201.5\r\n-2.5\r\n 99.49 \r\n3.5\r\n1934.5\r\n",
    "0\r\n0\r\n9600\r\n7200\r\n2\r\n1934\r\nMemory 1\r\n 5'- 6\"\r\n"
    "Memory 2\r\n 1'- 0\" sq.\r\n",
    "\r\nabc\r\n  \r\n-\r\nx5\r\n\r\n",
    "a\rb\nc\r\n\r\nlast",
    "0\n0\n100\n100\n32767\n1\nname\nvalue\n",
]

SETTINGS = [
    "[Settings]\r\nZoom=75\r\nAccuracy=32\r\nShowKeys=True\r\n"
    "[Colors]\r\nCalcBackGround=8421376\r\n",
    "; mine\n[settings]\nzoom = 100\n[Other]\nKey=Value\n",
    "[Settings]\rjunk\r[Colors]\nConvResult=1\r\n",
    "Accuracy=16\n[Settings\nCalcTop=-40000\n[Settings]\nCalcTop=12\n",
    "\xef\xbb\xbf[Settings]\nShowTape=False\nMemoryFolder=/home/u/jobs\n",
]

KEY_STREAMS = [
    b"12'6+3=", b"5'6\"*2=", b"7 1/2+3/16-1=", b"1/0=", b"\x1b12\x08\x083=",
    b"9999999999999999999*9999999999=", b"12\xff\x10+3\xff\x20=",
    b"\xff\x05\xff\x06\xff\x07" + b"3+4=",
]


def write(folder, name, data):
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_bytes(data)


def main():
    out = pathlib.Path(sys.argv[1])
    for i, text in enumerate(MEASURES):
        write(out / "measure", f"text{i}", text.encode("latin-1"))
    for i, x in enumerate(NUMBERS):
        write(out / "measure", f"number{i}", struct.pack("<d", x))
    for i, a in enumerate(MEASURES):
        b = MEASURES[(i * 7 + 3) % len(MEASURES)]
        write(out / "combine", f"pair{i}", f"{a}\0{b}".encode("latin-1"))
    for i, text in enumerate(MEMORY_FILES):
        write(out / "memory_file", f"file{i}", text.encode("latin-1"))
    for i, text in enumerate(SETTINGS):
        write(out / "settings", f"ini{i}", text.encode("latin-1"))
    for i, keys in enumerate(KEY_STREAMS):
        write(out / "keys", f"keys{i}", keys)


if __name__ == "__main__":
    main()

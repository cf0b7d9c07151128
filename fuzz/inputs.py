#!/usr/bin/env python3
"""Inputs of the fuzzing programs, one a line in hexadecimal: fuzz/saved/TARGET.txt has those that reach all that was
reached, fuzz/findings/TARGET.txt those that broke something once and stay.

    inputs.py seeds TARGET FOLDER     writes seeds from the golden drives as files
    inputs.py unpack TARGET FOLDER    writes the saved inputs and the findings as files
    inputs.py pack TARGET FOLDER      replaces the saved inputs by the files of a folder, the shortest first, as far as
                                      they have room
    inputs.py add TARGET FILE         adds one input, a finding that was put right
"""

import hashlib
import json
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
ROOM = {"link": 96, "update": 16, "packages": 40, "texts": 44, "logs": 44}  # KiB of saved inputs
CARS = ["jmce200n", "huida", "volkswagen", "xinhang", "mazda", "xinri", "honda", "nissan", "toyota", "gm", "haval", "gac",
        "venucia", "renault", "jeep"]  # in the order of their types, from 1
XINHANG = CARS.index("xinhang")
ORDERS = 40  # of one seed
WINDOW_SHARE = 8  # as in linkdrive.cpp

# Numbers of the orders in linkdrive.cpp.
(PACKAGE, NOISE, WAIT, LEAP, CLICK, ROW, APP, KEY, KEY_SET, MODE, DISK, SPOIL, LANGUAGE, TROUBLE, LEAVE, TOUCH, TAG, RESTART,
 OPEN) = range(1, 20)

# Behind the programs' names; of the files that hostilecommand.cpp lays out.
COMMANDS = [
    b"inspect a.orblog --filter cmd=0x20 --json", b"inspect a.hex --can-bus-type 7 --pattern (?<hex>.*)",
    b"keys a.orblog --key-command 0x20", b"convert a.orblog b.candump --can-bus-type 7",
    b"convert a.hex b.pcapng --frame raise", b"convert a.orblog b.csv --json",
    b"convert a.hex b.hex --pattern (?<time>\\S+) (?<dir>RX|TX) (?<hex>.*)", b"diff honda 7 --json",
    b"identify a.orblog --hello --seconds 1 --json", b"check a.scn --seconds 1 --json", b"check --list-ports",
    b"probe --can-bus-type 7 --frame 200201 --byte 0 --values --markdown",
    b"probe --all . --drives . --can-bus-type 7", b"record b.orblog --can-bus-type 7",
    b"replay a.orblog --speed max --loop --from 0.1 --to 2 --until call=x --wait-ack",
]
BOX_COMMANDS = [
    b"--type 7 --link l --scenario a.scn --log b --seed 4 --unpaced", b"--type CanBus_Raise_Honda --script a.script",
    b"--list", b"--box a.hex --type 1", b"--type 4 --script - --log -",
]


def rows(drive):
    """The rows of a golden trace."""
    return [json.loads(line) for line in drive.read_text().splitlines()]


def package(car, frame):
    """Command and data of a package in its frame."""
    command = 2 if car == XINHANG else 1
    return frame[command], frame[3:-1]


def script_lines(drive):
    """The commands that a drive's script gives, as words."""
    script = drive.with_suffix(".script")
    if not script.exists():
        return []
    lines = (line.split() for line in script.read_text().splitlines())
    return [words for words in lines if words and not words[0].startswith("#")]


def order_of(words, count):
    """A script's line as an order, or none."""
    number = int(words[1], 0) if len(words) > 1 and words[1][0].isdigit() else 0
    orders = {
        "show": [APP, 0, {769: 0, 770: 1, 771: 2}.get(number, 5), 0],
        "notify": [APP, 1, {20486: 0, 20512: 1, 20516: 2}.get(number, 3), 1],
        "state": [APP, 2, {4: 0, 0x1000000: 1, 0x2000000: 2}.get(number, 4), 0],
        "click": [CLICK, count % 8], "check": [CLICK, number], "row": [ROW, number * 3 + count % 3],
        "open": [OPEN, count % 3], "key": [KEY, count % 14, 1], "mode": [MODE, number], "language": [LANGUAGE, count % 4],
        "disk": [DISK, number + 2, 0], "wait": [LEAP, 4],
    }
    return orders.get(words[0])


def link_seeds():
    """Pieces of the golden drives, their packages and the orders at the unit."""
    for drive in sorted((ROOT / "scenarios").glob("*.trace")):
        car = CARS.index(drive.stem.split("-")[0])
        orders, seen, last = [], set(), 0.0
        for row in rows(drive):
            if row["call"] == "recvProtocolData" and row["args"][0] not in seen:
                seen.add(row["args"][0])
                command, data = package(car, bytes.fromhex(row["args"][0]))
                if row["t"] - last > 0.1:
                    orders.append([WAIT, 30])
                last = row["t"]
                orders.append([PACKAGE, command, len(data), *data])
        touches = [order for order in (order_of(words, i) for i, words in enumerate(script_lines(drive))) if order]
        for begin in range(0, max(len(orders), len(touches)), ORDERS // 2):
            piece = [[APP, 0, 0, 0], [OPEN, 0]] + orders[begin:begin + ORDERS // 2] + touches[begin:begin + ORDERS // 2]
            drive = b"".join(map(bytes, piece))
            yield bytes([car, 4]) + drive + bytes([-sum(drive) % WINDOW_SHARE]) # may open windows
    for trouble in range(7):
        yield bytes([8, 0, WAIT, 60, TROUBLE, trouble, PACKAGE, 0x20, 2, 1, 1, LEAP, 4, WAIT, 60, TROUBLE, 0, WAIT, 200])


def update_seeds():
    """Updates that go well, and those that do not."""
    begin = [PACKAGE, 0x0A, 2, 0, 1, WAIT, 60, DISK, 2, 0, CLICK, 1, CLICK, 0, PACKAGE, 0x08, 1, 1]
    ask = [[PACKAGE, 0x08, 6, 2, 0, 0, 0, 0, number] for number in range(3)]
    end = [PACKAGE, 0x08, 1, 3]
    yield bytes([4] + begin + sum(ask, []) + end + [LEAP, 7, CLICK, 1])
    yield bytes([4] + begin + ask[2] + [SPOIL, 0] + ask[1] + [SPOIL, 1] + ask[1] + [DISK, 0] + end)
    yield bytes([4] + begin + ask[0] + [TROUBLE, 2, LEAP, 4, TROUBLE, 0, WAIT, 100] + ask[1] + [LEAP, 7, CLICK, 0])
    for kind in range(12):
        yield bytes([0] + begin[:9] + [kind] + begin[10:] + ask[1] + end)


def packages_seeds():
    """The packages of each golden drive without their frames, some at a time."""
    for drive in sorted((ROOT / "scenarios").glob("*.trace")):
        car = CARS.index(drive.stem.split("-")[0])
        frames = sorted({row["args"][0] for row in rows(drive) if row["call"] == "recvProtocolData"})
        for begin in range(0, len(frames), 30):
            seed = bytes([car])
            for frame in frames[begin:begin + 30]:
                command, data = package(car, bytes.fromhex(frame))
                seed += bytes([command, len(data)]) + data
            yield seed


def log_seeds():
    """The beginning of each log."""
    for log in sorted((ROOT / "scenarios" / "logs").iterdir()):
        yield b"\x01" + log.read_bytes()[:1500]


def text_seeds():
    """Lines of drives and scripts, command lines and settings; the first byte names the reader."""
    for drive in sorted((ROOT / "scenarios").glob("*.scn")):
        car = CARS.index(drive.stem.split("-")[0])
        text = drive.read_bytes()
        yield bytes([0, car]) + text[:400]
        yield bytes([0, car]) + text[-400:]
        for line in text.splitlines()[4:16]:
            yield bytes([1, car]) + line.split(b" ", 1)[-1].strip()
    for script in sorted((ROOT / "scenarios").glob("*.script")):
        yield b"\x02\x08" + script.read_bytes()[:400]
    yield b"\x03\x00; a file by hand\n[CarSetting]\n80=1\ntext = \"a\\u0041\"\n"
    for line in (b"--can-bus-type 9 --tag 0x10001=3 --factory A=1,2 --headless --trace -",
                 b"--virtual-clock 2026-01-01T12:00:00 --product ScreenSize=800x480 --script x --strict --seed 4",
                 b"replay log --speed 0.1 --from 1 --until call=setTemperature", b"--key-redef 2 --port /dev/null"):
        yield b"\x04\x00" + line.replace(b" ", b"\0")
    for line in (b"cmd=0x28 changed call=setTemp*", b"type=3 | cmd!=1..5"):
        yield b"\x05\x00" + line
    for line in COMMANDS:
        yield b"\x06\x00" + line.replace(b" ", b"\0")
    for line in BOX_COMMANDS:
        yield b"\x07\x00" + line.replace(b" ", b"\0")


SEEDS = {"link": link_seeds, "update": update_seeds, "packages": packages_seeds, "logs": log_seeds, "texts": text_seeds}


def write_files(inputs, folder):
    """Each input as a file that is called as its content says."""
    folder.mkdir(parents=True, exist_ok=True)
    for data in inputs:
        (folder / hashlib.sha1(data).hexdigest()).write_bytes(data)


def read(folder, target):
    """The inputs of a target in a folder."""
    file = ROOT / "fuzz" / folder / (target + ".txt")
    return [bytes.fromhex(line) for line in file.read_text().split()] if file.exists() else []


def write(folder, target, inputs):
    """Writes the inputs of a target."""
    file = ROOT / "fuzz" / folder / (target + ".txt")
    file.parent.mkdir(exist_ok=True)
    file.write_text("".join(data.hex() + "\n" for data in inputs))


def pack(target, folder):
    """Saves the inputs of a folder."""
    kept, size = [], 0
    for data in sorted((file.read_bytes() for file in folder.iterdir()), key=lambda data: (len(data), data)):
        size += 2 * len(data) + 1
        if data and size <= ROOM[target] * 1024:
            kept.append(data)
    write("saved", target, kept)


def main():
    """Does what the command line says."""
    if len(sys.argv) != 4 or sys.argv[2] not in SEEDS:
        sys.exit(__doc__)
    command, target, path = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
    if command == "seeds":
        write_files(SEEDS[target](), path)
    elif command == "unpack":
        write_files(read("saved", target) + read("findings", target), path)
    elif command == "pack":
        pack(target, path)
    elif command == "add":
        write("findings", target, read("findings", target) + [path.read_bytes()])
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()

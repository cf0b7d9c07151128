"""tools/new-car in a copy of the tree: newcar.py SOURCE_FOLDER BUILD_FOLDER

Its files compile with the build's own flags, against the headers as they are; a rule names each file that is to be filled in;
its drives can be played; and what it refuses leaves nothing behind."""

import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

SOURCE, BUILD = (pathlib.Path(path).resolve() for path in sys.argv[1:])
COPIED = ["plugin", "workbench", "tests", "scenarios", "tools", "README.md"]
NAMED = {  # a built source and the one of the new car that is compiled like it
    "plugin/raise/canbus_raise_toyota.cpp": "plugin/raise/canbus_raise_probe.cpp",
    "workbench/decoderbox/speakers/toyotaspeaker.cpp": "workbench/decoderbox/speakers/probespeaker.cpp",
    "workbench/decoderbox/boxcatalog.cpp": "workbench/decoderbox/boxcatalog.cpp",
}
REFUSED = [
    (["probe", "--type", "99"], "cannot be part of a class name"),
    (["Pro-be", "--type", "99"], "cannot be part of a class name"),
    (["Probe", "--type", "9"], "has an adapter already: CanBusTypeRaiseToyota"),
    (["Probe", "--type", "0"], "is no CAN-bus type"),
    (["Probe", "--type", "foo"], "is no CAN-bus type"),
    (["Toyota", "--type", "99"], "a car called toyota already"),
    (["Probe", "--type", "99", "--log", "scenarios/README.md"], "is no log"),
    (["Probe", "--type", "99", "--log", "nowhere.orblog"], "there is no nowhere.orblog"),
]


def run(tree, *command):
    return subprocess.run(command, cwd=tree, env={**os.environ, "CANBUS_BUILD": str(BUILD)}, capture_output=True, text=True)


def demand(condition, what):
    if not condition:
        sys.exit(f"newcar: {what}")


def copy_tree(folder):
    tree = pathlib.Path(folder, "tree")
    tree.mkdir()
    for name in COPIED:
        copy = shutil.copytree if (SOURCE / name).is_dir() else shutil.copy
        copy(SOURCE / name, tree / name)
    (tree / "platform").symlink_to(SOURCE / "platform")
    return tree


def contents(tree):
    return {str(path.relative_to(tree)): path.read_bytes() for name in COPIED
            for path in ([tree / name] if (tree / name).is_file() else (tree / name).rglob("*")) if path.is_file()}


def compile_commands(tree):
    """The build's own commands with the new car's files in place of built ones; they look, and write nothing."""
    with open(BUILD / "compile_commands.json", encoding="utf-8") as file:
        built = {entry["file"]: entry for entry in json.load(file)}
    for old, new in NAMED.items():
        entry = built[str(SOURCE / old)]
        words = shlex.split(entry["command"])
        if pathlib.Path(words[0]).name == "ccache":
            del words[0]
        output = words.index("-o")
        del words[output:output + 2]
        words = [re.sub(rf"{re.escape(str(SOURCE))}/(plugin|workbench)\b", rf"{tree}/\1", word) for word in words]
        words[words.index(str(tree / old))] = str(tree / new)
        yield new, entry["directory"], words + ["-fsyntax-only"]


def check_compiles(tree):
    running = [(name, subprocess.Popen(words, cwd=folder, stderr=subprocess.PIPE, text=True))
               for name, folder, words in compile_commands(tree)]
    for name, process in running:
        errors = process.communicate()[1]
        demand(process.returncode == 0, f"{name} does not compile:\n{errors}")


def check_rules(tree, written):
    """Each file is red while it has a mark; without the marks nothing else is wrong with it."""
    red = run(tree, "sh", "tests/rules/source_rules.sh", ".")
    marked = [path for path in written if "scenarios/README" not in path and "canbustype" not in path
              and "boxcatalog" not in path and "speaker.h" not in path]
    for path in marked:
        demand(f"{path}:" in red.stderr, f"no rule says that {path} is to be filled in")
    for path in written:
        text = (tree / path).read_text(encoding="utf-8")
        (tree / path).write_text(text.replace("FILL:", ""), encoding="utf-8")
    green = run(tree, "sh", "tests/rules/source_rules.sh", ".")
    demand(red.returncode != 0 and green.returncode == 0, f"not the marks alone are wrong:\n{green.stderr}")


def check_car(arguments):
    with tempfile.TemporaryDirectory() as folder:
        tree = copy_tree(folder)
        before = contents(tree)
        told = run(tree, "tools/new-car", "Probe", "--type", "99", *arguments)
        demand(told.returncode == 0, told.stderr)
        after = contents(tree)
        written = sorted(path for path in after if after[path] != before.get(path))
        listed = sorted(re.findall(r"^(?:new|changed) +(\S+)$", told.stdout, re.M))
        demand(written == listed, f"wrote {written}, told {listed}")
        check_compiles(tree)
        for name in ("probe", "probe-all"):
            played = subprocess.run([BUILD / "workbench/decoderbox/decoderbox", "--type", "9", "--scenario",
                                     tree / f"scenarios/{name}.scn", "--script", "-"], input="quit\n", text=True, capture_output=True)
            demand(played.returncode == 0, played.stderr)
        again = run(tree, "tools/new-car", "Probe", "--type", "98")
        demand(again.returncode == 1 and "probe" in again.stderr, "a car was written over")
        check_rules(tree, written)


def check_refusals():
    with tempfile.TemporaryDirectory() as folder:
        tree = copy_tree(folder)
        (tree / "scenarios/other.scn").write_text("", encoding="utf-8")
        before = contents(tree)
        for arguments, why in REFUSED + [(["Other", "--type", "99"], "in the way: scenarios/other.scn")]:
            told = run(tree, "tools/new-car", *arguments)
            demand(told.returncode == 1 and why in told.stderr, f"{arguments}: {told.stderr or told.stdout}")
        demand(contents(tree) == before, "a refusal left something behind")


check_refusals()
check_car([])
check_car(["--log", "scenarios/logs/toyota.orblog"])

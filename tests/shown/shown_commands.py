"""The commands that documents show work: shown_commands.py SOURCE_FOLDER BUILD_FOLDER DOCUMENT...

Looks at fenced blocks. What the word behind the fence says is done:

    sh          the block is run as a script, in a folder that looks like the tree; it has to end with 0
    console     each line behind "$ " is run, and has to print what follows it; "..." stands for any lines
    sh needs-X  the same, where the program X is installed
    sh no-run   takes minutes, root or a device: programs and scripts are there, and know the options that are shown
"""

import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

SOURCE, BUILD = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
PROGRAMS = [BUILD / "workbench/headunit", BUILD / "workbench/decoderbox"]
BLOCK = re.compile(r"^```(sh|console)\b *(.*?)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
WORDS = {"export", "time"}  # of the shell, in front of a program


def lay_out(folder):
    """The tree as after ./test.sh; what a command writes beside it goes with the folder."""
    for entry in SOURCE.iterdir():
        if not entry.name.startswith((".", "build")):
            (folder / entry.name).symlink_to(entry)
    (folder / "build").symlink_to(BUILD)
    (folder / "home").mkdir()


def run(folder, script):
    environment = {
        **os.environ,
        "PATH": os.pathsep.join([*map(str, PROGRAMS), os.environ["PATH"]]),
        "HOME": str(folder / "home"),
        "QT_QPA_PLATFORM": "offscreen",
    }
    return subprocess.run(["bash", "-euo", "pipefail", "-c", script], cwd=folder, env=environment, text=True,
                          stdin=subprocess.DEVNULL, capture_output=True, timeout=120)


def failed(result):
    return f"ends with {result.returncode}: {result.stderr[-600:]}" if result.returncode else ""


def run_console(folder, text):
    """The first thing that is not as shown, or nothing."""
    for shown in re.split(r"^\$ ", text, flags=re.MULTILINE)[1:]:
        command, _, expected = shown.partition("\n")
        result = run(folder, command)
        pattern = "".join(r"(?:.*\n)*" if line == "..." else re.escape(line) + "\n" for line in expected.splitlines())
        if result.returncode or not re.fullmatch(pattern, result.stdout):
            return f"$ {command}\n{failed(result) or 'prints'}\n{result.stdout}"
    return ""


def simple_commands(text):
    """Lists of words, one for each program that a block starts."""
    for line in text.replace("\\\n", " ").splitlines():
        lexer = shlex.shlex(line, posix=True, punctuation_chars="|&;<>")
        lexer.whitespace_split = True
        command = []
        for word in [*lexer, ";"]:
            if not set(word) <= set("|&;<>"):
                command.append(word)
                continue
            while command and (re.match(r"\w+=", command[0]) or command[0] in WORDS):
                del command[0]
            if command:
                yield command
            command = []


def known_text(folder, program, arguments):
    """Where the program's options stand; None when there is no such program."""
    name = pathlib.PurePath(program).name
    if name in ("headunit", "decoderbox"):
        return "".join(run(folder, f"{name} {sub} --help").stdout for sub in [""] + arguments[:1]
                       if not sub.startswith("-"))
    if name == "cmake":
        return "".join(path.read_text() for path in [SOURCE / "CMakeLists.txt", *SOURCE.glob("cmake/*.cmake")])
    if (SOURCE / program).is_file():
        return (SOURCE / program).read_text() if os.access(SOURCE / program, os.X_OK) else None
    return "" if shutil.which(program) else None


def unknown_words(folder, command):
    """What the program of a command does not know, as one line."""
    program, arguments = command[0], command[1:]
    if program.startswith("build-"):  # a folder that only these commands make: the program is a target
        name = pathlib.PurePath(program).name
        lists = (path.read_text() for path in SOURCE.glob("*/**/CMakeLists.txt"))
        return "" if any(name in text for text in lists) else f"no target {name}"
    known = known_text(folder, program, arguments)
    if known is None:
        return f"no program {program}"
    ours = known and pathlib.PurePath(program).name != "cmake"
    options = [word.split("=")[0] for word in arguments if ours and word.startswith("--")]
    options += arguments[:1] if program == "headunit" else []  # its command, if there is one
    options += [word[2:].split("=")[0] for word in arguments if word.startswith("-DCANBUS_")]
    missing = [option for option in options if not re.search(re.escape(option) + r"(?![\w-])", known)]
    return f"{program} knows no {', '.join(missing)}" if missing else ""


def main():
    faults = 0
    done = dict.fromkeys(("sh", "console", "no-run"), 0)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        lay_out(folder)
        for document in sys.argv[3:]:
            content = (SOURCE / document).read_text()
            for block in BLOCK.finditer(content):
                language, mark, text = block.groups()
                if mark.startswith("needs-"):
                    if not shutil.which(mark[len("needs-"):]):
                        continue
                    mark = ""
                if mark not in ("", "no-run"):
                    fault = f"marked {mark!r}, which nobody knows"
                elif mark:
                    fault = "\n".join(filter(None, (unknown_words(folder, c) for c in simple_commands(text))))
                else:
                    fault = run_console(folder, text) if language == "console" else failed(run(folder, text))
                done[mark or language] = done.get(mark or language, 0) + 1
                if fault:
                    faults += 1
                    print(f"{document}:{content.count(chr(10), 0, block.start()) + 2}: {fault}")
    print(", ".join(f"{count} {kind}" for kind, count in done.items()))
    return faults > 0 or not all(done.values())


sys.exit(main())

#!/usr/bin/env python3
"""Plants one-line faults in plugin/, one at a time, and counts how many of them the tests see.

    tools/plant-faults.py [--count N] [--seed N] [--file GLOB]... [--jobs N] [--list]

Works in copies of the tree under build-faults/ (kept, so that the next run builds little). docs/checking.md says how
to read the result. Ends with 1 when under 90 % of the faults are seen.
"""

import argparse
import collections
import fcntl
import fnmatch
import json
import math
import os
import queue
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

sys.dont_write_bytecode = True
from faultpatterns import faults_of  # noqa: E402

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
WANTED = 0.9  # share of faults that the tests must see
CONFIGURE = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"] + [
    "-DCMAKE_%s_LINKER_FLAGS=-fuse-ld=gold" % kind for kind in ("EXE", "SHARED", "MODULE")]
# What a test may say about itself, and this program knows how to follow.
KNOWN_PROPERTIES = {"ENVIRONMENT", "FAIL_REGULAR_EXPRESSION", "PASS_REGULAR_EXPRESSION", "WORKING_DIRECTORY",
                    "TIMEOUT", "RESOURCE_LOCK", "LABELS", "PROCESSORS", "COST"}


def git_files():
    names = subprocess.run(["git", "-C", ROOT, "ls-files", "-co", "--exclude-standard", "-z"], check=True,
                           stdout=subprocess.PIPE).stdout.decode().split("\0")
    return sorted(name for name in set(names) if name and os.path.isfile(os.path.join(ROOT, name)))


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def write(path, text):
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def all_faults(globs):
    """{path: [faults]} of the plug-in's sources."""
    found = {}
    for path in git_files():
        chosen = not globs or any(fnmatch.fnmatch(path, glob) for glob in globs)
        if chosen and path.startswith("plugin/") and path.endswith((".cpp", ".h")):
            faults = list(faults_of(path, read(os.path.join(ROOT, path))))
            if faults:
                found[path] = faults
    return found


def sample(found, count, seed):
    """COUNT faults spread over all files, large ones more often, and over the patterns of each file."""
    chance = random.Random(seed)
    paths = sorted(found)
    weights = [math.sqrt(len(found[path])) for path in paths]
    step, at, chosen = sum(weights) / count, chance.random(), []
    reached = 0.0
    for path, weight in zip(paths, weights):
        reached += weight
        left = collections.defaultdict(list)
        for fault in found[path]:
            left[fault.pattern].append(fault)
        while at * step < reached:
            at += 1
            if left:
                pattern = chance.choice(sorted(left))
                fault = left[pattern].pop(chance.randrange(len(left[pattern])))
                if not left[pattern]:
                    del left[pattern]
                chosen.append(fault)
    return chosen


def shown(text):
    return " / ".join(" ".join(line.split()) for line in text.split("\n")) or "(nothing)"


def equivalents():
    """{(path, old, new): reason} from plant-faults.equivalent."""
    known = {}
    for block in re.split(r"\n\s*\n", read(os.path.join(ROOT, "tools", "plant-faults.equivalent"))):
        lines = [line for line in block.strip().split("\n") if not line.startswith("#")]
        if len(lines) >= 4 and lines[1].startswith("- ") and lines[2].startswith("+ "):
            known[lines[0], lines[1][2:], lines[2][2:]] = " ".join(lines[3:])
        elif any(lines):
            sys.exit("plant-faults.equivalent: not understood:\n" + block)
    return known


Test = collections.namedtuple("Test", "name command environment folder fails passes locked time_limit targets")


class Tree:
    """One copy of the sources with its build folder."""

    version_file = threading.Lock()  # what RESOURCE_LOCK is to ctest: the copies share the machine

    def __init__(self, number, threads):
        self.folder = os.path.join(ROOT, "build-faults", str(number))
        self.source = os.path.join(self.folder, "source")
        self.build = os.path.join(self.folder, "build")
        self.threads = threads
        self.environment = dict(os.environ, CCACHE_BASEDIR=self.folder, CCACHE_NOHASHDIR="1",
                                CCACHE_SLOPPINESS="include_file_mtime,include_file_ctime")
        self.durations, self.saw = {}, collections.Counter()

    def copy_sources(self):
        wanted = set(git_files())
        for folder, _, names in os.walk(self.source):
            for name in names:
                if os.path.relpath(os.path.join(folder, name), self.source) not in wanted:
                    os.remove(os.path.join(folder, name))
        for name in wanted:
            origin, copy = os.path.join(ROOT, name), os.path.join(self.source, name)
            with open(origin, "rb") as file:
                content = file.read()
            if os.path.exists(copy):
                with open(copy, "rb") as file:
                    if file.read() == content:
                        continue
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            shutil.copy(origin, copy)

    def run(self, *command):
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, errors="replace", check=False)

    def must_run(self, *command):
        result = self.run(*command)
        if result.returncode != 0:
            sys.exit("failed: %s\n%s" % (" ".join(command), result.stdout[-3000:]))
        return result.stdout

    def ninja(self, *targets):
        return self.run("ninja", "-C", self.build, "-j", str(self.threads), *targets)

    def prepare(self):
        """Copies, builds, and finds out which tests could see the plug-in at all, and how long they take."""
        self.copy_sources()
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        self.must_run("cmake", "-S", self.source, "-B", self.build, *CONFIGURE, *launcher)
        listing = self.must_run("ninja", "-C", self.build, "-t", "targets", "all")
        self.known = set(re.findall(r"^(\S+): phony$", listing, re.M))
        # What a test runs is known once its program is there, and so is which headers went into it.
        may_read = "-I%s/plugin" % self.source
        commands = json.loads(read(os.path.join(self.build, "compile_commands.json")))
        maybe = {name for command in commands if may_read in command["command"]
                 for name in re.findall(r"CMakeFiles/(\w+)\.dir/", command["command"])}
        unbuilt = [entry["name"] for entry in self.listed() if "command" not in entry]
        self.build_all(name for name in unbuilt if name in maybe or self.links_plugin(name))
        tests = [self.described(entry) for entry in self.listed() if "command" in entry]
        self.tests = [test for test in tests if self.concerns_plugin(test)]
        self.build_all(target for test in self.tests for target in test.targets)

    def build_all(self, targets):
        self.must_run("ninja", "-C", self.build, "-j", str(self.threads), *sorted(set(targets) | {"CanBus"}))

    def listed(self):
        return json.loads(self.must_run("ctest", "--test-dir", self.build, "--show-only=json-v1"))["tests"]

    def described(self, entry):
        properties = {item["name"]: item["value"] for item in entry.get("properties", [])}
        strange = set(properties) - KNOWN_PROPERTIES
        if strange:
            sys.exit("%s has properties that are not known here: %s" % (entry["name"], ", ".join(sorted(strange))))
        targets = [entry["name"]] if entry["name"] in self.known else []
        # The plug-in's module is loaded, not linked, by whatever starts a head unit.
        return Test(entry["name"], entry["command"], dict(item.split("=", 1) for item in
                                                          properties.get("ENVIRONMENT", [])),
                    properties.get("WORKING_DIRECTORY", self.build),
                    properties.get("FAIL_REGULAR_EXPRESSION", []), properties.get("PASS_REGULAR_EXPRESSION", []),
                    bool(properties.get("RESOURCE_LOCK")), properties.get("TIMEOUT", 60),
                    targets + ["CanBus", "headunit", "decoderbox"])

    def inputs(self, name):
        return self.must_run("ninja", "-C", self.build, "-t", "inputs", name) if name in self.known else ""

    def links_plugin(self, name):
        inputs = self.inputs(name)
        return "canbusadapters.dir/" in inputs or "libCanBus.so" in inputs

    def concerns_plugin(self, test):
        if test.name not in self.known:
            return not re.search(r"/(platform|workbench)/", " ".join(test.command))
        own = [name for name in self.inputs(test.name).split() if "/%s.dir/" % test.name in name and name.endswith(".o")]
        return self.links_plugin(test.name) or "/plugin/" in self.must_run("ninja", "-C", self.build, "-t", "deps", *own)

    def measure(self):
        """Every test passes as long as nothing is planted; one that does not is left out, and named."""
        for test in list(self.tests):
            began = time.monotonic()
            reason = self.sees(test, test.time_limit)
            self.durations[test.name] = time.monotonic() - began
            if reason:
                print("left out, it fails with nothing planted: %s (%s)" % (test.name, reason), flush=True)
                self.tests.remove(test)

    def order(self, path):
        """Golden drives first: they cost no compiling of tests. Then what saw most in the time that it takes, in this
        file or its folder; before anything was seen the tests of the file's own folder and car count for something."""
        folder, stem = os.path.dirname(path), os.path.splitext(os.path.basename(path))[0]
        own = "/tests/%s/" % os.path.basename(folder)

        def worth(test):
            near = any(own in word for word in test.command) or re.split("[_-]", test.name + "_")[1] in stem
            hits = 10 * self.saw[path, test.name] + self.saw[folder, test.name] + near
            return (0.1 + hits) / (1 + self.durations[test.name])
        return sorted(self.tests, key=lambda test: (not test.name.startswith("drive_"), -worth(test)))

    def sees(self, test, limit):
        """Why the test fails, "" when it passes. A QtTest program is ended at its first failure."""
        with self.version_file if test.locked else threading.Lock():
            began = time.monotonic()
            process = subprocess.Popen(test.command, cwd=test.folder, env=dict(self.environment, **test.environment),
                                       stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                       errors="replace", process_group=0)
            timer = threading.Timer(limit, lambda: os.killpg(process.pid, signal.SIGKILL))
            timer.start()
            output = []
            try:
                for line in process.stdout:
                    output.append(line)
                    if line.startswith("FAIL!  :"):
                        return line.split("(")[0][8:].strip()
                code = process.wait()
            finally:
                timer.cancel()
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                process.stdout.close()
                process.wait()
        text = "".join(output)
        if time.monotonic() - began >= limit:
            return "time-out"
        if any(re.search(expression, text) for expression in test.fails):
            return "forbidden output"
        if test.passes:
            return "" if any(re.search(expression, text) for expression in test.passes) else "wanted output missing"
        return "" if code == 0 else "exit code %d" % code

    def judge(self, fault):
        """Plants FAULT and says what became of it."""
        path = os.path.join(self.source, fault.path)
        before = read(path)
        lines = before.split("\n")
        lines[fault.line - 1:fault.line - 1 + len(fault.old.split("\n"))] = fault.new.split("\n")
        write(path, "\n".join(lines))
        try:
            if self.ninja("CanBus").returncode != 0:
                return "did not compile"
            for test in self.order(fault.path):
                if self.ninja(*test.targets).returncode != 0:
                    return "did not compile"
                # Waits for something that no longer happens end long before the tests' own limits.
                reason = self.sees(test, min(test.time_limit, 10 + 4 * self.durations[test.name]))
                if reason:
                    self.saw[fault.path, test.name] += 1
                    self.saw[os.path.dirname(fault.path), test.name] += 1
                    return "seen by %s (%s)" % (test.name, reason)
            return "NOT SEEN"
        finally:
            write(path, before)


def step(text):
    print("== " + text, flush=True)


def alone():
    """Holds the copies until this program ends; two runs would plant in the same one."""
    os.makedirs(os.path.join(ROOT, "build-faults"), exist_ok=True)
    lock = open(os.path.join(ROOT, "build-faults", "lock"), "w", encoding="utf-8")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit("another run works in build-faults/")
    return lock


def prepared(jobs):
    trees = [Tree(i + 1, max(1, (os.cpu_count() or 1) // jobs)) for i in range(jobs)]
    step("Building %d cop%s of the tree under build-faults/" % (jobs, "y" if jobs == 1 else "ies"))
    for tree in trees:
        tree.prepare()
    step("Running the %d tests that could see a fault, with nothing planted" % len(trees[0].tests))
    trees[0].measure()
    passing = {test.name for test in trees[0].tests}
    for tree in trees[1:]:
        tree.durations = trees[0].durations
        tree.tests = [test for test in tree.tests if test.name in passing]
    if not passing:
        sys.exit("no test left")
    return trees


def plant(trees, faults, known):
    """Judges all faults, one line each as they come; {outcome: number}."""
    waiting, outcomes, speaking = queue.Queue(), collections.Counter(), threading.Lock()
    for fault in faults:
        waiting.put(fault)

    def work(tree):
        while True:
            try:
                fault = waiting.get_nowait()
            except queue.Empty:
                return
            began = time.monotonic()
            reason = known.get((fault.path, shown(fault.old), shown(fault.new)))
            outcome = "equivalent: " + reason if reason else tree.judge(fault)
            with speaking:
                outcomes["seen" if outcome.startswith("seen") else outcome.split(":")[0]] += 1
                print("%-45s %s:%d [%s] %s  =>  %s  (%.0f s)" % (
                    outcome, fault.path, fault.line, fault.pattern, shown(fault.old), shown(fault.new),
                    time.monotonic() - began), flush=True)

    workers = [threading.Thread(target=work, args=(tree,), daemon=True) for tree in trees]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    return outcomes


def main():
    parser = argparse.ArgumentParser(description="Plants faults in plugin/ and counts those that the tests see.")
    parser.add_argument("--count", type=int, default=150, help="how many faults (150)")
    parser.add_argument("--seed", type=int, default=1, help="another seed plants others (1)")
    parser.add_argument("--file", action="append", metavar="GLOB", help="only files that match, plugin/raise/*.cpp")
    parser.add_argument("--jobs", type=int, default=2, help="copies of the tree that work side by side (2)")
    parser.add_argument("--list", action="store_true", help="say what would be planted, and plant nothing")
    options = parser.parse_args()
    found = all_faults(options.file)
    if not found or options.count < 1 or options.jobs < 1:
        parser.error("nothing to plant")
    faults = sample(found, min(options.count, sum(map(len, found.values()))), options.seed)
    if options.list:
        for fault in faults:
            print("%s:%d [%s] %s  =>  %s" % (fault.path, fault.line, fault.pattern, shown(fault.old),
                                             shown(fault.new)))
        return 0
    known = equivalents()
    lock = alone()
    trees = prepared(options.jobs)
    step("Planting %d faults" % len(faults))
    began = time.monotonic()
    outcomes = plant(trees, faults, known)
    lock.close()
    counted = outcomes["seen"] + outcomes["NOT SEEN"]
    share = outcomes["seen"] / counted if counted else 0.0
    print("%d planted: %d seen, %d not seen, %d did not compile, %d equivalent; %.0f %% of %d seen, %.0f s a fault" % (
        len(faults), outcomes["seen"], outcomes["NOT SEEN"], outcomes["did not compile"], outcomes["equivalent"],
        100 * share, counted, (time.monotonic() - began) / len(faults)))
    return 0 if share >= WANTED else 1


if __name__ == "__main__":
    sys.exit(main())

"""Puts small faults into the library, one at a time, and looks whether the tests notice.

mutate.py SOURCE_DIR WORK_DIR [--sample N] [--seed S] [--only REGEX] [--headers] [--required PERCENT]

Works on a copy of the tree in WORK_DIR; only the unit with the fault is compiled again, into the shared library that the test
programs load. A fault that the compiler refuses counts for nothing. Fails when fewer of the others are noticed than required.
equivalent.txt lists faults that change nothing that could be seen, each with its reason; they count for nothing either.
"""

import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

from mutants import all_mutants

TESTS = {
    "ImportDataModelTests": "ImportDataModelTests",
    "MemoryTests": "MemoryTests",
    "ConsoleImportHostTests": "hosts/ConsoleImportHostTests/ConsoleImport.exe",
    "LowerCaseHostTests": "hosts/LowerCaseHostTests/consoleimport.exe",
    "ImportDataModelOutOfMemoryTests": "ImportDataModelOutOfMemoryTests",
}  # target: program
LIBRARIES = ["ImportDataModel", "ImportDataModelFailingAllocation"]
SLOW_MILLISECONDS = 60
HERE = pathlib.Path(__file__).resolve().parent


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("work", type=pathlib.Path)
    parser.add_argument("--sample", type=int, help="how many faults to try; without it, all")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", default="", help="only in files whose name this expression finds")
    parser.add_argument("--headers", action="store_true", help="also in headers, which cost a build of the library each")
    parser.add_argument("--required", type=float, default=90)
    return parser.parse_args()


class Tree:
    """The copy, its build and its tests."""

    def __init__(self, source, work):
        self.tree = work / "tree"
        self.build_dir = self.tree / "build" / "linux-debug"
        self.copy(source)
        self.configure()
        self.build(TESTS)
        self.commands = self.time_tests()

    def copy(self, source):
        names = subprocess.run(["git", "ls-files"], cwd=source, check=True, capture_output=True, text=True).stdout.split("\n")
        for name in filter(None, names):
            there, here = source / name, self.tree / name
            if there.is_file() and not (here.exists() and here.read_bytes() == there.read_bytes()):
                here.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(there, here)

    def configure(self):
        subprocess.run(
            ["cmake", "--preset", "linux-debug", "-DIMPORTDAME_BUILD_APPS=OFF", "-DIMPORTDAME_BUILD_EXAMPLES=OFF",
             "-DIMPORTDAME_WARNINGS_AS_ERRORS=OFF", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"],
            cwd=self.tree, check=True, stdout=subprocess.DEVNULL)  # fmt: skip

    def build(self, targets):
        command = ["cmake", "--build", str(self.build_dir), "-j1", "--target", *targets]
        return subprocess.run(command, stdout=subprocess.DEVNULL, check=True)

    def time_tests(self):
        """The commands that run all tests, the quick ones first, each with the time after which it counts as hanging."""
        quick, slow = [], []
        for path in TESTS.values():
            program = str(self.build_dir / "bin" / path)
            output = subprocess.run([program], check=True, capture_output=True, text=True, errors="replace").stdout
            times = {name: int(ms) for name, ms in re.findall(r"\[       OK \] (\S+) \((\d+) ms\)", output)}
            late = [name for name, ms in times.items() if ms >= SLOW_MILLISECONDS]
            early_time = sum(ms for name, ms in times.items() if name not in late) / 1000
            quick.append((10 * early_time + 20, [program, "--gtest_fail_fast", "--gtest_filter=-" + ":".join(late)]))
            if late:
                late_time = sum(times[name] for name in late) / 1000
                slow.append((10 * late_time + 20, [program, "--gtest_fail_fast", "--gtest_filter=" + ":".join(late)]))
        return quick + slow

    def is_noticed(self, name):
        """Asks first the tests that are called as the file is: most faults end there."""
        own = [str(self.build_dir / "bin" / TESTS["ImportDataModelTests"]), "--gtest_fail_fast", f"--gtest_filter=*{name}*"]
        for seconds, command in [(60, own), *self.commands]:
            try:
                done = subprocess.run(command, timeout=seconds, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            except subprocess.TimeoutExpired:
                return True
            if done.returncode != 0:
                return True
        return False

    def judge(self, mutant):
        path = self.tree / mutant.file
        source = path.read_text(encoding="utf-8")
        try:
            path.write_text(mutant.apply(source), encoding="utf-8")
            targets = LIBRARIES + (["MemoryTests"] if re.search("Pool|FavoringLock|Threads", mutant.file) else [])
            command = ["cmake", "--build", str(self.build_dir), "-j1", "--target", *targets]
            if subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode != 0:
                return "refused"
            return "noticed" if self.is_noticed(path.stem) else "survived"
        finally:
            path.write_text(source, encoding="utf-8")


def find_mutants(tree, options):
    patterns = ["src/**/*.cpp"] + (["src/**/*.h", "include/**/*.h"] if options.headers else [])
    files = sorted({path for pattern in patterns for path in tree.glob(pattern)})
    mutants = []
    for path in files:
        name = path.relative_to(tree).as_posix()
        if re.search(options.only, name) and not name.endswith("Windows.cpp"):
            mutants += all_mutants(name, path.read_text(encoding="utf-8"))
    if options.sample and options.sample < len(mutants):
        mutants = random.Random(options.seed).sample(mutants, options.sample)
    return sorted(mutants, key=lambda mutant: (mutant.file, mutant.start, mutant.text))


def read_equivalent():
    lines = (HERE / "equivalent.txt").read_text(encoding="utf-8").split("\n")
    return {line for line in lines if line and not line.startswith(("#", "    "))}


def main():
    options = parse_arguments()
    work = options.work.resolve()
    tree = Tree(options.source.resolve(), work)
    equivalent = read_equivalent()
    results = {"noticed": 0, "survived": 0, "refused": 0, "equivalent": 0}
    start = time.monotonic()
    for mutant in find_mutants(tree.tree, options):
        description = mutant.describe((tree.tree / mutant.file).read_text(encoding="utf-8"))
        result = "equivalent" if description in equivalent else tree.judge(mutant)
        results[result] += 1
        print(f"{result:10} {mutant.line:4} {description}", flush=True)
    tree.build(LIBRARIES)
    judged = results["noticed"] + results["survived"]
    percent = 100 * results["noticed"] / judged if judged else 100
    print(f"\n{results['noticed']} of {judged} faults noticed ({percent:.1f} %), {results['survived']} survived; "
          f"{results['refused']} refused by the compiler, {results['equivalent']} listed as equivalent; "
          f"{time.monotonic() - start:.0f} s, seed {options.seed}")  # fmt: skip
    if percent < options.required:
        sys.exit(f"At least {options.required} % have to be noticed.")


if __name__ == "__main__":
    main()

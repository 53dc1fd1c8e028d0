"""Says how much of the sources the tests reached, and fails below what has to be reached.

check_coverage.py SOURCE_DIR PROFILE_DIR PROGRAM...

Reads the counters that the programs left in PROFILE_DIR. A line of the sources that no test can reach says so itself, in a
comment: "// unreachable: REASON". It counts neither as reached nor as missed, neither do its branches, nor does the branch that
leads to it.
"""

import collections
import json
import os
import pathlib
import subprocess
import sys

# What has to be reached, in per cent: lines, outcomes of branches, conditions that were shown to decide on their own.
GROUPS = {
    "library": (("src/", "include/"), {"lines": 100, "branches": 100, "conditions": 100}),
    "importer": (("importers/",), {"lines": 95}),
    "back end": (("backends/",), {"lines": 95}),
    "console importer": (("apps/",), {"lines": 95}),
}
KINDS = ("lines", "branches", "conditions")
MARK = "// unreachable: "


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def tool(name):
    return os.environ.get(name.upper().replace("-", "_"), name + "-19")


def export(profile_dir, programs):
    profiles = [str(path) for path in pathlib.Path(profile_dir).glob("*.profraw")]
    if not profiles:
        sys.exit("No test left counters in " + profile_dir)
    merged = os.path.join(profile_dir, "merged.profdata")
    listing = os.path.join(profile_dir, "profiles.txt")
    pathlib.Path(listing).write_text("\n".join(profiles))
    run(tool("llvm-profdata"), "merge", "-sparse", "-f", listing, "-o", merged)
    objects = [argument for program in programs[1:] for argument in ("-object", program)]
    what = ["-instr-profile=" + merged, programs[0], *objects]
    data = json.loads(run(tool("llvm-cov"), "export", "-skip-functions", *what))
    lcov = run(tool("llvm-cov"), "export", "-format=lcov", *what).decode()
    return data["data"][0]["files"], lcov


def read_lines(lcov):
    """For each file the count of each line that holds code."""
    lines = collections.defaultdict(dict)
    for row in lcov.splitlines():
        if row.startswith("SF:"):
            current = lines[row[3:]]
        elif row.startswith("DA:"):
            number, count = row[3:].split(",")[:2]
            current[int(number)] = current.get(int(number), 0) + int(count)
    return lines


def read_branches(file):
    """For each condition that code branches on: whether it was ever true, and ever false. Instances of a template count as one."""
    branches = collections.defaultdict(lambda: [0, 0])
    for line, column, _, end, is_true, is_false, *_ in file.get("branches", []):
        branches[line, column, end][0] += is_true
        branches[line, column, end][1] += is_false
    return branches


def read_conditions(file):
    """For each decision of several conditions, which of them were shown to decide it on their own (MC/DC)."""
    decisions = {}
    for record in file.get("mcdc_records", []):
        place, conditions = tuple(record[:4]), record[-1]
        before = decisions.get(place, [False] * len(conditions))
        decisions[place] = [a or b for a, b in zip(before, conditions)]
    return decisions


class Sources:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder).resolve()
        self.files = {}

    def name(self, path):
        try:
            return pathlib.Path(path).resolve().relative_to(self.folder).as_posix()
        except ValueError:
            return ""

    def text(self, name, line):
        if name not in self.files:
            self.files[name] = (self.folder / name).read_text(encoding="utf-8").splitlines()
        return self.files[name][line - 1].strip()

    def is_unreachable(self, name, line):
        return MARK in self.text(name, line)

    def leads_nowhere(self, name, line):
        """Whether all that a condition guards is the next line, which cannot be reached."""
        return self.text(name, line).startswith("if ") and self.is_unreachable(name, line + 1)


def measure(files, lcov, sources):
    """For each group and kind: how many there are, and what was missed."""
    totals = {(group, kind): [0, []] for group in GROUPS for kind in KINDS}

    def count(name, kind, line, reached, what=""):
        for group, (folders, _) in GROUPS.items():
            if name.startswith(folders) and not sources.is_unreachable(name, line):
                total = totals[group, kind]
                total[0] += 1
                if not reached:
                    total[1].append(f"{name}:{line}: {what}{sources.text(name, line)}")

    for path, lines in read_lines(lcov).items():
        for line, reached in lines.items():
            count(sources.name(path), "lines", line, reached)
    for file in files:
        name = sources.name(file["filename"])
        for (line, *_), (is_true, is_false) in read_branches(file).items():
            if not sources.leads_nowhere(name, line):
                count(name, "branches", line, is_true, "never true: ")
            count(name, "branches", line, is_false, "never false: ")
        for (line, *_), conditions in read_conditions(file).items():
            for number, shown in enumerate(conditions, 1):
                count(name, "conditions", line, shown, f"condition {number} never decides: ")
    return totals


def report(totals):
    good = True
    print(f"{'':18}" + "".join(f"{kind:>24}" for kind in KINDS))
    for group, (_, required) in GROUPS.items():
        row = f"{group:18}"
        for kind in KINDS:
            count, missed = totals[group, kind]
            reached = count - len(missed)
            percent = 100 * reached / count if count else 0
            row += f"{f'{reached}/{count} {percent:.2f} %':>24}"
            good = good and percent >= required.get(kind, 0)
        print(row)
    for group, (_, required) in GROUPS.items():
        for kind in KINDS:
            missed = totals[group, kind][1]
            if missed and (kind in required or "--all" in sys.argv):
                print(f"\n{group}, {kind} missed:\n  " + "\n  ".join(sorted(missed)))
    return good


def main():
    source_dir, profile_dir, *programs = [argument for argument in sys.argv[1:] if argument != "--all"]
    files, lcov = export(profile_dir, programs)
    if not report(measure(files, lcov, Sources(source_dir))):
        sys.exit("\nThe tests reach less than they have to.")


if __name__ == "__main__":
    main()

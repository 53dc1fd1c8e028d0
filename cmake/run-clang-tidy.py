"""run-clang-tidy.py CLANG_TIDY SOURCE_DIR BINARY_DIR [OPTION_OF_CLANG_TIDY...]

Runs clang-tidy on every source file that the build in BINARY_DIR compiles, and on the project's headers that they include: of
the library, its platform interfaces, importer, back end, programs, examples and samples. The tests would take as long again
while the sanitizers watch them. A file that was found clean is not looked at again until it, a header of the project that it
includes, its compiler flags or a .clang-tidy file changes.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)
KEPT_FLAGS = ("-D", "-U", "-I", "-std=", "-W", "-f")
CHECKED_FOLDERS = ("src", "platform", "importers", "backends", "apps", "examples", "samples")
DROPPED_FLAGS = ("-Werror", "-Winvalid-pch", "-fpch-preprocess")


def compile_flags(entry):
    """The flags of a command of the build that matter to clang; its precompiled header is left out."""
    flags = []
    words = iter(shlex.split(entry["command"]))
    for word in words:
        if word == "-isystem":
            flags += [word, next(words)]
        elif word.startswith(KEPT_FLAGS) and word not in DROPPED_FLAGS:
            flags.append(word)
    return flags


def include_folders(flags, source_dir):
    """The folders of the project that the flags name."""
    words = [flag[2:] for flag in flags if flag.startswith("-I")]
    words += [flag for previous, flag in zip(flags, flags[1:]) if previous == "-isystem"]
    return [pathlib.Path(word) for word in words if word.startswith(str(source_dir))]


def included_files(path, folders, seen):
    """Adds the file and every header of the project that it includes, whatever the preprocessor would skip."""
    if path in seen:
        return
    seen.add(path)
    for name in INCLUDE.findall(path.read_text(encoding="utf-8")):
        for folder in [path.parent, *folders]:
            candidate = (folder / name).resolve()
            if candidate.is_file():
                included_files(candidate, folders, seen)
                break


class Checker:
    def __init__(self, clang_tidy, source_dir, binary_dir, options):
        self.clang_tidy = clang_tidy
        self.source_dir = source_dir
        self.clean_dir = binary_dir / "clang-tidy"
        self.clean_dir.mkdir(exist_ok=True)
        version = subprocess.run([clang_tidy, "--version"], capture_output=True, text=True, check=True).stdout
        settings = sorted(path for path in source_dir.rglob(".clang-tidy") if "build" not in path.parts)
        self.options = ["--quiet", "--warnings-as-errors=*", *options]
        self.common = version + "".join(self.options) + "".join(path.read_text(encoding="utf-8") for path in settings)

    def key(self, path, flags):
        files = set()
        included_files(path, include_folders(flags, self.source_dir), files)
        digest = hashlib.sha256((self.common + " ".join(flags)).encode())
        for file in sorted(files):
            digest.update(file.read_bytes())
        return digest.hexdigest()

    def check(self, job):
        """Answers whether the file was looked at, and what was found in it."""
        path, flags = job
        marker = self.clean_dir / self.key(path, flags)
        if marker.exists():
            return False, ""
        command = [self.clang_tidy, *self.options, str(path), "--", *flags]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        if result.returncode == 0:
            marker.touch()
            return True, ""
        return True, result.stdout + result.stderr


def main():
    clang_tidy, source_dir, binary_dir = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    commands = json.loads((binary_dir / "compile_commands.json").read_text(encoding="utf-8"))
    jobs = {}
    for entry in commands:
        path = pathlib.Path(entry["file"])
        if path.is_relative_to(source_dir) and path.relative_to(source_dir).parts[0] in CHECKED_FOLDERS:
            jobs[path] = compile_flags(entry)
    checker = Checker(clang_tidy, source_dir, binary_dir, sys.argv[4:])
    looked_at = found = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as executor:
        for was_looked_at, findings in executor.map(checker.check, jobs.items()):
            looked_at += was_looked_at
            found += bool(findings)
            print(findings, end="", flush=True)
    print(f"clang-tidy: {len(jobs)} files, {looked_at} looked at, {found} with findings")
    return 1 if found or not jobs else 0


sys.exit(main())

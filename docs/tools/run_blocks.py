"""run_blocks.py ROOT BUILD PREFIX WORK

Runs what the pages show beside C++, in the folder WORK:

  sh        with ConsoleImport of BUILD on the path and the sample as engine.pdx
  sql       asked of the sample's database; there must be an answer
  cmake     in a project that finds the library in PREFIX or, for add_subdirectory, as the folder ImportDataModel
  sh build  is not run, but the scripts, presets and targets it names must be there; the same for indented lines
"""

import json
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys

from markdown import Page

PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Importer LANGUAGES C CXX)
add_executable(my_importer my_importer.cpp)
{block}"""


class Runner:
    def __init__(self, root, build, prefix, work):
        self.root, self.prefix, self.work = root, prefix, work
        shutil.rmtree(work, ignore_errors=True)
        work.mkdir(parents=True)
        shutil.copy(build / "samples/coolant-pump.pdx", work / "engine.pdx")
        self.environment = dict(os.environ, PATH=f"{build / 'bin'}:{os.environ['PATH']}")
        self._run(["ConsoleImport", "import", "--quiet", "engine.pdx", "--output", "sample.sqlite"])
        self.presets = json.loads((root / "CMakePresets.json").read_text())
        files = [root / "CMakeLists.txt"]
        for folder in ["cmake", "src", "tests", "apps", "docs", "tools", "bench", "fuzz"]:
            files += [*(root / folder).rglob("CMakeLists.txt"), *(root / folder).rglob("*.cmake")]
        targets = re.compile(r"add_(?:custom_target|library|executable|test_program)\(([\w-]+)")
        self.targets = {name for file in files for name in targets.findall(file.read_text())}

    def _run(self, command):
        done = subprocess.run(command, cwd=self.work, env=self.environment, text=True, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode:
            raise RuntimeError(f"ended with {done.returncode}:\n{done.stdout}")

    def sh(self, code):
        self._run(["bash", "-euo", "pipefail", "-c", code])

    def sql(self, code):
        connection = sqlite3.connect(f"file:{self.work}/sample.sqlite?mode=ro", uri=True)
        for query in filter(str.strip, code.split(";")):
            if not connection.execute(query).fetchall():
                raise RuntimeError(f"no answer to{query}")
        connection.close()

    def cmake(self, code):
        project = self.work / "project"
        shutil.rmtree(project, ignore_errors=True)
        project.mkdir()
        (project / "CMakeLists.txt").write_text(PROJECT.format(block=code))
        (project / "my_importer.cpp").write_text("int main() {}\n")
        (project / "ImportDataModel").symlink_to(self.root)
        self._run(["cmake", "-S", str(project), "-B", str(project / "build"), f"-DCMAKE_PREFIX_PATH={self.prefix}"])

    def build_commands(self, code):
        for script in re.findall(r"\b(?:scripts|cmake|\.ci)/[\w./-]+", code):
            if not (self.root / script).exists():
                raise RuntimeError(f"there is no {script}")
        known = {preset["name"] for preset in self.presets["configurePresets"]}
        for preset in re.findall(r"--preset (\S+)", code) + re.findall(r"\bbuild/([\w-]+)", code):
            if preset not in known:
                raise RuntimeError(f"there is no preset {preset}")
        for line in re.findall(r"--target((?: [\w-]+)+)", code):
            for target in re.split(r" ", line.strip()):
                if target.startswith("-"):
                    break
                if target not in self.targets:
                    raise RuntimeError(f"there is no target {target}")


def main(root, build, prefix, work):
    runner = Runner(root, build, prefix, work)
    kinds = {"sh": runner.sh, "sql": runner.sql, "cmake": runner.cmake, "sh build": runner.build_commands,
             "indented": runner.build_commands}
    count, problems = 0, []
    for path in sorted([*root.glob("*.md"), *root.glob("docs/*.md")]):
        for block in Page(path).blocks:
            if block.kind in kinds:
                count += 1
                try:
                    kinds[block.kind](block.code)
                except (RuntimeError, sqlite3.Error) as problem:
                    problems.append(f"{path}:{block.line}: {problem}")
    print("\n".join(problems) or f"{count} blocks")
    sys.exit(bool(problems) or not count)


if __name__ == "__main__":
    main(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:]))

"""extract_program.py PAGE PROGRAM

Makes one program of the C++ blocks of a page: blocks that begin with an #include or a class stand outside of main, all others
one after the other inside. PROGRAM.expected has what the program must write: the blocks "output".
"""

import pathlib
import re
import sys

from markdown import Page

OUTSIDE = re.compile(r"\s*(#include|class|struct)\b")


def main(path, program):
    page = Page(path)
    outside, inside = [], []
    for block in page.blocks:
        if block.kind == "cpp":
            part = f'#line {block.line + 1} "{path}"\n{block.code}'
            (outside if OUTSIDE.match(block.code) else inside).append(part)
    program.write_text("\n".join(outside) + "\nint main() {\n" + "\n".join(inside) + "}\n")
    expected = "".join(block.code for block in page.blocks if block.kind == "output")
    program.with_suffix(".expected").write_text(expected)


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))

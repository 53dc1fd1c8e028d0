"""What the tools here read of a page of Markdown: blocks of code, headings and links."""

import dataclasses
import re

FENCE = re.compile(r"^```(.*)$")
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")


@dataclasses.dataclass
class Block:
    kind: str  # what stands behind the fence, such as "cpp" or "sh build"
    line: int
    code: str = ""


class Page:
    def __init__(self, path):
        self.path = path
        self.blocks, self.anchors, self.links = [], set(), []
        block = None
        for number, line in enumerate(path.read_text().splitlines(), 1):
            fence = FENCE.match(line)
            if fence:
                block = None if block else Block(fence[1].strip(), number)
                if block:
                    self.blocks.append(block)
            elif block:
                block.code += line + "\n"
            else:
                self._read(number, line)

    def _read(self, number, line):
        if line.startswith("    "):
            self.blocks.append(Block("indented", number, line + "\n"))
        if line.startswith("#"):
            self.anchors.add(anchor(line.lstrip("# ")))
        self.links += [(number, target) for target in LINK.findall(re.sub(r"`[^`]*`", "", line))]


def anchor(heading):
    """The name under which a heading can be linked to."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")

"""check_links.py ROOT: fails where a page leads to a file or heading that is not there, or has code of no known kind."""

import pathlib
import sys

from markdown import Page

KINDS = {"indented", "cpp", "output", "sh", "sh build", "sql", "cmake", "text"}


def problems(page, pages):
    for number, target in page.links:
        if target.startswith(("https://", "http://")):
            continue
        file, _, heading = target.partition("#")
        path = (page.path.parent / file).resolve() if file else page.path
        if not path.exists():
            yield number, f"{target} leads to no file"
        elif heading and heading not in pages.get(path, Page(path)).anchors:
            yield number, f"{target} leads to no heading"
    for block in page.blocks:
        if block.kind not in KINDS:
            yield block.line, f'a block of code is "{block.kind}", and not one of {", ".join(sorted(KINDS))}'


def main(root):
    pages = {path: Page(path) for path in sorted([*root.glob("*.md"), *root.glob("docs/*.md")])}
    found = [f"{path}:{line}: {text}" for path, page in pages.items() for line, text in problems(page, pages)]
    print("\n".join(found) or f"{len(pages)} pages, {sum(len(page.links) for page in pages.values())} links")
    sys.exit(bool(found))


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve())

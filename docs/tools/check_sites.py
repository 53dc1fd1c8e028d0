"""check_sites.py ROOT [--update]

Compares the table of checks in docs/contracts.md with src/core/CheckSites.def, or writes it.
"""

import pathlib
import re
import sys

SITE = re.compile(r'^CHECK_SITE\((\w+), (\d+), "(.*)", "(.*)", (\d+)\)$', re.M)
TABLE = re.compile(r"(<!-- checks: .*? -->\n).*?(<!-- end -->)", re.S)


def table(definitions):
    rows = ["| Code | Check | Expression | File and line |", "|---|---|---|---|"]
    for name, code, expression, file, line in SITE.findall(definitions):
        owner = file.removesuffix(".cpp")
        operation = name.removeprefix(owner)
        expression = expression.replace("|", "\\|")
        rows.append(f"| {code} | `V{owner}` {operation} | `{expression}` | {file}:{line} |")
    return "\n".join(rows) + "\n"


def main(root, update):
    page = root / "docs/contracts.md"
    text = page.read_text()
    expected = TABLE.sub(
        lambda match: match[1] + "\n" + table((root / "src/core/CheckSites.def").read_text()) + "\n" + match[2], text)
    if update:
        page.write_text(expected)
    elif text != expected:
        sys.exit(f"The table of {page} differs from CheckSites.def: python3 docs/tools/check_sites.py . --update")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), "--update" in sys.argv)

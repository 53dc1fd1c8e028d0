"""check_layout.py CLANG TABLE -- FLAGS...

Compares the layout of the public classes, as clang itself reports it, with the table in tests/layout/layout.txt: base
classes, fields in order, and slots of virtual operations in order. The format of the table is described at its top.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

NAMESPACE = "ImportDame::"


class ClassLayout:
    """What the table states, or clang reports, about one class."""

    def __init__(self, name, bases):
        self.name = name
        self.bases = bases
        self.fields = []
        self.slots = []
        self.has_own_table = False


def read_table(path):
    """The classes of the table by name, in the table's order, the headers to include, and those to have whole."""
    classes = {}
    headers = []
    complete = []
    current = None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        words = line.split("#")[0].split(maxsplit=1)
        if not words:
            continue
        if len(words) != 2:
            raise ValueError(f"{path.name}:{number}: expected a keyword and a name")
        keyword, rest = words[0], words[1].strip()
        if keyword == "header":
            headers.append(rest)
        elif keyword == "complete":
            complete.append(rest)
        elif keyword == "class":
            name, _, bases = (part.strip() for part in rest.partition(":"))
            if name in classes:
                raise ValueError(f"{path.name}:{number}: {name} stands in the table twice")
            current = classes[name] = ClassLayout(name, [base.strip() for base in bases.split(",") if base.strip()])
        elif keyword in ("field", "helper") and current:
            current.fields.append(rest)
        elif keyword == "slot" and current:
            current.slots.append(rest)
        else:
            raise ValueError(f"{path.name}:{number}: unexpected {keyword!r}")
    return classes, headers, complete


def probe_source(classes, headers):
    """A source file that makes clang report every class, and the virtual operations of those that have any."""
    lines = [f"#include <{header}>" for header in headers]
    for name in classes:
        lines.append(f"static_assert(sizeof({NAMESPACE}{name}) > 0);")
        if all_slots(classes, name):
            lines.append(f"struct Probe{name} : {NAMESPACE}{name} {{ ~Probe{name}(); }};")
            lines.append(f"Probe{name}::~Probe{name}() {{}}")
    return "\n".join(lines) + "\n"


def missing_classes(classes, header, flags):
    """The classes that the header declares and the table does not have."""
    folders = [pathlib.Path(folder) for option, folder in zip(flags, flags[1:]) if option == "-I"]
    text = next(folder / header for folder in folders if (folder / header).is_file()).read_text(encoding="utf-8")
    return [f"{name} is not in the table" for name in re.findall(r"^class (\w+);", text, re.MULTILINE)
            if name not in classes]


def all_slots(classes, name):
    """The slots of the class's first table: those of its first base with any, then its own."""
    inherited = [slots for slots in (all_slots(classes, base) for base in classes[name].bases) if slots]
    return (inherited[0] if inherited else []) + classes[name].slots


def secondary_slots(classes, name):
    """The slots of the class's further tables, one for each further base with any."""
    tables = []
    for base in classes[name].bases:
        tables += [table for table in [all_slots(classes, base)] + secondary_slots(classes, base) if table]
    return tables[1:]


def run_clang(clang, flags, source):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "probe.cpp"
        path.write_text(source, encoding="utf-8")
        command = [clang, *flags, "-w", "-S", "-o", f"{folder}/probe.s", str(path)]
        command += [word for option in ("record", "vtable") for word in ("-Xclang", f"-fdump-{option}-layouts")]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        raise ValueError(f"clang failed:\n{result.stderr}")
    return result.stdout


def reported_records(dump):
    """Base classes and fields of every class that clang reports."""
    records = {}
    for block in dump.split("*** Dumping AST Record Layout")[1:]:
        record = None
        for match in re.finditer(r"^ *\S+ \| ( *)(.*)$", block, re.MULTILINE):
            depth, text = len(match[1]) // 2, match[2]
            if depth == 0:
                name = re.match(rf"(?:class|struct) {NAMESPACE}(\w+)$", text)
                if not name:
                    break
                record = records[name[1]] = ClassLayout(name[1], [])
            elif depth == 1 and re.search(r"\((primary )?base\)", text):
                record.bases.append(text.split("(")[0].split()[1].removeprefix(NAMESPACE))
            elif depth == 1 and text.endswith("vtable pointer)"):
                record.has_own_table = True
            elif depth == 1:
                record.fields.append(text.split()[-1])
    return records


def reported_slots(dump, name):
    """The slots of each table of the class's probe, in order: one list per table."""
    block = re.search(rf"^Vtable for 'Probe{name}' .*\n((?: .*\n)*)", dump, re.MULTILINE)
    tables = []
    for line in block[1].splitlines() if block else []:
        text = line.partition("| ")[2]
        if text.startswith("offset_to_top"):
            tables.append([])
        elif "::" in text and not text.endswith("RTTI") and not text.endswith("[deleting]"):
            tables[-1].append(text)
    return tables


def simple_slot(text):
    """`bool ImportDame::VText::Is(bool) const` becomes `Is(bool)`, a destructor `destructor`."""
    if "::~" in text:
        return "destructor"
    match = re.search(r"(\w+|operator\S+)(\([^()]*\))(?: const)?(?: \[pure\])?$", text)
    return match[1] + match[2].replace(NAMESPACE, "") if match else text


def matches(stated, reported):
    return stated == reported or ("(" not in stated and stated == reported.partition("(")[0])


def difference(what, stated, reported, same):
    if len(stated) == len(reported) and all(map(same, stated, reported)):
        return []
    return [f"{what} differ\n  stated:   {', '.join(stated) or 'none'}\n  compiled: {', '.join(reported) or 'none'}"]


def check_class(classes, name, records, dump):
    """What differs between the table and the compiled class."""
    if name not in records:
        return [f"{name} was not reported by clang"]
    stated, reported = classes[name], records[name]
    equal = str.__eq__
    found = difference(f"{name}: bases", stated.bases, reported.bases, equal)
    found += difference(f"{name}: fields", stated.fields, reported.fields, equal)
    if reported.has_own_table and not stated.slots:
        found.append(f"{name}: no virtual operation is stated, but it has some")
    expected = [table for table in [all_slots(classes, name)] + secondary_slots(classes, name) if table]
    tables = [[simple_slot(text) for text in table] for table in reported_slots(dump, name)]
    if len(expected) != len(tables):
        return found + [f"{name}: {len(expected)} tables of virtual operations stated, {len(tables)} compiled"]
    for number, (slots, compiled) in enumerate(zip(expected, tables)):
        found += difference(f"{name}: slots of table {number}", slots, compiled, matches)
    return found


def check(clang, table, flags):
    """All differences between the table and what clang makes of the headers with these flags."""
    classes, headers, complete = read_table(table)
    unknown = {base for layout in classes.values() for base in layout.bases} - set(classes)
    if unknown:
        raise ValueError(f"bases that are not in the table: {', '.join(sorted(unknown))}")
    dump = run_clang(clang, flags, probe_source(classes, headers))
    records = reported_records(dump)
    found = [text for header in complete for text in missing_classes(classes, header, flags)]
    found += [text for name in classes for text in check_class(classes, name, records, dump)]
    return len(classes), found


def main():
    separator = sys.argv.index("--")
    clang, table = sys.argv[1:separator]
    count, found = check(clang, pathlib.Path(table), sys.argv[separator + 1:])
    print("\n".join(found + [f"{count} classes compared, {len(found)} differences"]))
    return 1 if found or not count else 0


if __name__ == "__main__":
    sys.exit(main())

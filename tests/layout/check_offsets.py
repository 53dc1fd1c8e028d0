"""check_offsets.py ABIDW LIBRARY LIST [--update]

Compares the sizes of the public classes, the offsets of their bases and fields, and the numbers of their enumerations, as
abidw reads them from the debug information of the built library, with the committed list. With --update, writes the list.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

SUPPRESSIONS = """
[suppress_function]
  symbol_name_regexp = .
  drop = yes
"""


def read_library(abidw, library):
    """What abidw tells about the library. Functions are left out: the lists of exports have them."""
    with tempfile.TemporaryDirectory() as folder:
        suppressions = pathlib.Path(folder) / "suppressions"
        suppressions.write_text(SUPPRESSIONS, encoding="utf-8")
        result = pathlib.Path(folder) / "library.xml"
        subprocess.run([abidw, "--suppressions", suppressions, "--load-all-types", "--out-file", result, library], check=True)
        return xml.etree.ElementTree.parse(result).getroot()


def enumeration_text(enumeration):
    members = [f"\n    {member.get('name')} = {member.get('value')}" for member in enumeration.iter("enumerator")]
    return f"\n  enum {enumeration.get('name')}" + "".join(members)


def layout_text(declaration, names):
    """The sizes and offsets are in bits."""
    text = f"class {declaration.get('name')} of {declaration.get('size-in-bits')}"
    for base in declaration.findall("base-class"):
        text += f"\n  base {names[base.get('type-id')]} at {base.get('layout-offset-in-bits')}"
    for member in declaration.findall("data-member"):
        if member.get("static") != "yes":
            text += f"\n  field {member.find('var-decl').get('name')} at {member.get('layout-offset-in-bits')}"
    return text


def public_classes(root):
    """The descriptions of the public classes, in alphabetical order. Each source file may know other enumerations."""
    names = {declaration.get("id"): declaration.get("name") for declaration in root.iter("class-decl")}
    layouts = {}
    for declaration in root.findall(".//namespace-decl[@name='ImportDame']/class-decl[@size-in-bits]"):
        if re.fullmatch(r"V\w+", declaration.get("name")) and declaration.get("is-declaration-only") != "yes":
            enumerations = layouts.setdefault(layout_text(declaration, names), set())
            enumerations.update(enumeration_text(each) for each in declaration.findall("member-type/enum-decl"))
    return [layout + "".join(sorted(layouts[layout])) for layout in sorted(layouts)]


def main():
    abidw, library, path = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
    found = public_classes(read_library(abidw, library))
    if "--update" in sys.argv:
        path.write_text("\n".join(found) + "\n", encoding="utf-8")
        return 0
    stated = re.findall(r"^class .*(?:\n .*)*", path.read_text(encoding="utf-8"), re.MULTILINE)
    for text in sorted(set(found) ^ set(stated)):
        print(f"{'compiled' if text in found else 'stated'}:\n{text}")
    print(f"{len(found)} classes compared")
    return 0 if found == stated and found else 1


sys.exit(main())

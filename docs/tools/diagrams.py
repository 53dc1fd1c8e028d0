"""diagrams.py HEADERS OUTPUT [--check]

Draws the class families and who owns whom, from the headers: what a class inherits from is its family, what it holds by
value, by unique_ptr or in an owning container it owns, what it points to it borrows. Writes OUTPUT/<name>.svg with
Graphviz; --check fails where a picture that is there shows other classes or lines.

DIAGRAMS says which classes each picture shows.
"""

import html
import pathlib
import re
import subprocess
import sys

# name: (classes whose members are drawn, family roots whose subclasses are drawn)
DIAGRAMS = {
    "document": (["ImportDoc", "DataTypeCollection", "TroubleCodeCollectionCollection", "InterchangeableCollection",
                  "UnitCollection", "BaseVariant", "EcuVariantCollection"], []),
    "trouble-codes": (["TroubleCodeCollectionCollection", "TroubleCodeCollection", "Mappable", "TroubleCode",
                       "RecordItemCollection", "RecordItem", "RecordTemplateMapping", "AttributeCollection"], ["Mappable"]),
    "data-types": ([], ["DataType"]),
    "conversions": (["IdentityDataType", "LinearDataType", "PiecewiseLinearDataType", "ValueTableDataType",
                     "TextTableDataType", "FormulaDataType", "ProcedureDataType"], []),
    "packets": (["BasePacketDataType", "MuxDataType", "CaseCollection", "Case", "InterchangeableCollection",
                 "BaseDataObject", "DataObject", "BitField"], ["Interchangeable"]),
    "variants": (["BaseVariant", "EcuVariantCollection", "Variant", "DiagCommCollection", "DiagService",
                  "DiagServiceShapeCollection"], ["Variant", "DiagComm"]),
    "visitors": ([], ["DataTypeVisitor", "InterchangeableVisitor", "VariantVisitor", "DiagCommVisitor"]),
}
LEFT_OUT = {"Text", "Value", "ImportDoc"}  # borrowed or held by nearly every class

CLASS = re.compile(r"^class IMPORTDAME_API V(\w+)(?: : ([^{]*))? \{(.*?)^\};", re.M | re.S)
MANY = r"(?:detail::Owning\w+|std::vector)<V(\w+)>|detail::InterchangeableArray"
MEMBER = re.compile(rf"^    (?:\[\[no_unique_address\]\] )?"
                    rf"(?:(?P<many>{MANY})|(?:const )?std::unique_ptr<V(?P<held>\w+)>|V(?P<value>\w+)(?P<borrowed>[*&]?)) "
                    r"m_?\w+(?: = [^;]*)?;", re.M)


class Model:
    def __init__(self, folder):
        self.bases, self.members = {}, {}
        for header in sorted(folder.glob("*.h")):
            for name, bases, body in CLASS.findall(header.read_text()):
                self.bases[name] = re.findall(r"public V(\w+)", bases)
                self.members[name] = [self.member(match) for match in MEMBER.finditer(body)]

    @staticmethod
    def member(match):
        if match["many"]:
            element = re.search(r"V(\w+)>", match["many"])
            return (element[1] if element else "Interchangeable", "many")
        if match["held"]:
            return (match["held"], "one")
        return (match["value"], "borrowed" if match["borrowed"] else "one")

    def family(self, root):
        found = [root]
        for name in found:
            found += [other for other, bases in self.bases.items() if name in bases and other not in found]
        return found


STYLE = {"many": 'label="*", dir=both, arrowtail=diamond, arrowhead=none',
         "one": 'dir=both, arrowtail=diamond, arrowhead=none',
         "borrowed": 'style=dashed, arrowhead=vee'}


def dot(model, name):
    owners, roots = DIAGRAMS[name]
    edges, nodes = [], set(owners)
    for owner in owners:
        for target, kind in dict.fromkeys(model.members[owner]):
            if target in model.bases and target not in LEFT_OUT:
                edges.append(f'"V{owner}" -> "V{target}" [{STYLE[kind]}];')
                nodes |= {owner, target}
    family = {member for root in roots for member in model.family(root)}
    for derived in sorted(family | nodes):
        for base in model.bases[derived]:
            if base in nodes | family and (derived in family or base in family):
                edges.append(f'"V{base}" -> "V{derived}" [dir=back, arrowtail=onormal];')
                nodes |= {base, derived}
    lines = ["digraph {", 'rankdir=LR; bgcolor=transparent; ranksep=0.3; nodesep=0.12; tooltip=" ";',
             'node [shape=box, style="filled,rounded", fillcolor="#eef3f8", color="#5b7fa3", fontname="Helvetica", '
             'fontsize=11, height=0.28, margin="0.12,0.04"];',
             'edge [color="#44546a", fontname="Helvetica", fontsize=11, arrowsize=0.8];']
    lines += [f'"V{node}";' for node in sorted(nodes)]
    return "\n".join(lines + edges + ["}"])


def titles(text):
    """What a picture in SVG shows, by the titles that Graphviz gives nodes and lines."""
    return sorted(html.unescape(title) for title in re.findall(r'class="(?:node|edge)">\s*<title>(.*?)</title>', text))


def expected_titles(text):
    nodes = re.findall(r'^"(V\w+)";', text, re.M)
    return sorted(nodes + [f"{a}->{b}" for a, b in re.findall(r'^"(V\w+)" -> "(V\w+)"', text, re.M)])


def main(headers, output, check):
    model = Model(headers)
    for name in DIAGRAMS:
        text, picture = dot(model, name), output / f"{name}.svg"
        if check and titles(picture.read_text()) != expected_titles(text):
            sys.exit(f"{picture} is not what the headers say; draw it again with the target UpdateDiagrams.")
        if not check:
            svg = subprocess.run(["dot", "-Tsvg"], input=text, text=True, check=True, capture_output=True).stdout
            picture.write_text(re.sub(r"<!--.*?-->\n?", "", svg, flags=re.S))


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), "--check" in sys.argv)

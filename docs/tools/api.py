"""The reference of all classes, as pages, from the XML that Doxygen writes."""

import html
import re
import xml.etree.ElementTree as tree

SECTIONS = [
    ("public-type", "Types"), ("public-static-attrib", "Constants"), ("public-attrib", "Fields"),
    ("public-func", "Operations"), ("public-static-func", "Static operations"), ("user-defined", "Operations"),
    ("protected-func", "For subclasses"),
]
GROUPS = [("ImportDame", "The model"), ("KoLogging", "The log"), ("KoCustomCrashHandling", "Crash dumps")]
TAGS = {"para": "p", "itemizedlist": "ul", "listitem": "li", "computeroutput": "code", "emphasis": "em", "bold": "b"}


def plain(node):
    return "".join(node.itertext()).strip() if node is not None else ""


class Reference:
    def __init__(self, folder):
        self.classes, self.functions = {}, []
        for entry in tree.parse(folder / "index.xml").getroot():
            if entry.get("kind") not in ("class", "struct", "namespace"):
                continue
            compound = tree.parse(folder / f"{entry.get('refid')}.xml").getroot().find("compounddef")
            name = plain(compound.find("compoundname"))
            if "detail" in name:
                continue
            if entry.get("kind") == "namespace":
                self.functions += [(name, member) for member in compound.iter("memberdef")
                                   if member.get("kind") in ("function", "enum")]
            else:
                self.classes[name.rsplit("::", 1)[-1]] = compound

    def linked(self, text):
        return re.sub(r"\bV[A-Z]\w+", lambda match: self.link(match[0]), html.escape(text))

    def link(self, name):
        return f'<a href="{name}.html">{name}</a>' if name in self.classes else name

    def rendered(self, node):
        if node is None:
            return ""
        parts = [html.escape(node.text or "")]
        for child in node:
            inner = self.rendered(child)
            tag = TAGS.get(child.tag)
            if child.tag == "ref":
                inner = self.link(inner)
            parts.append(f"<{tag}>{inner}</{tag}>" if tag else inner)
            parts.append(html.escape(child.tail or ""))
        text = "".join(parts)
        if node.tag == "computeroutput":
            text = re.sub(r"^V[A-Z]\w+$", lambda match: self.link(match[0]), text)
        return text

    def description(self, node):
        text = self.rendered(node.find("briefdescription")) + self.rendered(node.find("detaileddescription"))
        return re.sub(r"<p>\s*</p>", "", re.sub(r"<p>(?=<p>|<ul>)|(?<=</ul>)</p>", "", text))

    def brief(self, compound):
        return re.sub(r"</?p>", "", self.rendered(compound.find("briefdescription")))

    def signature(self, member):
        if member.get("kind") == "enum":
            return f"enum {plain(member.find('name'))}"
        definition = f"{plain(member.find('type'))} {plain(member.find('name'))}{plain(member.find('argsstring'))}"
        if member.get("kind") == "typedef":
            definition = f"using {plain(member.find('name'))} = {plain(member.find('type'))}"
        prefix = "static " if member.get("static") == "yes" and member.get("kind") == "function" else ""
        prefix += "virtual " if member.get("virt") in ("virtual", "pure-virtual") else ""
        definition = re.sub(r" ([&*]+)(?: ?(?=\w))", r"\1 ", re.sub(r"\s+", " ", definition))
        return prefix + definition.strip()

    def member(self, member):
        values = "".join(
            f"<tr><td><code>{plain(value.find('name'))}</code></td><td>{plain(value.find('initializer')).lstrip('= ')}</td>"
            f"<td>{re.sub('</?p>', '', self.description(value))}</td></tr>" for value in member.findall("enumvalue"))
        table = f'<div class="wide"><table>{values}</table></div>' if values else ""
        return (f'<div class="member" id="{member.get("id")}"><code class="signature">{self.linked(self.signature(member))}'
                f"</code>{self.description(member)}{table}</div>")

    def class_page(self, name, compound):
        header = re.sub(r".*/(?=(?:ImportDame|KoLogging|KoCustomCrashHandling)/)", "", compound.find("location").get("file"))
        family = [(label, [self.link(plain(base).rsplit("::", 1)[-1]) for base in compound.findall(kind)])
                  for label, kind in (("Inherits", "basecompoundref"), ("Subclasses", "derivedcompoundref"))]
        lines = "".join(f"<p>{label}: {', '.join(links)}</p>" for label, links in family if links)
        parts = [f"<h1>{name}</h1>", self.description(compound),
                 f'<div class="facts"><p><code>#include &lt;{header}&gt;</code></p>{lines}</div>']
        for kind, title in SECTIONS:
            members = [self.member(member) for section in compound.findall(f"sectiondef[@kind='{kind}']")
                       for member in section.findall("memberdef") if not re.search("= ?delete|friend|~V", self.signature(member))
                       and member.get("prot") != "private"]
            if members:
                parts.append(f"<h2>{title}</h2>" + "".join(members))
        return "".join(parts)

    def index_page(self):
        parts = ["<h1>Reference</h1><p>Every class, and the few functions. What an operation requires stands at it; what "
                 'happens otherwise is told by <a href="../contracts.html">contracts and failures</a>.</p>']
        for folder, title in GROUPS:
            rows = "".join(f"<tr><td><code>{self.link(name)}</code></td><td>{self.brief(compound)}</td></tr>"
                           for name, compound in sorted(self.classes.items())
                           if f"{folder}/" in compound.find("location").get("file"))
            if rows:
                parts.append(f'<h2>{title}</h2><div class="wide"><table class="classes">{rows}</table></div>')
        parts.append("<h2>Functions</h2>" + "".join(
            f"<p class=namespace>namespace <code>{namespace}</code></p>{self.member(member)}"
            for namespace, member in self.functions))
        return "".join(parts)

    def pages(self):
        yield "api/index.html", "Reference", self.index_page()
        for name, compound in sorted(self.classes.items()):
            yield f"api/{name}.html", name, self.class_page(name, compound)

"""site.py ROOT XML OUTPUT

Makes the site: the pages of ROOT, and the reference of all classes from what Doxygen wrote to XML. Fails where a link of the
site leads nowhere.
"""

import html
import os
import pathlib
import re
import shutil
import subprocess
import sys

from api import Reference
from markdown import anchor

NAVIGATION = {
    "Library": [("README.md", "Overview"), ("docs/model.md", "The model"), ("docs/importers.md", "Writing an importer"),
                ("docs/backends.md", "Writing a back end"), ("docs/contracts.md", "Contracts and failures"),
                ("api", "Reference")],
    "Console importer": [("docs/console-import.md", "Command line"), ("docs/odx-import.md", "From ODX"),
                         ("docs/diagnostics.md", "Diagnostics"), ("docs/database.md", "Database")],
    "Project": [("docs/design.md", "Design"), ("docs/testing.md", "Tests"), ("docs/performance.md", "Speed and memory"),
                ("docs/import-speed.md", "Speed of an import"),
                ("CONTRIBUTING.md", "Contributing"), ("CHANGELOG.md", "Changes"), ("SECURITY.md", "Security")],
}
SOURCES = [source for group in NAVIGATION.values() for source, _ in group if source != "api"]
TOKEN = re.compile(r"(?P<comment>//[^\n]*|(?:(?<=\s)|^)#(?!include)[^\n]*)|(?P<string>L?&quot;.*?&quot;|'[^'\n]*')"
                   r"|(?P<name>\bV[A-Z]\w+\b)|(?P<keyword>\b(?:auto|bool|catch|class|const|for|if|int|namespace|nullptr|"
                   r"override|private|protected|public|return|static|throw|try|unsigned|using|void|while|SELECT|FROM|WHERE|"
                   r"GROUP BY|ORDER BY|DESC|LIMIT|AS)\b)", re.M)


def output_name(source):
    if source == "api":
        return "api/index.html"
    return "index.html" if source == "README.md" else pathlib.Path(source).stem.lower() + ".html"


class Site:
    def __init__(self, root, reference, output):
        self.root, self.reference, self.output = root, reference, output
        self.template = (root / "docs/site/page.html").read_text()
        self.pages = {}

    def write(self, name, title, body):
        up = "../" * name.count("/")
        groups = []
        for group, entries in NAVIGATION.items():
            links = []
            for source, label in entries:
                target = output_name(source)
                here = target == name or (source == "api" and name.startswith("api/"))
                links.append(f'<li><a href="{up}{target}"{" aria-current=page" if here else ""}>{label}</a></li>')
            groups.append(f"<h2>{group}</h2><ul>{''.join(links)}</ul>")
        text = self.template
        for key, value in {"title": title, "up": up, "navigation": "".join(groups), "body": body}.items():
            text = text.replace("{{" + key + "}}", value)
        path = self.output / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        self.pages[name] = text

    def linked_class(self, name, up):
        return f'<a href="{up}api/{name}.html">{name}</a>' if name in self.reference.classes else name

    def code(self, text, up):
        def token(match):
            kind = match.lastgroup
            return self.linked_class(match[0], up) if kind == "name" else f'<span class="{kind}">{match[0]}</span>'
        return TOKEN.sub(token, text)

    def page(self, source):
        path = self.root / source
        body = subprocess.run(["cmark-gfm", "-e", "table", "-e", "autolink", path], check=True, text=True,
                              capture_output=True).stdout
        body = re.sub(r"<h([1-4])>(.*?)</h\1>", self.heading, body)
        body = re.sub(r'href="([^"#:]*\.md)', lambda match: f'href="{self.target(path, match[1])}', body)
        body = re.sub(r"<table>", '<div class="wide"><table>', body).replace("</table>", "</table></div>")
        body = re.sub(r'<p><img src="([^"]*)" alt="([^"]*)" ?/?></p>', self.figure, body)
        body = re.sub(r'(<pre><code class="language-(?:cpp|sql|sh|cmake)[^"]*">)(.*?)(</code></pre>)',
                      lambda match: match[1] + self.code(match[2], "") + match[3], body, flags=re.S)
        body = re.sub(r"<code>(V[A-Z]\w+)</code>", lambda match: f"<code>{self.linked_class(match[1], '')}</code>", body)
        title = re.search(r"<h1[^>]*>(.*?)</h1>", body)[1]
        self.write(output_name(source), re.sub(r"<[^>]*>|#$", "", title), body)

    @staticmethod
    def heading(match):
        name = anchor(html.unescape(re.sub(r"<[^>]*>", "", match[2])))
        return f'<h{match[1]} id="{name}">{match[2]}</h{match[1]}>'

    def target(self, page, link):
        source = os.path.relpath((page.parent / link).resolve(), self.root)
        if source not in SOURCES:
            sys.exit(f"{page}: {link} is no page of the site")
        return output_name(source)

    def figure(self, match):
        return f'<figure class="wide"><img src="{match[1]}" alt="{match[2]}"><figcaption>{match[2]}</figcaption></figure>'

    def check_links(self):
        broken = []
        for name, text in self.pages.items():
            for link in re.findall(r'(?:href|src)="([^"]+)"', text):
                if re.match(r"https?:|mailto:", link):
                    continue
                file, _, place = html.unescape(link).partition("#")
                path = os.path.normpath(os.path.join(os.path.dirname(name), file)) if file else name
                if not (self.output / path).exists() or (place and f'id="{place}"' not in self.pages.get(path, "")):
                    broken.append(f"{name}: {link}")
        if broken:
            sys.exit("Links that lead nowhere:\n" + "\n".join(broken))


def main(root, xml, output):
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    reference = Reference(xml)
    site = Site(root, reference, output)
    for source in SOURCES:
        site.page(source)
    for name, title, body in reference.pages():
        site.write(name, title, body)
    shutil.copytree(root / "docs/diagrams", output / "diagrams")
    shutil.copy(root / "docs/site/style.css", output)
    site.check_links()
    print(f"{len(site.pages)} pages in {output}")


if __name__ == "__main__":
    main(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:]))

"""doxygen_filter.py HEADER: the header with a sentence at every operation whose kind says what it does.

What is the same in all classes is told here once, and not in every header. An operation with a description of its own keeps
it; one that is neither described nor of a kind known here stays without, and Doxygen reports it. Lines stay where they are.
"""

import pathlib
import re
import sys

KINDS = [  # pattern of the declaration, sentence; \1 is the first group
    (r"using iterator =", r"A place in the collection: that of an element, or the end."),
    (r"(?:walk_)?iterator (?:Begin|begin)\(\)", r"The place of the first element; the end where there is none."),
    (r"(?:walk_)?iterator (?:End|end)\(\)", r"The end: the place behind the last element."),
    (r"unsigned long long Count\(\)", r"The number of elements."),
    (r"bool IsEmpty\(\)", r"Whether there is no element."),
    (r"bool operator!=", r"Whether `==` is false."),
    (r"(?:explicit )?V(\w+)\(const V\1&.*= delete", r"There are no copies."),
    (r"V\w+& operator=\(.*= delete", r"There is no assignment."),
    (r"V(\w+)\(const V\1&", r"A copy of everything."),
    (r"V\w+& operator=\(", r"Takes over everything from the other one."),
    (r"explicit V\w+\(VImportDoc& \w+\)", r"The document is borrowed, and has to live longer."),
    (r"explicit V\w+\(VDataTypeCollection& \w+\)",
     r"Belongs to the document of the collection, which does not own it until it is appended."),
    (r"V\w+\(\) = default", r"Nothing to be set."),
    (r"(?:virtual )?void Accept\(", r"Calls the visitor's operation for this kind; descends into nothing."),
    (r"(?:virtual )?void Visit(\w+)\(", r"Visits one V\1."),
    (r"(?:virtual )?void Dispatch\w+\(", r"Lets the element call the operation of its kind."),
    (r"(?:virtual )?void Traverse\w*\(", r"Walks it: the three hooks of its kind, one after the other."),
    (r"(?:virtual )?void PreProcess\w+\(", r"Hook before what is inside is entered."),
    (r"(?:virtual )?void Descend\w+\(", r"Hook that enters what is inside."),
    (r"(?:virtual )?void PostProcess\w+\(", r"Hook after what is inside was entered."),
    (r"using (?:iterator_category|value_type|difference_type|pointer|reference) =",
     r"As the standard library asks it of a forward iterator."),
    (r".*VExternalIterator(?:\(It position\)|& operator\+\+|\s*operator\+\+)|.*operator(?:\*|->)\(\)",
     r"As of any forward iterator."),
    (r"bool operator==\(const VExternalIterator&", r"Whether both are at the same place."),
    (r"V\w+& operator<<\(", r"Appends it, and answers the same record."),
    (r"(?:virtual )?void (Is\w+)\(bool", r"Sets what `\1()` answers."),
    (r"(?:virtual )?void (ReasonForIsImported)\(V", r"Sets what `\1()` answers."),
    (r"static void\* operator new\(std::size_t, void\*", r"For an object at a place that the caller has."),
    (r"static void operator delete\(void\*, void\*", r"Leaves the place to the caller."),
    (r"static void operator delete", r"Gives the memory back to the library."),
    (r"(?:virtual )?V(\w+)& (?:Get)?\1\(\)", r"A part of this object, which lives as long as it does."),
    (r"V\w+& AddNew\w+\(", r"Creates one of its kind at the end."),
    (r"V\w+& Make(\w+)\(", r"Creates a V\1 that belongs to nobody yet."),
    (r"void Append(\w+)\(V\1&", r"Takes over an element of this kind at the end."),
]
FIELD = re.compile(r"(?:virtual )?[\w:&* ]+?\b(Get|Set|Has|Unset)(\w+)\(")
DECLARATION = re.compile(r"^    (?:\[\[.*\]\] )?[\w:~]")


def of_field(line, described):
    """The sentence for one of the operations on a field, where another one of them is described."""
    match = FIELD.match(line)
    if not match:
        return None
    verb, field = match[1], match[2]
    others = {other for other, name in described if name == field}
    if verb == "Has":
        return "Whether there is one."
    if verb == "Unset":
        return f"From now on there is none: `Has{field}` is false."
    if verb == "Set" and "Has" in others:
        return f"From now on there is one: `Has{field}` is true."
    if verb == "Set" and "Get" in others:
        return f"Sets what `Get{field}` answers."
    if verb == "Get" and "Set" in others:
        return f"What `Set{field}` set last."
    return None


def sentence(line, described):
    for pattern, text in KINDS:
        match = re.match(pattern, line)
        if match:
            return match.expand(text)
    return of_field(line, described)


def fields_described(lines):
    """(verb, field) of all operations with a comment, and of all Has…, which need none."""
    found = set()
    for previous, line in zip([""] + lines, lines):
        match = FIELD.match(line.strip())
        if match and (previous.strip().startswith("///") or match[1] == "Has"):
            found.add((match[1], match[2]))
    return found


def main(path):
    lines = path.read_text().splitlines()
    described = fields_described(lines)
    previous = ""
    for line in lines:
        if line == "namespace NValueUtil = ::NValueUtil;":
            line = ""  # Doxygen takes it for a recursion
        if DECLARATION.match(line) and not previous.strip().startswith("///") and "///<" not in line:
            text = sentence(line.strip(), described)
            if text:
                indent = len(line) - len(line.lstrip())
                line = f"{line[:indent]}/** {text} */ {line[indent:]}"
        previous = line
        print(line)


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))

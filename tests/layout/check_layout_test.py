"""Tests of check_layout.py: it accepts the layout that the table states and reports every departure from it."""

import os
import pathlib
import tempfile
import unittest

import check_layout

HEADER = """
namespace ImportDame {
class Base {
public:
    virtual ~Base();
    virtual void Set(const wchar_t* text);
    virtual bool Is() const;
    virtual void Is(bool is);
private:
    long m_text;
    bool m_is = true;
};
class Mixin {
public:
    virtual ~Mixin();
    virtual Base& Mapping();
    int m_mapping;
};
class Derived : public Base, public Mixin {
public:
    ~Derived() override;
    void Set(const wchar_t* text) override;
    virtual void Accept(Base& visitor) = 0;
private:
    Base* m_first;
    Base m_second;
};
}
"""

TABLE = """
header Classes.h
class Base # the base of all
    field m_text
    field m_is
    slot destructor
    slot Set
    slot Is()
    slot Is(bool)
class Mixin
    field m_mapping
    slot destructor
    slot Mapping
class Derived : Base, Mixin
    field m_first
    helper m_second
    slot Accept
"""


class CheckLayoutTest(unittest.TestCase):
    def differences(self, header=HEADER, table=TABLE):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "Classes.h").write_text(header, encoding="utf-8")
            (folder / "layout.txt").write_text(table, encoding="utf-8")
            return check_layout.check(os.environ["CLANG"], folder / "layout.txt", ["-std=c++20", "-I", name])[1]

    def assert_one_difference(self, expected, **changed):
        found = self.differences(**changed)
        self.assertEqual(len(found), 1, found)
        self.assertIn(expected, found[0])

    def changed_header(self, old, new):
        self.assertEqual(HEADER.count(old), 1)
        return HEADER.replace(old, new)

    def changed_table(self, old, new):
        self.assertEqual(TABLE.count(old), 1)
        return TABLE.replace(old, new)

    def test_accepts_the_stated_layout(self):
        self.assertEqual(self.differences(), [])

    def test_reports_fields_in_another_order(self):
        header = self.changed_header("long m_text;\n    bool m_is = true;", "bool m_is = true; long m_text;")
        self.assert_one_difference("Base: fields differ", header=header)

    def test_reports_a_field_that_is_not_stated(self):
        header = self.changed_header("bool m_is = true;", "bool m_is = true; int m_more;")
        self.assert_one_difference("Base: fields differ", header=header)

    def test_reports_a_field_that_is_missing(self):
        self.assert_one_difference("Derived: fields differ", header=self.changed_header("Base* m_first;", ""))

    def test_a_helper_takes_part_in_the_order(self):
        table = self.changed_table("field m_first\n    helper m_second", "helper m_second\n    field m_first")
        self.assert_one_difference("Derived: fields differ", table=table)

    def test_reports_overloads_in_another_order(self):
        table = self.changed_table("slot Is()\n    slot Is(bool)", "slot Is(bool)\n    slot Is()")
        found = self.differences(table=table)
        self.assertEqual([text.splitlines()[0] for text in found],
                         ["Base: slots of table 0 differ", "Derived: slots of table 0 differ"])

    def test_reports_a_slot_that_is_missing(self):
        header = self.changed_header("virtual void Accept(Base& visitor) = 0;", "")
        self.assert_one_difference("Derived: slots of table 0 differ", header=header)

    def test_reports_a_slot_that_is_not_stated(self):
        header = self.changed_header("virtual void Accept(Base& visitor) = 0;",
                                     "virtual void Accept(Base& visitor) = 0; virtual void More();")
        self.assert_one_difference("Derived: slots of table 0 differ", header=header)

    def test_reports_an_operation_that_is_no_longer_virtual(self):
        header = self.changed_header("virtual Base& Mapping();", "Base& Mapping();")
        found = self.differences(header=header)
        self.assertEqual([text.splitlines()[0] for text in found],
                         ["Mixin: slots of table 0 differ", "Derived: slots of table 1 differ"])

    def test_reports_a_virtual_operation_of_a_class_that_states_none(self):
        table = self.changed_table("    slot destructor\n    slot Mapping\n", "")
        header = self.changed_header("virtual ~Mixin();\n    virtual Base& Mapping();", "virtual ~Mixin();")
        found = self.differences(header=header, table=table)
        self.assertEqual([text.splitlines()[0] for text in found],
                         ["Mixin: no virtual operation is stated, but it has some",
                          "Derived: 1 tables of virtual operations stated, 2 compiled"])

    def test_reports_bases_in_another_order(self):
        header = self.changed_header("public Base, public Mixin", "public Mixin, public Base")
        self.assertIn("Derived: bases differ", self.differences(header=header)[0])

    def test_reports_a_missing_base(self):
        header = self.changed_header(": public Base, public Mixin", ": public Base")
        self.assertIn("Derived: bases differ", self.differences(header=header)[0])

    def test_reports_a_declared_class_that_is_not_stated(self):
        header = HEADER.replace("class Base {", "class Forgotten;\nclass Base;\nclass Base {")
        self.assertEqual(self.differences(header=header), [])
        self.assert_one_difference("Forgotten is not in the table", header=header, table="complete Classes.h\n" + TABLE)

    def test_refuses_a_class_that_does_not_exist(self):
        with self.assertRaisesRegex(ValueError, "clang failed"):
            self.differences(table=TABLE + "class Other\n")

    def test_refuses_a_base_that_is_not_in_the_table(self):
        with self.assertRaisesRegex(ValueError, "Other"):
            self.differences(table=TABLE + "class More : Other\n")

    def test_refuses_a_line_that_it_does_not_know(self):
        with self.assertRaisesRegex(ValueError, "layout.txt:.*feild"):
            self.differences(table=TABLE + "    feild m_text\n")

    def test_refuses_a_class_that_is_stated_twice(self):
        with self.assertRaisesRegex(ValueError, "Base stands in the table twice"):
            self.differences(table=TABLE + "class Base\n")


if __name__ == "__main__":
    unittest.main()

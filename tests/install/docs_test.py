"""The table of tickets, the manual, the sample queues and the filter name the same options, attributes and choices.

usage: docs_test.py WHAT-IS-READ TICKETS MANUAL PPD...
"""

import re
import subprocess
import sys
import unittest
from pathlib import Path

READ, TICKETS, MANUAL, *PPDS = sys.argv[1:]
ATTRIBUTES = "PPD attributes"


def contents(path):
    return Path(path).read_text(encoding="utf-8")


def full_name(name):
    return "com.orvane.dlg.printsettings" + name if name[0] == "." else name


def quoted(text):
    return set(re.findall("`([^`]+)`", text))


def is_ours(option):
    return option.startswith("OV") or option == "Smoothing"


class Docs(unittest.TestCase):
    def setUp(self):
        """The table's rows, by name: section, values, lines; what the filter reads; what the sample queues offer."""
        self.table, self.read, self.choices = {}, {}, {}
        self.attributes, self.given, self.triggers = set(), set(), set()
        for section in re.split("^## ", contents(TICKETS), flags=re.M):
            for name, values, lines in re.findall(r"^\| `([^`]+)` \|([^|]*)\|([^|]*)\|$", section, re.M):
                row = self.table.setdefault(full_name(name), ["", "", ""])
                row[:] = section.split("\n")[0], row[1] + values, row[2] + lines
        self.options = {name for name, row in self.table.items() if row[0] != ATTRIBUTES}
        for line in subprocess.run([READ, *PPDS], check=True, capture_output=True, text=True).stderr.splitlines():
            kind, words = line.split(" ", 1)
            self.read.setdefault(kind, []).append(words)
        for ppd in map(contents, PPDS):
            # What is installed concerns constraints alone.
            ppd = re.sub(r"^\*OpenGroup: InstallableOptions.*?^\*CloseGroup", "", ppd, flags=re.M | re.S)
            self.attributes.update(re.findall(r"^\*(\w+)", ppd, re.M))
            for option, given in re.findall(r'^\*OVTicket ([^.:]+)[^:]*: "([^"]*)"', ppd, re.M):
                self.triggers.add(option)
                names = re.findall(r"(?:^| )([^ =']+)=", given)
                self.given.update(full_name(re.sub(r"(ZPIF.*)\d$", r"\1<n>", name)) for name in names)
            for option in re.findall(r"^\*OpenUI \*(\w+)", ppd, re.M):
                self.choices.setdefault(option, set()).update(re.findall(rf"^\*{option} ([^/:]+)", ppd, re.M))

    def test_table_has_what_the_filter_reads(self):
        read = {re.sub("(ZPIF.*)0$", r"\1<n>", name) for name in self.read["option"]}
        read.update(feature.split(" ")[0] for feature in self.read["feature"])
        self.assertEqual(self.options, read)

    def test_manual_has_what_the_table_has(self):
        section = contents(MANUAL).split("\n.SH OPTIONS AND TICKETS")[1].split("\n.SH")[0].split("\n.SS", 1)[1]
        names = {full_name(re.sub(r"\\[-:]", lambda m: m[0][1:].strip(":"), name))
                 for name in re.findall(r"^\.BR? (\S+)", section, re.M)}
        self.assertEqual(set(self.table), names)

    def test_sample_queues_have_what_the_table_has(self):
        offered = {name for name in self.choices if is_ours(name)}
        self.assertLessEqual({name for name in self.options if is_ours(name)}, offered)
        self.assertLessEqual(offered - self.options, self.triggers)
        self.assertLessEqual(self.given, self.options)
        attributes = set(self.table) - self.options
        self.assertLessEqual(attributes, self.attributes)
        ours = {name for name in self.attributes - set(self.choices) if re.match("OV|QBX", name)}
        self.assertLessEqual(ours, attributes)

    def test_table_has_the_choices(self):
        everywhere = quoted(contents(TICKETS))
        for option in filter(is_ours, self.options & set(self.choices)):
            # A row without values of its own takes a number, or a value of the lists below it.
            values = quoted(self.table[option][1])
            known = values or everywhere.union(c for c in self.choices[option] if re.fullmatch("-?[0-9]+(mm)?", c))
            self.assertLessEqual(self.choices[option], known, option)
        for keyword, value, command in (feature.split(" ", 2) for feature in self.read["feature"]):
            self.assertIn(value, quoted(self.table[keyword][1]), keyword)
            self.assertIn(re.search("[^ @]*=(?=[^=]*$)", command)[0], self.table[keyword][2], keyword)
        self.assertLessEqual(set(self.read["binding"]), everywhere)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)

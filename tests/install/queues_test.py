"""The PPDs of the sample queues: cupstestppd has nothing to say, names are there and mean what they say, texts are
Japanese too, and what is chosen for a watermark is drawn.

usage: queues_test.py FILTER CUPSTESTPPD SOURCES PPD...
"""

import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

FILTER, CUPSTESTPPD, SOURCES, *PPDS = sys.argv[1:]
# Terms and sizes that are the same in Japanese.
SAME = re.compile(r"[\d., x+-]+( mm| in| pt| dpi| %)?|(JIS )?[AB]\d|\d+K( large)?|\d+K.* mm|SRA3|A4 cover, .*|sRGB|"
                  r"Adobe RGB|(Helvetica|Times|Courier)( Bold)?")


def facts(kind):
    """What the facts of a kind are about, and what must hold: a list."""
    text = Path(SOURCES, "tests/data/queues.facts").read_text(encoding="utf-8")
    text = re.sub(r" \\\n +", " ", text)
    rows = (row.split(" | ") for row in re.findall(f"^{kind} .*", text, re.M))
    return {about: hold for _, about, *hold in rows}


class Queue:
    def __init__(self, path):
        self.text = Path(path).read_text(encoding="utf-8")
        self.options = {option: re.findall(rf"^\*{option} ([^/:]+)", self.text, re.M)
                        for option in re.findall(r"^\*OpenUI \*(\w+)", self.text, re.M)}
        for option in re.findall(r"^\*Custom(\w+) True:", self.text, re.M):
            self.options[option].append("Custom")

    def found(self, pattern):
        return re.findall(pattern, self.text, re.M)


def each_queue(test):
    def run(self):
        for path in PPDS:
            with self.subTest(path):
                test(self, Queue(path))
    return run


class Queues(unittest.TestCase):
    maxDiff = None

    def test_nothing_to_say_about_them(self):
        said = subprocess.run([CUPSTESTPPD, "-W", "filters", *PPDS], capture_output=True, text=True).stdout.splitlines()
        # Before it is installed, the filter is missing.
        said = [line for line in said if line and not re.search("Missing cupsFilter file .*pstoorvane", line)]
        self.assertEqual(said, [f"{path}: PASS" for path in PPDS])

    @each_queue
    def test_names_that_are_there(self, queue):
        named = queue.found(r'^\*(?:OVTicket |(?:cupsIPPFinishings|APPrinterPreset) .*"\*)(\w+)[. ](\w+)')
        self.assertEqual([name for name in named if name[1] not in queue.options.get(name[0], ())], [])
        self.assertGreater(len(named), 40)

    @each_queue
    def test_installed_units_matter(self, queue):
        units = re.search(r"^\*OpenGroup: InstallableOptions.*?^\*CloseGroup", queue.text, re.M | re.S)[0]
        ruled_out = queue.found(r"^\*UIConstraints: \*(\w+ \w+) \*(.+?) ?$")
        chosen = [f"{option} {choice}".strip() for option in queue.options for choice in ["", *queue.options[option]]]
        for unit in re.findall(r"^\*OpenUI \*(\w+)", units, re.M):
            *less, whole = queue.options[unit]
            self.assertIn(f"*Default{unit}: {whole}\n", queue.text)
            for state in (f"{unit} {choice}" for choice in less):
                pattern, = facts("without")[state]
                self.assertCountEqual([what for by, what in ruled_out if by == state],
                                      [what for what in chosen if re.fullmatch(pattern, what)], state)

    @each_queue
    def test_names_mean_what_they_say(self, queue):
        for option, finishings in facts("finishing").items():
            for name, choice in (finishing.split(": ") for finishing in finishings):
                self.assertIn(f'*cupsIPPFinishings {name}: "*{option} {choice}"\n', queue.text)
        codes = queue.found(r'^\*OV\w+ (?!None)(\w+?)(?:Sheets)?/.*: "[/(]?(\w+)\)?/Custom/')
        self.assertEqual([(choice, code) for choice, code in codes if choice != code], [])
        self.assertGreater(len(codes), 10)
        self.assertEqual("Black" in queue.options.get("OVColorMode", ()),
                         bool(queue.found(r'^\*APPrinterPreset Monochrome/.*"\s*\*OVColorMode Black ')))
        pin, = queue.found(r'^\*cupsJobPassword: "(1+)"')
        self.assertIn(f"*ParamCustomOVHoldPIN PIN/PIN: 1 passcode 4 {len(pin)}\n", queue.text)

    @each_queue
    def test_secrets_stay_out_of_the_document(self, queue):
        """What is typed belongs to the section JCLSetup, for which no code is written."""
        self.assertNotIn("JCLBegin", queue.text)
        for option in queue.found(r"^\*Custom(\w+) True:"):
            self.assertIn(f"*OrderDependency: 10 JCLSetup *{option}\n", queue.text)

    @each_queue
    def test_japanese_texts(self, queue):
        texts = queue.found(r"^\*ja\.(?:Translation |ParamCustom)?([A-Z]\w+)(?: [^/:]+)?/([^:]*):")
        english = [text for option, text in texts if option in queue.options
                   and text.isascii() and not SAME.fullmatch(text.replace("<3A>", "."))]
        self.assertEqual(english, [])

    def test_every_japanese_text_is_used(self):
        """A choice that got lost leaves its translation."""
        used = "".join(Queue(path).text for path in PPDS).replace("<3A>", ":")
        used += "/Options installed\n"  # of a group for which ppdc has an English text of its own
        texts = re.findall(r'^msgid "(.+)"$', Path(SOURCES, "ppd/ja.po").read_text(encoding="utf-8"), re.M)
        self.assertEqual([text for text in texts if not re.search(f"/{re.escape(text)}[:\n]", used)], [])

    def test_watermarks(self):
        for ppd in PPDS:
            for options, drawn in facts("mark").items():
                with self.subTest(ppd, options=options):
                    call = [FILTER, "1", "taro", "Report", "1", options, SOURCES + "/docs/sample.ps"]
                    job = subprocess.run(call, capture_output=True, check=True, env={**os.environ, "PPD": ppd}).stdout
                    self.assertEqual([text for text in drawn if text.encode() not in job], [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)

"""A browser sets a queue's default options on the web pages of cupsd and prints a test page, which carries them.

usage: browser.py FILTER PPD-FOLDER SCREENSHOT-FOLDER    (77 where Chromium, its driver or Selenium are missing)
"""

import os
import shutil
import sys
import unittest
from importlib.util import find_spec

from private_cups import PrivateCups, Printer, wait_for

SYSTEM = "/usr/bin/python3"  # which has the packages' modules
if not find_spec("selenium") and os.path.realpath(sys.executable) != os.path.realpath(SYSTEM):
    os.execv(SYSTEM, [SYSTEM, "-B", *sys.argv])
if not (find_spec("selenium") and shutil.which("chromium") and shutil.which("chromedriver")):
    print("skipped: chromium, chromium-driver or python3-selenium is not installed")
    sys.exit(77)

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

FILTER, PPDS, SCREENSHOTS = sys.argv[1:4]
SWITCHES = ["headless", "no-sandbox", "disable-quic", "disable-component-update", "window-size=1000,1600"]
GROUPS = {"OVHandling", "OVAccounting", "OVFinishing", "OVWatermarks", "OVColor", "OVBooklet"}
# What is chosen, and what the printer gets for it.
CHOSEN = {"OVTonerSaver": "true", "Duplex": "DuplexNoTumble", "OVHoldPIN": "Custom", "OVHoldPIN.PIN": "4711",
          "OVWatermark": "Custom", "OVWatermark.Text": "For (Yamada)", "OVMarkColor": "Red", "OVAccount": "Custom",
          "OVAccount.Account": "KST 7"}
GIVEN = [b"@PJL SET ECONOMODE=ON\n", b"PRINTJOBINFO DUPLEXTYPE=DUPLEX\n", b"@PJL SET HOLD=STORE\n", b"HOLDENCRYPTKEY=",
         b"\n(For \\050Yamada\\051)\n", b"\n0.92 0.60 0.60 setrgbcolor\n", b"@DAID=KST 7"]


class Web(unittest.TestCase):
    def setUp(self):
        os.makedirs(SCREENSHOTS, exist_ok=True)
        self.cups = self.enterContext(PrivateCups(FILTER, web=True))
        options = webdriver.ChromeOptions()
        options.ignore_local_proxy_environment_variables()
        options.binary_location = shutil.which("chromium")
        service = Service(shutil.which("chromedriver"))
        for switch in SWITCHES:
            options.add_argument(f"--{switch}")
        self.browser = self.enterContext(webdriver.Chrome(options=options, service=service))
        self.run_script = self.browser.execute_script

    def operation(self, form, operation):
        """Chooses an operation in a form of the queue's page."""
        self.browser.get(f"http://{self.cups.address}/printers/office")
        self.run_script("""const form = document.forms[arguments[0]];
                           form.OP.value = arguments[1];
                           form.submit();""", form, operation)
        gone = "return !document.forms[arguments[0]] && document.readyState == 'complete'"
        wait_for(lambda: self.run_script(gone, form), operation)

    def keep(self, name):
        self.browser.save_screenshot(os.path.join(SCREENSHOTS, name + ".png"))

    def says(self, text):
        wait_for(lambda: text in self.run_script("return document.body.innerText"), f"a page that says {text}")

    def test_defaults_and_a_test_page(self):
        printer = Printer()
        self.cups.add_queue("office", os.path.join(PPDS, "office.ppd"), printer)
        self.operation("administration", "set-printer-options")
        groups = self.run_script("return [...document.querySelectorAll('div.tab')].map(tab => tab.id)")
        self.assertLessEqual(GROUPS, set(groups))
        for group in groups:
            self.run_script("location.hash = arguments[0]", group)
            self.keep(group)
        for name, value in CHOSEN.items():
            # The names are links, too.
            field = self.browser.find_element("css selector", f'select[name="{name}"], input[name="{name}"]')
            shown = self.run_script("""const [field, value] = arguments;
                                       field.value = value;
                                       field.dispatchEvent(new Event("change"));
                                       return field.value;""", field, value)
            self.assertEqual(shown, value, name)
        self.run_script("document.querySelector('[type=submit][value=\"Set Default Options\"]').click()")
        self.says("successfully")
        self.keep("set")

        self.operation("maintenance", "print-test-page")
        self.says("sent")
        self.keep("printed")
        wait_for(lambda: printer.ended, "the last byte of the test page")
        job = bytes(printer.jobs[0])
        self.assertEqual([line for line in GIVEN if line not in job], [])
        self.assertNotIn(b"4711", job)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)

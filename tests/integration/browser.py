"""A browser sets a queue's default options on the web pages of cupsd and prints a test page, which carries them.

usage: browser.py FILTER PPD-FOLDER SCREENSHOT-FOLDER
"""

import base64
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import urllib.request

from private_cups import BOUND, PrivateCups, Printer, wait_for

FILTER, PPDS, SCREENSHOTS = sys.argv[1:4]
NEEDED = "chromium", "chromedriver"
if missing := [name for name in NEEDED if not shutil.which(name)]:
    print("skipped: not installed:", *missing)
    sys.exit(77)

SWITCHES = ["headless", "no-sandbox", "disable-gpu", "disable-quic", "no-first-run", "disable-background-networking",
            "disable-component-update", "disable-sync", "window-size=1000,1600"]
ELEMENT = "element-6066-11e4-a52e-4f735466cecf"  # what WebDriver calls a reference to an element
# What is chosen, and what the printer gets for it.
CHOSEN = {"OVTonerSaver": "true", "Duplex": "DuplexNoTumble", "OVHoldPIN": "Custom", "OVHoldPIN.PIN": "4711",
          "OVWatermark": "Custom", "OVWatermark.Text": "For (Yamada)", "OVMarkColor": "Red", "OVAccount": "Custom",
          "OVAccount.Account": "KST 7"}
GIVEN = [b"@PJL SET ECONOMODE=ON\n", b"PRINTJOBINFO DUPLEXTYPE=DUPLEX\n", b"@PJL SET HOLD=STORE\n", b"HOLDENCRYPTKEY=",
         b"\n(For \\050Yamada\\051)\n", b"\n0.92 0.60 0.60 setrgbcolor\n", b"@DAID=KST 7"]


class Browser:
    """A headless Chromium, by the WebDriver protocol."""

    def __init__(self, folder):
        self.driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, text=True)
        for line in self.driver.stdout:
            if found := re.search(r"started successfully on port (\d+)", line):
                break
        else:
            raise RuntimeError("chromedriver ended at once")
        self.url = f"http://127.0.0.1:{found[1]}/session"
        arguments = [f"--{switch}" for switch in [*SWITCHES, f"user-data-dir={folder}"]]
        session = self.call("", capabilities={"alwaysMatch": {"goog:chromeOptions": {
            "args": arguments, "binary": shutil.which("chromium")}}})
        self.url += "/" + session["sessionId"]

    def call(self, path, method="POST", **arguments):
        request = urllib.request.Request(self.url + path, method=method, headers={"Content-Type": "application/json"},
                                         data=json.dumps(arguments).encode() if method == "POST" else None)
        with urllib.request.build_opener(urllib.request.ProxyHandler({})).open(request, timeout=BOUND) as reply:
            return json.load(reply)["value"]

    def run(self, script, *arguments):
        return self.call("/execute/sync", script=script, args=list(arguments))

    def operation(self, cups, form, operation):
        """Chooses an operation in a form of the queue's page."""
        self.call("/url", url=f"http://{cups.address}/printers/office")
        self.run("""const form = document.forms[arguments[0]];
                    form.OP.value = arguments[1];
                    form.submit();""", form, operation)
        wait_for(lambda: self.run("return !document.forms[arguments[0]] && document.readyState == 'complete'", form),
                 operation)

    def keep(self, name):
        with open(os.path.join(SCREENSHOTS, name + ".png"), "wb") as file:
            file.write(base64.b64decode(self.call("/screenshot", "GET")))

    def close(self):
        try:
            self.call("", "DELETE")
        finally:
            self.driver.terminate()
            self.driver.wait(BOUND)
            self.driver.stdout.close()


class Web(unittest.TestCase):
    def test_defaults_and_a_test_page(self):
        os.makedirs(SCREENSHOTS, exist_ok=True)
        printer = Printer()
        folder = self.enterContext(tempfile.TemporaryDirectory(ignore_cleanup_errors=True))
        cups = self.enterContext(PrivateCups(FILTER, web=True))
        cups.add_queue("office", os.path.join(PPDS, "office.ppd"), printer)
        browser = Browser(folder)
        self.addCleanup(browser.close)

        browser.operation(cups, "administration", "set-printer-options")
        groups = browser.run("return [...document.querySelectorAll('div.tab')].map(tab => tab.id)")
        for group in ("OVHandling", "OVAccounting", "OVFinishing", "OVWatermarks", "OVColor", "OVBooklet"):
            self.assertIn(group, groups)
        for group in groups:
            browser.run("location.hash = arguments[0]", group)
            browser.keep(group)
        for name, value in CHOSEN.items():
            # The names are links, too.
            shown = browser.run("""const [name, value] = arguments;
                                   const field = document.querySelector(`select[name="${name}"], input[name="${name}"]`);
                                   field.value = value;
                                   field.dispatchEvent(new Event("change"));
                                   return field.value;""", name, value)
            self.assertEqual(shown, value, name)
        browser.run("[...document.querySelectorAll('[type=submit]')].find(b => b.value == 'Set Default Options').click()")
        wait_for(lambda: "successfully" in browser.run("return document.body.innerText"), "the new defaults")
        browser.keep("set")

        browser.operation(cups, "maintenance", "print-test-page")
        wait_for(lambda: "sent" in browser.run("return document.body.innerText"), "the test page")
        browser.keep("printed")
        wait_for(lambda: printer.ended, "the last byte of the test page")
        job = bytes(printer.jobs[0])
        for line in GIVEN:
            self.assertIn(line, job)
        self.assertNotIn(b"4711", job)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)

"""GTK's print dialog on the sample queues: it shows every option of theirs with its choices and a field for what people type,
hides what is secret, and prints a job with what was chosen in it.

usage: dialog.py FILTER PPD-FOLDER    (77 where GTK's Python modules or Xvfb are missing)
"""

import os
import re
import shutil
import subprocess
import sys

from private_cups import BOUND, PrivateCups, Printer, wait_for

QUEUES = ("mono", "production", "office")
CHOSEN = {"Private print": "4711", "Staple": "Two, left", "Watermark": "Draft", "Account ID": "KST 7"}
ARRIVES = ("HOLD=STORE", "HOLDTYPE=PRIVATE", "@DAID=KST 7", "STAPLE=ON", "(DRAFT)", "/LeftDouble/Custom")


def in_dialog():
    """Runs in Xvfb, with the system's Python: prints what the dialog shows for the queues; on the last one it prints a page."""
    import gi
    gi.require_version("Gtk", "3.0")
    from gi.repository import GLib, Gtk

    def within(widget):
        found = []
        if isinstance(widget, Gtk.Container):
            widget.forall(lambda child: found.extend([child, *within(child)]))
        return found

    def options(dialog):
        """Label, choices and fields of each option; GTK adds an option's combo, fields and label in this order."""
        combo, entries = None, []
        notebook = next(widget for widget in within(dialog) if isinstance(widget, Gtk.Notebook))
        for widget in within(notebook):
            if isinstance(widget, Gtk.ComboBox):
                combo, entries = widget, []
            elif isinstance(widget, Gtk.Entry) and combo:
                entries.append(widget)
            elif isinstance(widget, Gtk.Label) and combo and widget.get_text().endswith(":"):
                yield widget.get_text()[:-1], combo, entries
                combo = None

    def choices(combo):
        return [next((cell for cell in row if isinstance(cell, str)), "") for row in combo.get_model()]

    def select(dialog, name):
        for view in (widget for widget in within(dialog) if isinstance(widget, Gtk.TreeView)):
            for row in view.get_model():
                if name in list(row):
                    view.get_selection().select_path(row.path)

    # What goes wrong in the dialog's own loop would otherwise only be said.
    sys.excepthook = lambda *error: (sys.__excepthook__(*error), os._exit(1))
    waiting = list(QUEUES)

    def look():
        dialog = next((top for top in Gtk.Window.list_toplevels() if top.__gtype__.name == "GtkPrintUnixDialog"), None)
        if not dialog:
            return True
        printer = dialog.get_property("selected-printer")
        shown = list(options(dialog))
        # The options of a queue are there some time after it was selected.
        if not printer or printer.get_property("name") != waiting[0] or not any(name == "Private print" for name, *_ in shown):
            select(dialog, waiting[0])
            return True
        for name, combo, entries in shown:
            kind = "" if not entries else "secret" if not entries[0].get_visibility() else "text"
            print(waiting[0], name, "|".join(choices(combo)), kind, sep="\t", flush=True)
        if len(waiting) == 1:
            for name, combo, entries in shown:
                if value := CHOSEN.get(name):
                    combo.set_active(choices(combo).index(value if value in choices(combo) else "Custom"))
                    if value not in choices(combo):
                        entries[0].set_text(value)
            dialog.response(Gtk.ResponseType.OK)
            return False
        waiting.pop(0)
        return True

    GLib.timeout_add(200, look)
    operation = Gtk.PrintOperation(n_pages=1, job_name="Report")
    operation.connect("draw-page", lambda *_: None)
    operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, None)


def options_of(ppd):
    """The options that belong to groups of their own: text, choices, and what is typed."""
    with open(ppd, encoding="utf-8") as file:
        text = file.read()
    for option, name in re.findall(r"^\*OpenUI \*(OV\w+)/([^:]*):", text, re.M):
        if f"*{option} False/Not installed" in text or option == "OVFinisher":
            continue
        choices = [re.sub("<3A>", ":", choice) for choice in re.findall(rf"^\*{option} [^/:]+/([^:]*):", text, re.M)]
        typed = re.search(rf"^\*ParamCustom{option} (\w+)", text, re.M)
        yield name, "|".join([*choices, *(["Custom"] if typed else [])]), \
            "" if not typed else "secret" if typed[1] in ("PIN", "Password") else "text"


def main():
    filter_path, ppds = sys.argv[1:]
    gtk = subprocess.run(["/usr/bin/python3", "-c", "import gi; gi.require_version('Gtk', '3.0')"], capture_output=True)
    if gtk.returncode or not shutil.which("xvfb-run"):
        print("python3-gi, gir1.2-gtk-3.0 or xvfb is missing: the dialog was not looked at")
        return 77
    with PrivateCups(filter_path, web=True) as cups:
        printer = Printer()
        for queue in QUEUES:
            cups.add_queue(queue, os.path.join(ppds, f"{queue}.ppd"), printer)
        done = subprocess.run(["xvfb-run", "-a", "/usr/bin/python3", "-B", __file__], env=cups.environment, text=True,
                              stdout=subprocess.PIPE, timeout=BOUND)
        shown = {tuple(line.split("\t")) for line in done.stdout.splitlines()}
        missing = [(queue, *option) for queue in QUEUES for option in options_of(os.path.join(ppds, f"{queue}.ppd"))
                   if (queue, *option) not in shown]
        wait_for(lambda: printer.ended, "the job")
        job = printer.jobs[0].decode("latin-1")
        missing += [text for text in ARRIVES if text not in job]
        if "4711" in job:
            missing.append("secrecy")
    print(*missing, f"{len(shown)} options looked at", sep="\n")
    return 1 if missing or not shown else 0


if __name__ == "__main__":
    sys.exit(main() if len(sys.argv) == 3 else in_dialog())

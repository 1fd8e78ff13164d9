"""GTK's print dialog on the sample queues: it shows every option of theirs with its choices and a field for what people
type, hides what is secret, and prints a job with what was chosen in it.

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
    """In Xvfb, with the system's Python: prints what the dialog shows for the queues; on the last one it prints a page."""
    import gi
    gi.require_version("Gtk", "3.0")
    from gi.repository import GLib, Gtk

    def within(widget, kind):
        found = [widget] if isinstance(widget, kind) else []
        if isinstance(widget, Gtk.Container):
            widget.forall(lambda child: found.extend(within(child, kind)))
        return found

    def options(dialog):
        """Label, choices and fields of each option; GTK adds an option's combo, fields and label in this order."""
        combo = None
        for widget in within(within(dialog, Gtk.Notebook)[0], (Gtk.ComboBox, Gtk.Entry, Gtk.Label)):
            if isinstance(widget, Gtk.ComboBox):
                combo, entries = widget, []
            elif isinstance(widget, Gtk.Entry) and combo:
                entries.append(widget)
            elif combo and widget.get_property("label").endswith(":"):
                yield widget.get_text()[:-1], combo, choices(combo), entries
                combo = None

    def choices(combo):
        return [next((cell for cell in row if isinstance(cell, str)), "") for row in combo.get_model()]

    def look():
        dialog = next((top for top in Gtk.Window.list_toplevels() if top.__gtype__.name == "GtkPrintUnixDialog"), None)
        if not dialog:
            return True
        # The options of a queue are there some time after it was selected.
        printer, shown = dialog.get_property("selected-printer"), list(options(dialog))
        has_details = any(name == "Private print" for name, *_ in shown)
        if not printer or printer.get_property("name") != waiting[0] or not has_details:
            for view in within(dialog, Gtk.TreeView):
                for row in view.get_model():
                    if waiting[0] in list(row):
                        view.get_selection().select_path(row.path)
            return True
        queue = waiting.pop(0)
        for name, combo, values, entries in shown:
            kind = "" if not entries else "text" if entries[0].get_visibility() else "secret"
            print(queue, name, "|".join(values), kind, sep="\t", flush=True)
            if not waiting and (value := CHOSEN.get(name)):
                combo.set_active(values.index(value if value in values else "Custom"))
                if value not in values:
                    entries[0].set_text(value)
        if not waiting:
            dialog.response(Gtk.ResponseType.OK)
        return waiting != []

    # What goes wrong in the dialog's own loop would otherwise only be said.
    sys.excepthook = lambda *error: (sys.__excepthook__(*error), os._exit(1))
    waiting = list(QUEUES)
    GLib.timeout_add(200, look)
    operation = Gtk.PrintOperation(n_pages=1, job_name="Report")
    operation.connect("draw-page", lambda *_: None)
    operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, None)


def options_of(ppd):
    """The options that belong to groups of their own: text, choices, and what is typed."""
    with open(ppd, encoding="utf-8") as file:
        text = re.sub(r"^\*OpenGroup: InstallableOptions.*?^\*CloseGroup", "", file.read(), flags=re.M | re.S)
    for option, name in re.findall(r"^\*OpenUI \*(OV\w+)/([^:]*):", text, re.M):
        choices = [choice.replace("<3A>", ":") for choice in re.findall(rf"^\*{option} [^/:]+/([^:]*):", text, re.M)]
        typed = re.search(rf"^\*ParamCustom{option} (\w+)", text, re.M)
        yield name, "|".join([*choices, *(["Custom"] if typed else [])]), \
            "" if not typed else "secret" if typed[1] in ("PIN", "Password") else "text"


def main(filter_path, ppds):
    gtk = subprocess.run(["/usr/bin/python3", "-c", "import gi; gi.require_version('Gtk', '3.0')"], capture_output=True)
    if gtk.returncode or not shutil.which("xvfb-run"):
        print("python3-gi, gir1.2-gtk-3.0 or xvfb is missing: the dialog was not looked at")
        return 77
    with PrivateCups(filter_path, web=True) as cups:
        printer = Printer()
        ppd = {queue: os.path.join(ppds, f"{queue}.ppd") for queue in QUEUES}
        for queue in QUEUES:
            cups.add_queue(queue, ppd[queue], printer)
        done = subprocess.run(["xvfb-run", "-a", "/usr/bin/python3", "-B", __file__], env=cups.environment, text=True,
                              stdout=subprocess.PIPE, timeout=BOUND)
        wait_for(lambda: printer.ended, "the job")
    shown = {tuple(line.split("\t")) for line in done.stdout.splitlines()}
    wanted = {(queue, *option) for queue in QUEUES for option in options_of(ppd[queue])}
    missing = sorted(wanted - shown)
    job = printer.jobs[0].decode("latin-1")
    missing += [text for text in ARRIVES if text not in job] + ["secrecy"] * ("4711" in job)
    print(*missing, f"{len(shown)} options looked at", sep="\n")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) == 3 else in_dialog())

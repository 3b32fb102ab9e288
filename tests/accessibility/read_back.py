#!/usr/bin/python3
"""Uses the program as a person with a screen reader does: reads every window through AT-SPI and
works it by what AT-SPI offers alone, on a display and a session bus of its own:

    tests/accessibility/read_back.py PROGRAM

Held of every window: a control that takes keys has a name, an option stands in a named group, no
name is padded with blanks. Held of the reports: their figures are read.
"""

import datetime
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

EDITABLE = Atspi.StateType.EDITABLE
RETURN, ESCAPE = 0xFF0D, 0xFF1B
EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
CONTROLS = {
    "check box", "check menu item", "combo box", "menu item", "push button", "radio button",
    "spin button", "table", "text", "toggle button", "tree",
}  # fmt: skip


class Missing(Exception):
    """What should be there is not."""


def shows(part, state=Atspi.StateType.SHOWING):
    """Whether the part is there, in that state."""
    try:
        return part.get_state_set().contains(state)
    except GLib.Error:
        return False


def parts(part, shown=True):
    """The part and all below it, as they are now; those alone that are shown."""
    try:
        if shown and not shows(part):
            return
        yield part
        children = [part.get_child_at_index(i) for i in range(part.get_child_count())]
    except GLib.Error:  # gone meanwhile
        return
    for child in children:
        if child:
            yield from parts(child, shown)


def wait_for(what, find, seconds=30):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            if found := find():
                return found
        except GLib.Error:
            pass
        time.sleep(0.05)
    raise Missing(what)


class Reader:
    """Reads and works the windows of the one program on this bus."""

    def __init__(self):
        self.window = None
        self.title = ""
        self.read_windows = []
        self.mistakes = []

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(i)
            if program and program.get_name() == "corvane":
                children = [program.get_child_at_index(j) for j in range(program.get_child_count())]
                yield from filter(None, children)

    def read(self, title, role="frame"):
        """Waits for the window whose title holds the text, and reads it."""

        def find():
            for window in self.windows():
                if title in window.get_name() and window.get_role_name() == role:
                    if shows(window):
                        return window
            return None

        self.window = wait_for(f"the window '{title}'", find)
        self.title = title
        self.read_windows.append(title)
        for part in parts(self.window):
            try:
                self.hold(title, part)
            except GLib.Error:  # gone meanwhile
                pass

    def hold(self, title, part):
        role, name = part.get_role_name(), part.get_name()
        takes_keys = part.get_state_set().contains(Atspi.StateType.FOCUSABLE)
        if takes_keys and role in CONTROLS and not name:
            self.mistakes.append(f"{title}: a {role} has no name")
        if role in CONTROLS and name != " ".join(name.split()):
            self.mistakes.append(f"{title}: the {role} '{name}' is padded")
        if role == "radio button" and not part.get_parent().get_name():
            self.mistakes.append(f"{title}: the option '{name}' stands in no named group")

    def find(self, name, fits, shown=True):
        def find():
            for part in parts(self.window, shown):
                if part.get_name() == name and fits(part):
                    return part
            return None

        return wait_for(f"'{name}' in the window '{self.title}'", find)

    def press(self, *names):
        """Presses buttons, options and menu items."""
        for name in names:
            part = self.find(name, lambda part: part.get_n_actions() > 0, shown=False)
            is_option = part.get_role_name() == "radio button"
            # What opens a window above this one is answered when that is closed.
            Atspi.set_timeout(500, 0)
            try:
                part.do_action(0)
            except GLib.Error:
                pass
            Atspi.set_timeout(10000, 10000)
            if is_option:
                wait_for(f"'{name}' chosen", lambda: shows(part, Atspi.StateType.CHECKED))

    def close(self, button):
        """Closes a window that stands above another."""
        self.press(button)
        self.wait_until_closed()

    def wait_until_closed(self):
        wait_for(f"'{self.title}' closed", lambda: not shows(self.window))

    def type(self, **fields):
        for name, text in fields.items():
            name = name.replace("_", " ")
            field = self.find(name, lambda part: shows(part, EDITABLE))
            if not field.set_text_contents(text):
                self.mistakes.append(f"{self.title}: '{name}' takes no text")

    @staticmethod
    def key(keysym):
        Atspi.generate_keyboard_event(keysym, None, Atspi.KeySynthType.SYM)

    def hear(self, *texts):
        """Waits until the window says the texts, in whatever part."""
        for text in texts:
            wait_for(
                f"'{text}' in the window '{self.title}'",
                lambda text=text: any(text in part.get_name() for part in parts(self.window)),
            )


def walk(reader):
    read, press, close = reader.read, reader.press, reader.close
    enter, hear = reader.type, reader.hear
    setup = "Selection & User Information"
    entry = "Regular, Stepped and Tiered Calculations"
    results = "Account Disclosures & Advertising APY Summary"

    # A period without dates begins today.
    today = datetime.date.today()
    balances = {today: "1500", today + datetime.timedelta(days=1): "500"}

    read(" Annual Percentage Yield")
    press("About")
    read("About Corvane Calculator")
    close("OK")
    read(" Annual Percentage Yield")
    press("Continue")
    read("Main Menu")
    press("Disclosures & Advertisements")

    read(setup)
    press("Continue")
    read(entry)
    press("Calculate")
    read("Key Entry Error", role="alert")
    hear("Please enter a valid Disclosed APY value")
    close("OK")
    read(entry)
    enter(Disclosed_APY="5.39", Principal_Balance="1000", Interest_Rate="5.25")
    press("Start date calendar")
    read("Double click for Date")
    reader.key(RETURN)
    reader.key(ESCAPE)
    reader.wait_until_closed()
    read(entry)
    enter(**{"No. Of Days In Deposit Term (Enter 0 For Calendar Below)": "365"})
    press("Calculate")
    read(results)
    hear("5.39%", "$53.90", "OK")
    press("Back")
    read(entry)
    press("Main Menu")
    read("Main Menu")

    press("Disclosures & Advertisements")
    read(setup)
    press("Stepped Rate (Includes Variable Rate - with Premium or Discount)", "Months")
    press("Continue")
    read(entry)
    press("Back")
    read(setup)
    press("Tiering Method B (Fixed or Variable Rate)", "Continue")
    read("Tiered Calculations")
    reader.find("Total Tiers", lambda part: part.get_role_name() == "combo box").grab_focus()
    reader.key(ord("3"))
    reader.hear("3")
    read("Tiered Calculations")
    reader.find("Above Tier 3", lambda part: part.get_role_name() == "text")
    press("Main Menu")

    read("Main Menu")
    press("Periodic Statements")
    read("Selection and User Information")
    press("Continue")
    read("Interest Calculation")
    press("ADB")
    enter(Minimum_Required_ADB="0", Minimum_Required_Daily_Balance="0")
    enter(Disclosed_APY="6.58", Interest_Rate="6.3875")
    enter(**{"Days In Period, Ledger": "2"})
    press("Compute ADB and Interest, Ledger")
    read("Average Daily Balance and Interest")
    hear("Calculation Of Average Daily Balance & Interest")
    enter(**{f"Daily balance {day:%b} {day.day}": text for day, text in balances.items()})
    close("Compute ADB")
    read("Interest Calculation")
    press("Calculate")
    read("Periodic Statements APY Summary")
    hear("6.59%", "$0.35")
    press("Show Detail")
    read("Average Daily Balance Summary")
    hear("$1,500.00", "$500.00")
    close("Exit")
    read("Periodic Statements APY Summary")
    press("Main Menu")

    read("Main Menu")
    press("Help Topics")
    read("Help")
    hear("Disclosures & Advertisements", "Glossary")

    read("Main Menu")
    press("Check a File...")
    read("Check a File", role="dialog")
    enter(**{"File name:": str(EXAMPLES / "regular.csv")})
    close("Open")
    read("Check a File")
    hear("A-4", "APY VIOLATION")
    press("Report")
    read("Report of a File")
    hear("Portfolio Check Summary", "5.83%")
    close("Back")
    read("Check a File")
    press("Main Menu")
    read("Main Menu")
    press("Exit")


def use(program):
    """Starts the program, walks all windows and says what is amiss; the exit status."""
    # The bus of the parts stands before the program looks for it.
    Atspi.init()
    Atspi.get_desktop(0).get_child_count()
    reader = Reader()
    with tempfile.TemporaryFile() as said:
        surroundings = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb"}
        process = subprocess.Popen([program], env=os.environ | surroundings, stderr=said)
        try:
            walk(reader)
            if status := process.wait(30):
                reader.mistakes.append(f"the program ended with {status}")
        except (Missing, GLib.Error, subprocess.TimeoutExpired) as problem:
            reader.mistakes.append(f"not found: {problem}")
            for window in reader.windows():
                for part in parts(window):
                    print(f"  {part.get_role_name()} '{part.get_name()}'")
            said.seek(0)
            print(said.read().decode(errors="replace"))
        finally:
            process.kill()
            process.wait()
    for mistake in dict.fromkeys(reader.mistakes):
        print(mistake)
    print(f"{len(set(reader.read_windows))} windows read, {len(reader.mistakes)} mistakes")
    return 1 if reader.mistakes else 0


def main():
    program = str(Path(sys.argv[-1]).resolve())
    if sys.argv[1] == "--inside":
        sys.exit(use(program))
    ours, theirs = os.pipe()
    command = ["Xvfb", "-noreset", "-displayfd", str(theirs), "-screen", "0", "1024x768x24"]
    server = subprocess.Popen(command, pass_fds=[theirs])
    os.close(theirs)
    try:
        display = os.read(ours, 20).decode().strip()
        if not display:
            sys.exit("Xvfb did not start")
        command = ["dbus-run-session", "--", sys.executable, __file__, "--inside", program]
        with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home:
            surroundings = {"DISPLAY": ":" + display, "LANG": "C.UTF-8"}
            surroundings |= {"HOME": home, "XDG_RUNTIME_DIR": home, "XDG_CACHE_HOME": home}
            done = subprocess.run(command, env=os.environ | surroundings, timeout=300)
        sys.exit(done.returncode)
    finally:
        server.terminate()
        server.wait()


if __name__ == "__main__":
    main()

"""The controls in a host's windows, found by name and worked with mouse and keyboard."""

import os
import plistlib

from session import act_until, is_alive, wait_until, wait_until_idle

LISTENING = "Type shortcut"


class Controls:
    """The controls of a host that was started with these options.

    A control has the name of its field, for the fields asked for; its title; its value, as it is shown; whether it is
    enabled; and the place that is seen of it. A table's cell has the table's name, a column and a row besides.
    """

    def __init__(self, session, *fields):
        self.session = session
        self.fields = list(fields)
        self.number = 0
        self.host = None  # the process that replied last
        self.folder = session.folder / "controls"
        self.folder.mkdir()
        os.mkfifo(self.folder / "questions")
        # Open for as long as this program runs: a pipe that nobody has open forgets a question.
        self.questions = os.open(self.folder / "questions", os.O_RDWR)
        self.options = ["-GSAppKitUserBundles", f'("{os.environ["CONTROL_FINDER"]}")', "-ControlFinderFolder",
                        str(self.folder)]

    # --- What is on the screen

    def all(self):
        """The controls that are on the screen now; none when the host has ended."""
        self.number += 1
        os.write(self.questions, (" ".join([str(self.number), *self.fields]) + "\n").encode())
        answer = wait_until(lambda: self._answer() or self._answer_of_none(), "the host to say where its controls are")
        self.host = answer["process"]
        return answer["controls"]

    def _answer(self):
        file = self.folder / "answer"
        answer = plistlib.loads(file.read_bytes()) if file.exists() else {}
        return answer if answer.get("number") == str(self.number) else None

    def _answer_of_none(self):
        return {"process": None, "controls": []} if self.host and not is_alive(self.host) else None

    def find(self, **wanted):
        """The first control that has these values; nothing without one."""
        return next((control for control in self.all() if has(control, wanted)), None)

    def wait_for(self, **wanted):
        return wait_until(lambda: self.find(**wanted), f"a control with {wanted}", self.summary)

    def summary(self):
        """The controls on the screen that can be told apart, a line each."""
        return "\n".join(["", *(str(control) for control in self.all()
                                if control["name"] or control.get("title") or control["value"])])

    # --- What the user does

    def click(self, effect, what, **wanted):
        """Clicks the control that has these values, until the click has the effect, in words `what`."""
        act_until(lambda: self._click_once(wanted), effect, what, self.summary)

    def click_once(self, **wanted):
        """Clicks the control that has these values, and not again if that has no effect."""
        wait_until(lambda: self._click_once(wanted), f"a control with {wanted}", self.summary)

    def _click_once(self, wanted):
        control = self.find(**wanted)
        if control is None:
            return False
        # While windows change, the application takes a click for one in another place.
        wait_until_idle(self.host)
        if self.find(**wanted) != control or self._size_on_screen(control["window"]) != control["content"][2:]:
            return False
        left, top, width, height = control["place"]
        self._input("mousemove", "--window", control["window"], left + width // 2, top + height // 2,
                    "mousedown", 1, "mouseup", 1)
        return True

    def _size_on_screen(self, window):
        printed = self.session.run("xdotool", "getwindowgeometry", "--shell", window).stdout
        values = dict(line.split("=", 1) for line in printed.splitlines())
        return [int(values.get(name, 0)) for name in ("WIDTH", "HEIGHT")]

    def record(self, recorder, keys, effect, what):
        """Presses the keys together in the recorder of that name, until that has the effect, in words `what`."""
        self.click(lambda: self.find(name=recorder, value=LISTENING), f"{recorder} to listen", name=recorder)
        act_until(lambda: self._press(keys), effect, what, self.summary)

    def _press(self, keys):
        self._input("key", keys)
        return True

    def _input(self, *words):
        done = self.session.run("xdotool", *words)
        assert done.returncode == 0, f"xdotool {words}: {done.stderr}"


def has(control, wanted):
    return all(control.get(name) == value for name, value in wanted.items())

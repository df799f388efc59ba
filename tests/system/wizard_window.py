"""The wizard's window as a screen reader and a person at the keyboard have it: AT-SPI for what shows, for acting on it
and for what is heard, X events for clicks into fields and for typing. Texts are named by their keys."""

import os
import re
import subprocess
import time
import xml.etree.ElementTree as xml

import pyatspi
from gi.repository import GLib

REACTION_TIME = float(os.environ.get("WT_REACTION_TIME", "10"))
ACCESSIBLE = {"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
PLACEHOLDER = re.compile("%[d@]")


def wait_for(condition, what, limit=REACTION_TIME):
    """The first true answer of `condition`, which is asked again until `limit` seconds have passed. Events of the
    accessibility bus are heard meanwhile."""
    end = time.monotonic() + limit
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise TimeoutError(f"{what}: not within {limit} s")
        time.sleep(0.05)


def read_texts(table):
    """The translations of a .ts file by their keys, as they are spoken: without the marks of keyboard shortcuts."""
    return {
        message.findtext("source"): (message.findtext("translation") or "").replace("&", "")
        for message in xml.parse(table).iter("message")
    }


class AccessibilityBus:
    def __enter__(self):
        self._launcher = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])

    def __exit__(self, *_):
        self._launcher.terminate()
        self._launcher.wait()


class WizardWindow:
    def __init__(self, texts):
        self._texts = texts
        self._heard = []
        self._progress = []
        pyatspi.Registry.registerEventListener(self._showed, "object:state-changed:showing")
        pyatspi.Registry.registerEventListener(self._progressed, "object:property-change:accessible-value")

    def text(self, key, *values):
        text = self._texts[key]
        for value in values:
            text = PLACEHOLDER.sub(str(value), text, count=1)
        return text

    def wait_for(self, roles, key, *values, state=pyatspi.STATE_SHOWING, holds=True):
        """What shows with that role and text, and a state that holds or does not."""
        name = self.text(key, *values)
        return wait_for(lambda: self._find(roles, name, state, holds), f"{roles} {name}")

    def wait_for_text(self, key, limit=REACTION_TIME):
        wait_for(lambda: self._find(("label", "notification"), self.text(key)), self.text(key), limit)

    def do(self, widget, action):
        actions = widget.queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        actions.doAction(names.index(action))

    def press(self, key):
        self.do(self.wait_for("push button", key, state=pyatspi.STATE_ENABLED), "Press")

    def choose(self, key, other):
        """Presses one of two tiles; afterwards it is checked and the other is not."""
        self.do(self.wait_for("radio button", key), "Press")
        self.wait_for("radio button", key, state=pyatspi.STATE_CHECKED)
        self.wait_for("radio button", other, state=pyatspi.STATE_CHECKED, holds=False)

    def enter(self, role, key, text):
        """Sets a field's text without a keyboard."""
        field = self.wait_for(role, key)
        field.queryEditableText().setTextContents(text)
        wait_for(lambda: field.queryText().characterCount == len(text), f"{len(text)} characters in {self.text(key)}")

    def type(self, key, text):
        field = self.wait_for(("text", "password text"), key)
        place = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        middle = [str(place.x + place.width // 2), str(place.y + place.height // 2)]
        subprocess.run(["xdotool", "mousemove", *middle, "click", "1", "type", "--delay", "5", text], check=True)
        wait_for(lambda: field.queryText().characterCount == len(text), f"{len(text)} characters in {self.text(key)}")

    def hear(self, role, text, limit=REACTION_TIME):
        """Waits until something of that role came to show with that text. What was heard before is past then."""
        wait_for(lambda: (role, text) in self._heard, f"{role} {text} among {self._heard}", limit)
        del self._heard[: self._heard.index((role, text)) + 1]

    def hear_progress(self):
        wait_for(lambda: len(self._progress) > 1, "the progress")
        assert self._progress == sorted(self._progress), self._progress

    def _showed(self, event):
        if event.detail1 and event.source.getRoleName() == "notification":
            event.source.clear_cache()
            self._heard.append(("notification", event.source.name))

    def _progressed(self, event):
        self._progress.append(event.source.queryValue().currentValue)

    def _find(self, roles, name, state=pyatspi.STATE_SHOWING, holds=True):
        def is_it(candidate):
            return (
                candidate.getRoleName() in ([roles] if isinstance(roles, str) else roles)
                and (candidate.name or "").strip() == name
                and candidate.getState().contains(pyatspi.STATE_SHOWING)
                and candidate.getState().contains(state) == holds
            )

        for application in pyatspi.Registry.getDesktop(0):
            found = application and pyatspi.findDescendant(application, is_it)
            if found:
                return found
        return None

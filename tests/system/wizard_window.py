"""The wizard's window as a screen reader and a person at the keyboard have it: AT-SPI for what shows and for pressing
buttons, X events for clicks into fields and for typing. Texts are named by their keys."""

import subprocess
import time
import xml.etree.ElementTree as xml

import pyatspi

REACTION_TIME = 10


def wait_for(condition, what, limit=REACTION_TIME):
    """The first true answer of `condition`, which is asked again until `limit` seconds have passed."""
    end = time.monotonic() + limit
    while True:
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


class WizardWindow:
    def __init__(self, texts):
        self._texts = texts

    def wait_for_text(self, key, limit=REACTION_TIME):
        wait_for(lambda: self._find("label", key), self._texts[key], limit)

    def press(self, key):
        button = wait_for(lambda: self._find("push button", key, pyatspi.STATE_ENABLED), self._texts[key])
        actions = button.queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        actions.doAction(names.index("Press"))

    def type(self, key, text):
        field = wait_for(lambda: self._find(("text", "password text"), key), self._texts[key])
        place = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        middle = [str(place.x + place.width // 2), str(place.y + place.height // 2)]
        subprocess.run(["xdotool", "mousemove", *middle, "click", "1", "type", "--delay", "5", text], check=True)
        wait_for(lambda: field.queryText().characterCount == len(text), f"{len(text)} characters in {self._texts[key]}")

    def _find(self, roles, key, state=pyatspi.STATE_SHOWING):
        def is_it(candidate):
            return (
                candidate.getRoleName() in roles
                and (candidate.name or "").strip() == self._texts[key]
                and candidate.getState().contains(pyatspi.STATE_SHOWING)
                and candidate.getState().contains(state)
            )

        for application in pyatspi.Registry.getDesktop(0):
            found = application and pyatspi.findDescendant(application, is_it)
            if found:
                return found
        return None

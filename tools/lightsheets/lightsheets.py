#!/usr/bin/env python3
"""Writes the light sheet of every control from its dark one.

    tools/lightsheets/lightsheets.py            # resources/controls/light/*.qss
    tools/lightsheets/lightsheets.py --check    # exit 1 when one is out of date

The dark sheets are the ones written by hand. Each colour of the dark palette
has its light counterpart; text on the accent colour stays white, and the
check box and chevron icons are the light variant's own. The contrast test
checks the result like every other sheet.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2] / "resources"
DARK_TO_LIGHT = {
    "#141518": "#FFFFFF",  # fields
    "#1E2023": "#ECECEC",  # panels, alternate rows, hover
    "#333538": "#E2E2E2",  # disabled fields
    "#FFFFFF": "#1A1A1A",  # text
    "#000000": "#767676",  # frames
    "#646464": "#5E5E5E",  # dimmed frames, handles
    "#9E9E9E": "#5E5E5E",  # dimmed text
    "#214B98": "#1F5CC4",  # accent, selection
}
ACCENT = "#214B98"
ICONS = {
    ":/commonui/resources/icons/checkbox_inactive.png": ":/commonui/variants/icons/light/checkbox_unchecked.png",
    ":/commonui/resources/icons/checkbox_active.png": ":/commonui/variants/icons/light/checkbox_checked.png",
    ":/commonui/resources/icons/chevron_up.png": ":/commonui/variants/icons/light/chevron_up.png",
    ":/commonui/resources/icons/chevron_down.png": ":/commonui/variants/icons/light/chevron_down.png",
}
COLOUR = re.compile(r"#[0-9A-Fa-f]{6}\b")
RULE = re.compile(r"([^{}]*)\{([^{}]*)\}", re.S)


def lighten_rule(match):
    selector, body = match.group(1), match.group(2)
    on_accent = any(line.split(":", 1)[0].strip() in ("background", "background-color")
                    and ACCENT.lower() in line.lower() for line in body.split("\n"))

    def colour(m, name):
        value = m.group(0).upper()
        # Text on the accent colour keeps its white.
        if on_accent and value == "#FFFFFF" and name in ("color", "selection-color"):
            return value
        if name == "selection-color" and value == "#FFFFFF":
            return value
        # A black background is a line (a separator): light grey, not a frame.
        if name == "background-color" and value == "#000000":
            return "#C4C4C4"
        return DARK_TO_LIGHT.get(value, value)

    lines = []
    for line in body.split("\n"):
        name = line.split(":", 1)[0].strip()
        lines.append(COLOUR.sub(lambda m: colour(m, name), line))
    body = "\n".join(lines)
    for dark, light in ICONS.items():
        body = body.replace(dark, light)
    return selector + "{" + body + "}"


def main(argv):
    check = "--check" in argv
    stale = []
    for dark in sorted((ROOT / "controls" / "dark").glob("*.qss")):
        light = ROOT / "controls" / "light" / dark.name
        text = RULE.sub(lighten_rule, dark.read_text())
        if check:
            if not light.exists() or light.read_text() != text:
                stale.append(light.name)
            continue
        light.parent.mkdir(exist_ok=True)
        light.write_text(text)
    if stale:
        print("lightsheets: out of date: " + ", ".join(stale))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

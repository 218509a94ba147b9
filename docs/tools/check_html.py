#!/usr/bin/env python3
"""Checks the reference that Doxygen wrote into build/docs/html.

  check_html.py [--doxyfile docs/Doxyfile] [--html build/docs/html]

- Every page of the Doxyfile's INPUT is in the navigation tree, in Related
  Pages and linked from the main page, in the order of INPUT.
- Pages are named by their labels or by paths inside the tree, never after
  the directory the checkout sits in.
- The classes by topic end with the signal machinery's internals.
- Each class whose deliberate behaviour surprises a Qt developer links to the
  behaviours page from its brief description in the class list.
"""

import argparse
import html
import os
import re
import sys

# Classes whose brief description names a deliberate surprise.
SURPRISING = [
    "CKyUIObject", "CKyUIBaseView", "CKyUISignal", "CKyUIDialog", "CKyUIDialogButtonBox",
    "CKyUIPushButton", "CKyUICheckBox", "CKyUIRadioButton", "CKyUIComboBox", "CKyUIListBox",
    "CKyUITextEdit", "CKyUITextView", "CKyUILabel", "CKyUISlider", "CKyUIAction", "CKyUIMenu",
    "CKyUITimer", "CKyUIImageView", "CKyUIPreviewView", "CKyUIGroupBox", "CKyUIStackedWidget",
    "CKyUIScrollableArea", "CKyUIDockWidget", "CKyUIHorizontalLayout", "CKyUIVerticalLayout",
    "CKyNANetworkAccessManager", "CKyNANetworkRequest", "CKyNANetworkReply", "CKyNAWebSocket",
]
INTERNALS_GROUP = "group__classes__internals.html"


def read(path):
    with open(path, encoding="utf-8") as f:
        return f.read()


def doxyfile_pages(doxyfile):
    """The Markdown pages of INPUT, in order, with the file each becomes."""
    text = read(doxyfile).replace("\\\n", " ")
    match = re.search(r"^INPUT\s*=(.*)$", text, re.M)
    inputs = match.group(1).split() if match else []
    pages = []
    for name in [n for n in inputs if n.endswith(".md")]:
        heading = next(line for line in read(name).splitlines() if line.startswith("# "))
        label = re.search(r"\{#(\w+)\}\s*$", heading)
        title = re.sub(r"\s*\{#\w+\}\s*$", "", heading[2:]).strip()
        if label and label.group(1) == "mainpage":
            continue
        stem = label.group(1) if label else "md_" + re.sub(r"[^\w]", "_", os.path.splitext(name)[0])
        pages.append((name, title, stem + ".html"))
    return pages


def in_order(haystack, needles):
    """The needles missing from the haystack, or found out of order."""
    problems, last = [], -1
    for needle in needles:
        at = haystack.find(needle, last + 1)
        if at < 0:
            problems.append(f"{needle} missing" if needle not in haystack else f"{needle} out of order")
        else:
            last = at
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--doxyfile", default="docs/Doxyfile")
    parser.add_argument("--html", default="build/docs/html")
    arguments = parser.parse_args()
    out = arguments.html
    failures = []

    pages = doxyfile_pages(arguments.doxyfile)
    files = [page[2] for page in pages]
    for name, _, file_name in pages:
        if not os.path.exists(os.path.join(out, file_name)):
            failures.append(f"{name}: no page {file_name}")

    navigation = read(os.path.join(out, "navtreedata.js"))
    tree = [f'"{html.escape(title, quote=False)}", "{file_name}"' for _, title, file_name in pages]
    failures += ["navigation tree: " + p for p in in_order(navigation, tree)]
    failures += ["Related Pages: " + p for p in in_order(read(os.path.join(out, "pages.html")), [f'href="{f}"' for f in files])]
    failures += ["main page: " + p for p in in_order(read(os.path.join(out, "index.html")), [f'href="{f}' for f in files])]

    # A page named from an absolute path starts with "md__" (its leading "/").
    for file_name in os.listdir(out):
        if file_name.startswith("md__"):
            failures.append(f"{file_name}: named after the checkout's path")

    topics = re.findall(r'href="(group__[^"]+\.html)"', read(os.path.join(out, "modules.html")))
    if not topics or topics[-1] != INTERNALS_GROUP:
        failures.append(f"classes by topic: {INTERNALS_GROUP} is not last in {topics}")

    class_list = read(os.path.join(out, "annotated.html"))
    for name in SURPRISING:
        row = re.search(r'href="class' + name + r'\.html" target="_self">[^<]*</a></td><td class="desc">(.*?)</td>',
                        class_list)
        if not row or 'href="behaviours.html#' not in row.group(1):
            failures.append(f"class list: the brief description of {name} does not link to the behaviours page")

    for failure in failures:
        print("check_html: " + failure, file=sys.stderr)
    if failures:
        sys.exit(1)
    print(f"check_html: {len(pages)} guides in the navigation, Related Pages and the main page, in order; "
          f"{len(topics)} topics, internals last; {len(SURPRISING)} surprising classes linked to the behaviours page")


if __name__ == "__main__":
    main()

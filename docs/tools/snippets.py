#!/usr/bin/env python3
"""The C++ code blocks of README.md and docs/*.md, kept compiling.

A block fenced as ```cpp (or c++), and a Doxygen \\code block that names no
other language, is C++. The nearest non-blank line before it may tag it with an
HTML comment, which neither Doxygen nor a Markdown viewer shows:

  (no tag)                    a whole file: includes, classes, functions.
  <!-- snippet: body -->      statements: compiled as the body of a member
                              function of the plug-in object `Owner` in
                              docs/tools/SnippetContext.h, so the block may use
                              its members (manager, request, reply, socket,
                              dialog, file, ...) and helpers (handle, report,
                              consume, ...) without declaring them.
  <!-- snippet: include FILE REGION... -->
                              the block is the text between the markers
                              `//! [REGION]` of FILE (relative to the top of the
                              tree), dedented, regions joined by a blank line.
                              FILE is built elsewhere (an example), so the block
                              is compared with it rather than compiled again.
  ... requires NAME           after `file` or `body`: compiled once a public
                              header declares NAME(...), skipped until then; for
                              pages written ahead of an operation.

Every public header is included before the blocks, and #include lines of a
block are moved to the top of its page's file. Compiler messages point at the
page's own lines.

  snippets.py check  [--root DIR]   tags valid, included blocks equal to their source
  snippets.py update [--root DIR]   rewrite included blocks from their source
  snippets.py generate --root DIR --out FILE PAGE
                                    write PAGE's blocks as one translation unit
"""

import argparse
import difflib
import glob
import os
import re
import sys
import textwrap

TAG = re.compile(r"^\s*<!--\s*snippet:\s*(.*?)\s*-->\s*$")
FENCE = re.compile(r"^(\s*)(```+|~~~+)\s*\{?\.?([\w+#-]*)\}?\s*$")
DOXYGEN_CODE = re.compile(r"^(\s*)[\\@]code(\{\.?([\w+#-]*)\})?\s*$")
DOXYGEN_END = re.compile(r"^\s*[\\@]endcode\s*$")
INCLUDE_LINE = re.compile(r"^\s*#\s*include\b")
CPP = {"cpp", "c++", "cc", "cxx", "h", "hpp"}


class Block:
    def __init__(self, page, first_line, end_line, indent, lines, tag, tag_line):
        self.page = page
        self.first_line = first_line  # 1-based number of the block's first code line
        self.end_line = end_line  # 0-based index of the closing fence
        self.indent = indent
        self.lines = lines
        self.tag = tag
        self.tag_line = tag_line
        self.kind, self.include, self.requires = parse_tag(tag, page, tag_line)


def fail(message):
    sys.exit("snippets: " + message)


def parse_tag(tag, page, line):
    if tag is None:
        return "file", None, None
    words = tag.split()
    requires = None
    if "requires" in words:
        at = words.index("requires")
        if at + 2 != len(words):
            fail(f"{page}:{line}: 'requires' takes one name, at the end: {tag}")
        requires = words[at + 1]
        words = words[:at]
    if words == ["file"] or words == ["body"]:
        return words[0], None, requires
    if len(words) >= 3 and words[0] == "include" and requires is None:
        return "include", (words[1], words[2:]), None
    fail(f"{page}:{line}: unknown tag '{tag}' (file, body, include FILE REGION..., with 'requires NAME')")


def blocks_of(page):
    """Every C++ block of a page, with its tag."""
    with open(page, encoding="utf-8") as f:
        lines = f.read().split("\n")
    found = []
    i = 0
    while i < len(lines):
        fence = FENCE.match(lines[i])
        code = DOXYGEN_CODE.match(lines[i])
        if fence:
            indent, marker, language = fence.group(1), fence.group(2), fence.group(3).lower()
            end = i + 1
            while end < len(lines) and not (
                lines[end].strip().startswith(marker[0] * len(marker)) and lines[end].strip().strip(marker[0]) == ""
            ):
                end += 1
        elif code:
            indent, language = code.group(1), (code.group(3) or "cpp").lower()
            end = i + 1
            while end < len(lines) and not DOXYGEN_END.match(lines[end]):
                end += 1
        else:
            i += 1
            continue
        if end >= len(lines):
            fail(f"{page}:{i + 1}: code block never closed")
        if language in CPP:
            before = i - 1
            while before >= 0 and lines[before].strip() == "":
                before -= 1
            tag_match = TAG.match(lines[before]) if before >= 0 else None
            body = [line[len(indent):] if line.startswith(indent) else line.lstrip() for line in lines[i + 1:end]]
            found.append(
                Block(page, i + 2, end, indent, body, tag_match.group(1) if tag_match else None, before + 1)
            )
        i = end + 1
    return found


def region_text(root, path, regions):
    source = os.path.join(root, path)
    if not os.path.isfile(source):
        fail(f"no file {path} to include from")
    with open(source, encoding="utf-8") as f:
        text = f.read().split("\n")
    parts = []
    for region in regions:
        marks = [n for n, line in enumerate(text) if line.strip() == f"//! [{region}]"]
        if len(marks) != 2:
            fail(f"{path}: region '{region}' needs exactly two '//! [{region}]' lines, has {len(marks)}")
        parts.append(textwrap.dedent("\n".join(text[marks[0] + 1:marks[1]])).strip("\n"))
    return "\n\n".join(parts).split("\n")


def declared(root, name):
    pattern = re.compile(r"\b" + re.escape(name) + r"\s*\(")
    for header in glob.glob(os.path.join(root, "sdk", "**", "*.h"), recursive=True):
        with open(header, encoding="utf-8") as f:
            if pattern.search(f.read()):
                return True
    return False


def pages(root):
    return [os.path.join(root, "README.md")] + sorted(glob.glob(os.path.join(root, "docs", "*.md")))


def stale_includes(root, page_blocks):
    stale = []
    for block in page_blocks:
        if block.kind == "include":
            expected = region_text(root, *block.include)
            if block.lines != expected:
                stale.append((block, expected))
    return stale


def describe(block, expected):
    diff = difflib.unified_diff(expected, block.lines, block.include[0], block.page, lineterm="")
    return f"{block.page}:{block.first_line}: differs from {block.include[0]}:\n" + "\n".join(diff)


def check(root):
    counts = {"file": 0, "body": 0, "include": 0, "waiting": 0}
    problems = []
    for page in pages(root):
        page_blocks = blocks_of(page)
        for block in page_blocks:
            if block.requires and not declared(root, block.requires):
                counts["waiting"] += 1
            else:
                counts[block.kind] += 1
        problems += [describe(block, expected) for block, expected in stale_includes(root, page_blocks)]
    if problems:
        fail("\n".join(problems) + "\nrun: python3 docs/tools/snippets.py update")
    print(
        f"snippets: {counts['file'] + counts['body']} C++ blocks compiled by the test build "
        f"({counts['file']} files, {counts['body']} bodies), {counts['include']} equal to their example, "
        f"{counts['waiting']} waiting for an operation"
    )


def update(root):
    for page in pages(root):
        stale = stale_includes(root, blocks_of(page))
        if not stale:
            continue
        with open(page, encoding="utf-8") as f:
            lines = f.read().split("\n")
        for block, expected in sorted(stale, key=lambda s: -s[0].first_line):
            start = block.first_line - 1
            lines[start:block.end_line] = [block.indent + line if line else line for line in expected]
        with open(page, "w", encoding="utf-8") as f:
            f.write("\n".join(lines))
        print(f"snippets: updated {len(stale)} block(s) of {os.path.relpath(page, root)}")


def generate(root, out, page):
    page_blocks = blocks_of(page)
    stale = stale_includes(root, page_blocks)
    if stale:
        fail("\n".join(describe(b, e) for b, e in stale) + "\nrun: python3 docs/tools/snippets.py update")
    includes = []
    units = []
    source = os.path.abspath(page).replace("\\", "/")
    prefix = "doc_" + re.sub(r"\W", "_", os.path.splitext(os.path.basename(page))[0])
    for number, block in enumerate(page_blocks, 1):
        if block.kind == "include":
            units.append(f"// {block.first_line}: included from {block.include[0]}, compiled there\n")
            continue
        if block.requires and not declared(root, block.requires):
            units.append(f"// {block.first_line}: waits for {block.requires}\n")
            continue
        code = []
        for line in block.lines:
            if INCLUDE_LINE.match(line):
                if line.strip() not in includes:
                    includes.append(line.strip())
                code.append("")
            else:
                code.append(line)
        text = "\n".join(code)
        line_directive = f'#line {block.first_line} "{source}"'
        if block.kind == "file":
            units.append(f"namespace {prefix}_{number}\n{{\n{line_directive}\n{text}\n}}\n")
        else:
            units.append(
                f"namespace {prefix}_{number}\n{{\nstruct Snippet : Owner\n{{\n    void run();\n}};\n"
                f"void Snippet::run()\n{{\n    COMMONUI_SNIPPET_LOCALS\n    {{\n{line_directive}\n{text}\n    }}\n}}\n}}\n"
            )
    name = os.path.relpath(page, root)
    content = (
        f"// The C++ blocks of {name}, written by docs/tools/snippets.py: do not edit.\n"
        + '#include "SnippetContext.h"\n'
        + "".join(line + "\n" for line in includes)
        + "\n"
        + "\n".join(units)
    )
    previous = None
    if os.path.exists(out):
        with open(out, encoding="utf-8") as f:
            previous = f.read()
    if previous != content:
        with open(out, "w", encoding="utf-8") as f:
            f.write(content)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("command", choices=["check", "update", "generate"])
    parser.add_argument("page", nargs="?")
    parser.add_argument("--root", default=os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
    parser.add_argument("--out")
    arguments = parser.parse_intermixed_args()
    root = os.path.abspath(arguments.root)
    if arguments.command == "check":
        check(root)
    elif arguments.command == "update":
        update(root)
    else:
        if not arguments.out or not arguments.page:
            parser.error("generate needs --out FILE and a PAGE")
        generate(root, arguments.out, arguments.page)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Doxygen input filter: reads a header written with plain // comments and
prints it with those comments turned into documentation, as plain text.

The headers document themselves the way Abseil's do, with ordinary comments
and no Doxygen markup. This filter makes Doxygen see them:
  * the comment that opens a file becomes the file's description;
  * a comment block directly above a declaration, at namespace or class
    level, becomes that declaration's description (a block followed by a
    blank line is a section note and stays a plain comment);
  * lines indented past the block's own margin are examples: code blocks;
  * everything else is text: characters that Doxygen would read as commands,
    HTML or links are escaped, except inside `code spans`.
Comments inside function bodies and comments after code (with the lines
that continue them) stay as they are.
Code blocks and the file marker add lines, so Doxygen's line numbers are
those of the filtered text.
"""
import re
import sys

COMMENT = re.compile(r"^(\s*)//(?!/)( ?)(.*)$")
SPECIAL = re.compile(r"([\\@<>&#$%])")
SCOPE = re.compile(r"\b(class|struct|union|namespace|enum)\b|extern\s+\"C\"")
RULE = re.compile(r"^-{3,}$|^File: ")


def escape(text):
    """Escapes Doxygen's special characters outside `code spans`."""
    parts = text.split("`")
    for i in range(0, len(parts), 2):
        parts[i] = SPECIAL.sub(r"\\\1", parts[i])
    if len(parts) % 2 == 0:  # an unpaired backtick: no span after it
        tail = parts.pop()
        parts[-1] += "\\`" + tail
    return "`".join(parts)


def document(block, opener):
    """The lines of one comment block as documentation, code blocks fenced."""
    out, in_code = [], False
    indent = block[0][0]
    for _, text in block:
        code = text.startswith("  ") and text.strip() != ""
        if code != in_code:
            out.append(f"{indent}/// " + ("\\code{.cpp}" if code else "\\endcode"))
            in_code = code
        if RULE.match(text.strip()):
            text = ""
        out.append(f"{indent}/// {text if code else escape(text)}".rstrip())
    if in_code:
        out.append(f"{indent}/// \\endcode")
    if opener:
        out.insert(0, f"{indent}/// \\file")
    return out


def strip_code(line):
    """The line without strings, character literals and trailing comments."""
    line = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', '""', line)
    return line.split("//", 1)[0]


def main(path):
    with open(path, encoding="utf-8", errors="replace") as f:
        lines = f.read().split("\n")
    out = []
    block = []  # (indent, text) of the comment lines gathered
    scopes = []  # for each open brace: does it open a class or namespace?
    pending = ""  # code since the last brace or semicolon
    seen_code = False

    def flush(next_line):
        nonlocal block
        if not block:
            return
        at_scope = all(scopes)
        opener = not seen_code
        follows = next_line is not None and next_line.strip() != ""
        # A block under a line of code with its own comment continues that
        # comment.
        continues = bool(out) and "//" in out[-1] and strip_code(out[-1]).strip() != ""
        if opener and next_line is not None and next_line.strip() == "":
            out.extend(document(block, True))
        elif at_scope and follows and seen_code and not continues:
            out.extend(document(block, False))
        else:
            out.extend(f"{i}//{' ' if t else ''}{t}" for i, t in block)
        block = []

    for line in lines:
        m = COMMENT.match(line)
        if m:
            block.append((m.group(1), m.group(3)))
            continue
        opener_pending = not seen_code
        flush(line)
        if line.strip() and opener_pending:
            seen_code = True
        elif line.strip():
            seen_code = True
        out.append(line)
        for ch in strip_code(line):
            if ch == "{":
                scopes.append(bool(SCOPE.search(pending)))
                pending = ""
            elif ch == "}":
                if scopes:
                    scopes.pop()
                pending = ""
            elif ch == ";":
                pending = ""
            else:
                pending += ch
        pending += " "
    flush(None)
    sys.stdout.write("\n".join(out))


if __name__ == "__main__":
    main(sys.argv[1])

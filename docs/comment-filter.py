#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Doxygen input filter: reads a header written with plain // comments and
prints it with those comments turned into documentation, as plain text.

The headers document themselves the way Abseil's do, with ordinary comments
and no Doxygen markup. This filter makes Doxygen see them:
  * the comment that opens a file becomes the file's description, and also
    that of the class the file is named after (CZEL_String.h: CZEL_String),
    ahead of the class's own comment;
  * a comment block directly above a declaration, at namespace or class
    level, becomes that declaration's description (a block followed by a
    blank line is a section note and stays a plain comment); it describes
    each declaration of the group below it, up to the next blank line,
    comment or access label (the overloads of one member, a run of
    operators, the day, month and year getters);
  * a comment above a conditional macro (#ifndef X ... #define X) describes
    that macro; one above an #include or a forward declaration stays a plain
    comment;
  * a comment after a member or an enumerator, with the comment lines that
    continue it, describes that member or enumerator;
  * protected and private members and macros that have no comment are left
    out of the reference: they are not part of the public surface;
  * lines indented past the block's own margin are examples: code blocks;
  * everything else is text: characters that Doxygen would read as commands,
    HTML or links are escaped, except inside `code spans`. SPDX licence lines
    are dropped.
Comments inside function bodies stay as they are. Code blocks and added
descriptions add lines, so Doxygen's line numbers are those of the filtered
text.
"""
import os
import re
import sys

COMMENT = re.compile(r"^(\s*)//(?!/)( ?)(.*)$")
TRAILING = re.compile(r"^(.*?\S.*?)(\s*)//(?!/) ?(.*)$")
SPECIAL = re.compile(r"([\\@<>&#$%])")
SCOPE = re.compile(r"\b(class|struct|union|namespace|enum)\b|extern\s+\"C\"")
KIND = re.compile(r"\b(class|struct|union|namespace|enum)\b")
ACCESS = re.compile(r"^\s*(public|protected|private)\s*:")
DEFINE = re.compile(r"^\s*#\s*define\s+(\w+)")
PREPROCESSOR = re.compile(r"^\s*#")
INCLUDE = re.compile(r"^\s*#\s*include")
FORWARD = re.compile(r"^\s*(class|struct)\s+\w+\s*;")  # a declaration made elsewhere
CONDITIONAL = re.compile(r"^\s*#\s*if")
HEADING = re.compile(r"^-{2,}\s*(.*?)\s*-{2,}$")  # --- Section ------
MACRO_USE = re.compile(r"^\s*[A-Z][A-Z0-9_]*\(.*\)\s*$")  # a macro that declares members
QUALIFIED = re.compile(r"\w+(<[^<>]*>)?::~?(\w+|operator\W+)\s*\(")
DIRECTIVE = re.compile(r"^\s*(NOLINT|clang-format|IWYU)")  # comments for the tools
RULE = re.compile(r"^-{3,}$|^File: |^SPDX-License-Identifier:")


def escape(text):
    """Escapes Doxygen's special characters outside `code spans`."""
    parts = text.split("`")
    for i in range(0, len(parts), 2):
        parts[i] = SPECIAL.sub(r"\\\1", parts[i])
        # Two hyphens would become an en dash, three an em dash.
        parts[i] = parts[i].replace("--", "-\\-")
    if len(parts) % 2 == 0:  # an unpaired backtick: no span after it
        tail = parts.pop()
        parts[-1] += "\\`" + tail
    return "`".join(parts)


def document(block, indent):
    """The lines of one comment block as documentation, code blocks fenced."""
    out, in_code = [], False
    block = ["" if RULE.match(t.strip()) else HEADING.sub(r"\1", t) for t in block]
    while block and not block[0].strip():
        block = block[1:]
    for text in block:
        code = text.startswith("  ") and text.strip() != ""
        if code != in_code:
            out.append(f"{indent}/// " + ("\\code{.cpp}" if code else "\\endcode"))
            in_code = code
        out.append(f"{indent}/// {text if code else escape(text)}".rstrip())
    if in_code:
        out.append(f"{indent}/// \\endcode")
    return out


def strip_code(line):
    """The line without strings, character literals and trailing comments."""
    line = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', '""', line)
    return line.split("//", 1)[0]


class Scope:
    """One open brace: what it opens and, in a class, the current access."""

    def __init__(self, kind):
        self.kind = kind  # class, struct, union, namespace, enum, or None
        self.access = "private" if kind == "class" else "public"

    @property
    def documented(self):
        return self.kind is not None


class Filter:
    def __init__(self, path):
        self.path = path
        self.out = []
        self.block = []  # (indent, text) of the comment lines gathered
        self.scopes = []
        self.pending = ""  # code since the last brace, semicolon or enumerator
        self.seen_code = False
        self.opener = []  # the file comment's text
        self.class_name = os.path.splitext(os.path.basename(path))[0]
        self.group = None  # (depth, documentation lines) of the current group
        self.hidden = None  # depth of an undocumented non-public declaration
        self.macro_doc = None  # documentation waiting for the next #define
        self.trailing = None  # index in out of the last member's ///< line

    # Where we are -----------------------------------------------------------
    def at_scope(self):
        return all(s.documented for s in self.scopes)

    def public(self):
        return all(s.access == "public" for s in self.scopes)

    def private(self):
        return any(s.access == "private" for s in self.scopes)

    def in_enum(self):
        return bool(self.scopes) and self.scopes[-1].kind == "enum"

    def starts_declaration(self, line):
        """Does a new declaration start on this line (at a documented scope)?"""
        return (self.at_scope() and self.pending.strip() == "" and line.strip() != ""
                and not PREPROCESSOR.match(line) and not ACCESS.match(line)
                and not FORWARD.match(line)
                and not MACRO_USE.match(line)
                and not line.strip().startswith("}"))

    def defines_member(self, lines, i):
        """Does the code at lines[i] define a member out of its class?"""
        text, j = lines[i], i
        while lines[j].strip().startswith("template") and j + 1 < len(lines):
            j += 1
            text += " " + lines[j]
        code = strip_code(text)
        return any(not code[:m.start()].rstrip().endswith("operator")  # operator ZEL::u32()
                   for m in QUALIFIED.finditer(code))

    def names_class(self, lines, i):
        """Does the code at lines[i] (after a template head) define the class
        the file is named after?"""
        text = lines[i]
        if text.strip().startswith("template") and i + 1 < len(lines):
            text += " " + lines[i + 1]
        pattern = r"\b(class|struct)\s+((?:ZEL_API|ZEL_TEMPLATE_API)\s+)?" + re.escape(self.class_name) + r"\b"
        return bool(re.search(pattern, text)) and not strip_code(text).rstrip().endswith(";")

    # Comment blocks ---------------------------------------------------------
    def flush(self, lines, i):
        """Emits the gathered comment block, which stands above lines[i]."""
        next_line = lines[i] if i < len(lines) else None
        block, self.block = self.block, []
        if block:
            self.note = None
        follows = next_line is not None and next_line.strip() != ""
        indent = block[0][0] if block else ""
        texts = [t for _, t in block]
        if block and not self.seen_code:
            if next_line is not None and next_line.strip() == "":
                self.opener = texts
                self.out.append("/// \\file")
                self.out.extend(document(texts, ""))
                return
        if block and self.continues_trailing(indent):
            if self.trailing is not None:
                self.extend_trailing(texts)
            self.out.extend(f"{ind}//{' ' if t else ''}{t}" for ind, t in block)
            return
        documented = (block and self.at_scope() and follows and self.seen_code
                      and not self.defines_member(lines, i) and not self.private()
                      and not FORWARD.match(next_line) and not INCLUDE.match(next_line))
        if documented and CONDITIONAL.match(next_line):
            # Above #ifndef X / #define X: the macro's own description.
            self.macro_doc = document(texts, indent)
            self.out.extend(f"{ind}//" for ind, _ in block)
            return
        if documented:
            doc = document(texts, indent)
            self.group = (len(self.scopes), doc)
            self.out.extend(self.with_class_overview(lines, i, doc))
        elif block:
            self.group = None
            if self.at_scope() and self.seen_code and not follows:
                # A section note: it describes the group right below it if
                # that group has no comment of its own.
                self.note = (len(self.scopes), document(texts, indent))
            self.out.extend(f"{ind}//{' ' if t else ''}{t}" for ind, t in block)

    def with_class_overview(self, lines, i, doc):
        """The file comment goes ahead of the description of the file's class."""
        if i < len(lines) and self.opener and self.at_scope() and self.names_class(lines, i):
            indent = re.match(r"\s*", lines[i]).group(0)
            overview = document(self.opener, indent)
            self.opener = []
            return overview + ([f"{indent}///"] + doc if doc else [])
        return doc

    def continues_trailing(self, indent):
        """Is the block, indented past the code above, the continuation of
        that line's trailing comment?"""
        return self.trailing_indent is not None and len(indent) > self.trailing_indent

    def extend_trailing(self, texts):
        self.out[self.trailing] += " " + " ".join(escape(t) for t in texts if t)

    # Code lines -------------------------------------------------------------
    def code_line(self, lines, i):
        line = lines[i]
        if self.in_directive:  # a continued line of a preprocessor directive
            self.out.append(line)
            self.track(line)
            return
        access = ACCESS.match(line)
        if access and self.scopes:
            self.scopes[-1].access = access.group(1)
            self.group = None
        if line.strip() == "" or (PREPROCESSOR.match(line) and not DEFINE.match(line)):
            self.group = None
        starts = self.starts_declaration(line)
        depth = len(self.scopes)
        documented_here = bool(self.out) and self.out[-1].lstrip().startswith("///") \
            and self.out[-1].strip() not in ("/// \\cond", "/// \\endcond")
        if starts and self.defines_member(lines, i) and self.hidden is None:
            # An out-of-class definition: its declaration has the text.
            self.out.append("/// \\cond")
            self.hidden = depth
        elif starts and not documented_here:
            if not self.group and self.note and self.note[0] == depth:
                self.group = self.note
                self.out.extend(self.group[1])
            elif self.group and self.group[0] == depth:
                self.out.extend(self.group[1])  # the group's description again
            elif not self.public() and self.hidden is None:
                self.out.append("/// \\cond")
                self.hidden = depth
            elif self.opener and self.names_class(lines, i):
                self.out.extend(self.with_class_overview(lines, i, []))
        if line.strip() and not PREPROCESSOR.match(line) and not self.in_directive:
            self.macro_doc = None
        if DEFINE.match(line) and self.at_scope():
            if self.macro_doc:  # each #define of a conditional macro
                self.out.extend(self.macro_doc)
            elif not documented_here:
                self.out.append("/// \\cond")
                self.out.append(line)
                self.close_define(lines, i)
                return
        self.trailing = None
        self.trailing_indent = None
        if "//" in line and strip_code(line).strip():
            self.trailing_indent = len(line) - len(line.lstrip())
        self.emit_with_trailing(line)
        self.track(line)
        if self.hidden is not None and (len(self.scopes) < self.hidden or (
                len(self.scopes) == self.hidden and self.pending.strip() == "")):
            self.out.append("/// \\endcond")
            self.hidden = None

    def close_define(self, lines, i):
        """An undocumented #define: hidden up to its last continued line."""
        self.defines_open = lines[i].rstrip().endswith("\\")
        if not self.defines_open:
            self.out.append("/// \\endcond")

    def emit_with_trailing(self, line):
        """Writes the line; a comment after a member or enumerator becomes its
        description."""
        m = TRAILING.match(line)
        code = strip_code(line).rstrip()
        if (m and not DIRECTIVE.match(m.group(3)) and self.at_scope() and not PREPROCESSOR.match(line)
                and code and (code.endswith((";", ",")) or self.in_enum())
                and not code.lstrip().startswith("}")):
            code_part = line[:len(line) - len(line.lstrip())] + line.strip()
            comment_at = code_part.find("//", len(code))
            self.out.append(code_part[:comment_at] + "///< " + escape(m.group(3)))
            self.trailing = len(self.out) - 1
            return
        self.out.append(line)

    def track(self, line):
        directive = self.in_directive or PREPROCESSOR.match(line)
        self.in_directive = bool(directive) and line.rstrip().endswith("\\")
        if directive:  # a preprocessor line is no part of a declaration
            return
        for ch in strip_code(line):
            if ch == "{":
                kind = KIND.search(self.pending)
                self.scopes.append(Scope(kind.group(1) if kind and SCOPE.search(self.pending) else None))
                if SCOPE.search(self.pending) and not kind:  # extern "C"
                    self.scopes[-1].kind = "namespace"
                self.pending = ""
            elif ch == "}":
                if self.scopes:
                    self.scopes.pop()
                if self.group and self.group[0] > len(self.scopes):
                    self.group = None
                if self.note and self.note[0] > len(self.scopes):
                    self.note = None
                self.pending = ""
            elif ch == ";" or (ch == "," and self.in_enum()):
                self.pending = ""
            else:
                self.pending += ch
        if ACCESS.match(line) or MACRO_USE.match(line):
            self.pending = ""
        self.pending += " "

    def run(self, text):
        lines = text.split("\n")
        self.defines_open = False
        self.trailing = None
        self.trailing_indent = None
        self.in_directive = False
        self.note = None
        for i, line in enumerate(lines):
            if self.defines_open:  # continued lines of a hidden #define
                self.out.append(line)
                self.defines_open = line.rstrip().endswith("\\")
                if not self.defines_open:
                    self.out.append("/// \\endcond")
                continue
            m = COMMENT.match(line)
            if m and DIRECTIVE.match(m.group(3)):
                self.flush(lines, i)
                self.out.append(line)
                continue
            if m:
                self.block.append((m.group(1), m.group(3)))
                continue
            self.flush(lines, i)
            self.code_line(lines, i)
            if line.strip():
                self.seen_code = True
        self.flush(lines, len(lines))
        if self.hidden is not None:
            self.out.append("/// \\endcond")
        return "\n".join(self.out)


def main(path):
    with open(path, encoding="utf-8", errors="replace") as f:
        text = f.read()
    sys.stdout.write(Filter(path).run(text))


if __name__ == "__main__":
    main(sys.argv[1])

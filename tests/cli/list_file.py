"""The nested lists of a board or footprint file, as tokens and as a tree, so that tests can change them with sense.

Follows docs/input-files.md: blanks part tokens, `;` comments run to the end of their line, a quoted text has no escapes,
and `propertys` and `string` are passed over up to the next closing parenthesis.
"""

import dataclasses
import re

BYTE_ORDER_MARK = b"\xef\xbb\xbf"
GAP = re.compile(rb"(?:[ \t\r\n\v\f]|;[^\n]*)*")
TOKEN = re.compile(rb'[()]|"[^"]*"|"[^"]*\Z|[^ \t\r\n\v\f();"][^ \t\r\n\v\f();]*')
COMMENT = re.compile(rb";[^\n]*")
NUMBER = re.compile(rb"[+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?")
# The content of these lists is no part of the tree.
PASSED_OVER = (b"propertys", b"string")


@dataclasses.dataclass
class List:
    """A list with its head, which is a token too, and its elements: lists, and tokens as they stand in the file."""
    head: bytes
    elements: list
    skipped: list = dataclasses.field(default_factory=list)  # the tokens of a list that is passed over

    def values(self):
        return [element for element in self.elements if not isinstance(element, List)]

    def lists(self, *heads):
        """The lists among the elements, all or those of some heads."""
        return [element for element in self.elements
                if isinstance(element, List) and (not heads or element.key() in heads)]

    def key(self):
        """The head as readers compare it."""
        return text_of(self.head).lower()

    def child(self, *path):
        """The first list of the first head, of that the first of the second head and so on; None where one is missing."""
        found = self
        for head in path:
            found = next(iter(found.lists(head)), None)
            if found is None:
                return None
        return found


def text_of(token):
    """What a token says: a quoted text without its quotes."""
    return token[1:-1] if token.startswith(b'"') else token


def is_number(token):
    return NUMBER.fullmatch(token) is not None


def split(content):
    """The tokens of a file and the gaps around them, one gap more than tokens. A byte order mark belongs to the first gap."""
    at = len(BYTE_ORDER_MARK) if content.startswith(BYTE_ORDER_MARK) else 0
    tokens, gaps = [], []
    start = 0
    while True:
        at = GAP.match(content, at).end()
        gaps.append(content[start:at])
        if at == len(content):
            return tokens, gaps
        start = TOKEN.match(content, at).end()
        tokens.append(content[at:start])
        at = start


def join(tokens, gaps):
    """The file of tokens and the gaps around them."""
    pieces = [gaps[0]]
    for token, gap in zip(tokens, gaps[1:]):
        pieces += (token, gap)
    return b"".join(pieces)


def must_part(token, following):
    """Whether two tokens would become one without a gap between them."""
    return not (token in b"()" or token.startswith(b'"') or following in b"()")


def parse(content):
    """The lists of a file at its top, or None where the file has a fault, behind which nothing is read."""
    tokens, _ = split(content)
    top = List(b"", [])
    open_lists = [top]
    i = 0
    while i < len(tokens):
        token = tokens[i]
        i += 1
        if token == b"(":
            if i == len(tokens) or tokens[i] == b"(":
                return None
            if tokens[i] == b")":
                # An empty list.
                open_lists[-1].elements.append(List(b"", []))
                i += 1
                continue
            opened = List(tokens[i], [])
            i += 1
            if is_open_text(opened.head):
                return None
            open_lists[-1].elements.append(opened)
            if opened.key() not in PASSED_OVER:
                open_lists.append(opened)
                continue
            while i < len(tokens) and text_of(tokens[i]) != b")":
                if is_open_text(tokens[i]):
                    return None
                opened.skipped.append(tokens[i])
                i += 1
            i += 1
        elif token == b")":
            if len(open_lists) > 1:
                open_lists.pop()
        elif is_open_text(token):
            return None
        elif len(open_lists) > 1:
            open_lists[-1].elements.append(token)
    return top


def is_open_text(token):
    return token.startswith(b'"') and (len(token) == 1 or not token.endswith(b'"'))


def tokens_of(element):
    """The tokens of a list or a token."""
    if not isinstance(element, List):
        return [element]
    tokens = [b"(", element.head] if element.head else [b"("]
    tokens += element.skipped
    for inner in element.elements:
        tokens += tokens_of(inner)
    tokens.append(b")")
    return tokens


def write(top):
    """The file of the lists at its top, a list a line where it is at the top."""
    return b"\n".join(b" ".join(tokens_of(element)) for element in top.elements) + b"\n"


def walk(element, path=()):
    """All lists below an element, each with the keys of the lists around it, from the outermost on."""
    for inner in element.lists():
        yield inner, path
        yield from walk(inner, path + (inner.key(),))

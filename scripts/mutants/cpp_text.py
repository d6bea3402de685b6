"""C++ text as tokens, pairs of brackets and statements.

It is no parser: it knows no types and relies on the layout that clang-format gives all sources. That is enough to find
places to change, since what it takes for something else only makes a mutant that doesn't compile, and that isn't counted.
Tokens are named by their number.
"""

import collections
import re

# Comments and lines for the preprocessor, with those that continue them, count as blanks.
TOKEN = re.compile(r"""
    (?P<blank>\s+|//[^\n]*|/\*.*?\*/|^\#(?:[^\n]*\\\n)*[^\n]*)
  | (?P<text>R"\(.*?\)"|"(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])+')
  | (?P<number>\d(?:[eE][+-]|[\w.'])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|->\*?|::|<<=|>>=|<<|>>|<=|>=|==|!=|&&|\|\||\+\+|--|[+\-*/%&|^]=|.)
""", re.X | re.M | re.S)

# Words that begin a statement which reads like a call and is none.
NO_CALL = {"return", "if", "while", "for", "switch", "case", "default", "using", "delete", "goto", "throw", "static_assert"}
# Words whose parentheses are followed by a statement or block, and that are no names of functions.
CONTROL = {"if", "while", "for", "switch", "catch", "constexpr"}
# What may stand between the parameters of a function and its body.
AFTER_PARAMETERS = {"const", "noexcept", "override", "final"}
LONGEST_HEAD = 8  # so many tokens, from a function's name backwards, are searched for its type

Token = collections.namedtuple("Token", "kind text start end")


class CppText:
    def __init__(self, source):
        self.source = source
        matches = (match for match in TOKEN.finditer(source) if match.lastgroup != "blank")
        self.tokens = [Token(match.lastgroup, match.group(), *match.span()) for match in matches]
        self.partner = self._match_brackets()

    def _match_brackets(self):
        """For each bracket the other one of its pair. Angle brackets are no brackets here: they may be comparisons."""
        partner, open_brackets = {}, []
        for i, token in enumerate(self.tokens):
            if token.kind == "sign" and token.text in "([{":
                open_brackets.append(i)
            elif token.kind == "sign" and token.text in ")]}":
                partner[i] = open_brackets.pop()
                partner[partner[i]] = i
        return partner

    def get(self, i):
        """The text of a token, empty before the first and behind the last."""
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def stands_between_blanks(self, i):
        token = self.tokens[i]
        return self.source[token.start - 1].isspace() and self.source[token.end].isspace()

    def find_end(self, i):
        """The semicolon that ends the statement."""
        while self.get(i) not in (";", ""):
            i = self.partner[i] + 1 if self.get(i) in ("(", "[", "{") else i + 1
        return min(i, len(self.tokens) - 1)

    def begins_statement(self, i):
        before = self.get(i - 1)
        if before == ")":
            return self.get(self.partner[i - 1] - 1) in CONTROL
        return before in (";", "{", "}", "else", "do")

    def is_call(self, i):
        """Whether the statement is names and parentheses up to its semicolon. Two names in a row declare something."""
        end = self.find_end(i)
        if self.get(i) in NO_CALL or self.get(end - 1) != ")":
            return False
        was_name = False
        while i < end:
            is_name = self.tokens[i].kind == "word"
            if is_name and was_name or not (is_name or self.get(i) in ("::", ".", "->", "(", "[", "<", ">")):
                return False
            was_name = is_name
            i = self.partner[i] + 1 if self.get(i) in ("(", "[") else i + 1
        return True

    def returns_bool(self, i):
        """Whether the function or lambda around a token returns a bool and says so."""
        while (i := self._find_enclosing(i)) is not None:
            before = i - 1
            if self.get(before) == "bool":
                return True  # a lambda's type stands right before its body
            while self.get(before) in AFTER_PARAMETERS:
                before -= 1
            if self.get(before) == ")":
                name = self.partner[before] - 1
                if self.get(name) not in CONTROL:
                    return self._is_bool_function(name)
        return False

    def _find_enclosing(self, i):
        """The nearest brace that is open at a token."""
        i -= 1
        while i >= 0 and self.get(i) != "{":
            i = self.partner[i] - 1 if self.get(i) in (")", "]", "}") else i - 1
        return i if i >= 0 else None

    def _is_bool_function(self, name):
        """Whether bool stands shortly before the name of a function."""
        for i in range(name, max(name - LONGEST_HEAD, -1), -1):
            if self.get(i) in (";", "{", "}", ")", ",", "]"):
                return False
            if self.get(i) == "bool":
                return True
        return False

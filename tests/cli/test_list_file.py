"""The reader of nested lists by which other tests change boards."""

import unittest

from list_file import List, is_number, join, must_part, parse, split, write

SAMPLE = b'\xef\xbb\xbf; x\r\n(a 1;c)\n"b ; ) " c"d()\t(string "x" 2)\x0b(e -1.5))\n'


class TokensTest(unittest.TestCase):
    def test_blanks_and_comments_part_tokens(self):
        tokens, gaps = split(SAMPLE)
        self.assertEqual([b"(", b"a", b"1", b'"b ; ) "', b'c"d', b"(", b")", b"(", b"string", b'"x"', b"2", b")",
                          b"(", b"e", b"-1.5", b")", b")"], tokens)
        self.assertEqual([b"\xef\xbb\xbf; x\r\n", b"", b" ", b";c)\n", b" ", b"", b"", b"\t", b"", b" ", b" ", b"", b"\x0b",
                          b"", b" ", b"", b"", b"\n"], gaps)

    def test_a_file_is_joined_as_it_was_split(self):
        for content in (SAMPLE, b"", b" ", b"a", b'"open (', b"\xef\xbb\xbf"):
            self.assertEqual(content, join(*split(content)))

    def test_only_words_behind_words_and_texts_behind_words_need_a_gap(self):
        self.assertTrue(must_part(b"a", b"b"))
        self.assertTrue(must_part(b"1", b'"b"'))
        for token, following in ((b"(", b"a"), (b"a", b")"), (b'"a"', b"b"), (b'"a"', b'"b"'), (b")", b"a"), (b"a", b"(")):
            self.assertFalse(must_part(token, following), (token, following))

    def test_numbers_are_told_from_words(self):
        for token in (b"5", b"-0.5", b"1e3", b"+.5", b"5.", b"007"):
            self.assertTrue(is_number(token), token)
        for token in (b"+5V", b"-", b".", b"1.3x3.6", b"1e", b'"5"', b"0x1F"):
            self.assertFalse(is_number(token), token)


class TreeTest(unittest.TestCase):
    def test_lists_become_a_tree(self):
        top = parse(SAMPLE)
        self.assertEqual([List(b"a", [b"1", b'"b ; ) "', b'c"d', List(b"", []), List(b"string", [], [b'"x"', b"2"]),
                                      List(b"e", [b"-1.5"])])], top.elements)

    def test_a_tree_is_written_with_the_same_tokens(self):
        self.assertEqual(split(SAMPLE)[0], split(write(parse(SAMPLE)))[0])

    def test_a_list_that_is_passed_over_ends_at_the_next_parenthesis(self):
        top = parse(b"(a (b) (STRING 1 (y) z) w)")
        self.assertEqual([List(b"a", [List(b"b", []), List(b"STRING", [], [b"1", b"(", b"y"]), b"z"])], top.elements)

    def test_what_is_missing_at_the_end_is_closed_and_what_is_too_much_is_dropped(self):
        self.assertEqual([List(b"a", [List(b"b", [b"1"])])], parse(b"(a (b 1").elements)
        self.assertEqual([List(b"a", []), List(b"b", [])], parse(b"x (a)) y (b)").elements)

    def test_faults_are_seen(self):
        for content in (b"((a))", b"(a (", b'(a "x', b'"', b'(a (string "x))', b'("x'):
            self.assertIsNone(parse(content), content)

    def test_children_are_found_whatever_the_case(self):
        top = parse(b'(A (b 1) ("B" 2) (c (D 3)))')
        self.assertEqual([[b"1"], [b"2"]], [found.values() for found in top.child(b"a").lists(b"b")])
        self.assertEqual([b"3"], top.child(b"a", b"c", b"d").values())
        self.assertIsNone(top.child(b"a", b"d"))


if __name__ == "__main__":
    unittest.main()

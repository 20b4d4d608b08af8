#!/usr/bin/env python3
"""tools/word_list/own_list: what it makes of a dictionary, and what it says of one that it refuses."""
import os
import random
import subprocess
import tempfile
import unittest

TOOL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../tools/word_list/own_list")
FEW = "planet\ngarden\nsimple\nanyone\n"
FOUR = ["planet", "garden", "simple", "anyone"]
RUSSIAN = "слово\nпланета\nсадовник\nпростой\nчеловек\n"
MADE = [  # the rule, the options, the dictionary, the words in the list, what is said
    ("a word with a capital alone is a name", [], FEW + "Berlin\n", FOUR,
     "1 word has a capital alone, as a name (--capitals takes it): Berlin"),
    ("unless capitals are said to be common", ["--capitals"], FEW + "Berlin\n", FOUR + ["berlin"],
     "5 words in"),
    ("one that is there in small letters too is a word", [], "Anyone\n" + FEW, FOUR, "4 words in"),
    ("a dictionary in capitals throughout is folded", [], FEW.upper(), FOUR, "4 words in"),
    ("UTF-8 is named", [], FEW + "bücher\n", FOUR + ["bücher"], "is read as UTF-8."),
    ("Windows-1252 is named", [], (FEW + "bücher\n").encode("cp1252"), FOUR + ["bücher"],
     "is read as Windows-1252."),
    ("a lone CR ends a line, and so does a comma", [], "planet\rgarden,simple\r\nanyone\r", FOUR, ""),
    ("Turkish capitals", ["--turkish", "--capitals"], FEW + "IRMAKÇ\nİRMAKÇ\n",
     FOUR + ["ırmakç", "irmakç"], ""),
    ("a dotted capital is not dropped elsewhere", ["--capitals"], FEW + "İRMAKÇ\n",
     FOUR + ["irmakç"], ""),
    ("combining marks are told", [], FEW + "हिन्दीभ\n", FOUR,
     "1 word has a mark that would need a box of its own: हिन्दीभ"),
    ("nothing has to leave", [], FEW, FOUR, "No word has to leave"),
    ("a number alone in front makes no hunspell", [], "4\n" + FEW, FOUR, ""),
]
REFUSED = [  # the rule, the dictionary, what is said
    ("KOI8-R", RUSSIAN.encode("koi8-r"), "iconv -f ENCODING -t UTF-8"),
    ("CP1251", RUSSIAN.encode("cp1251"), "iconv -f ENCODING -t UTF-8"),
    ("ISO-8859-2", "łąka\nżółty\nksiążka\n".encode("iso-8859-2"), "iconv -f ENCODING -t UTF-8"),
    ("no encoding that the game reads", b"a\x81b\n", "is neither UTF-8 nor Windows-1252"),
    ("UTF-16", FEW.encode("utf-16"), "iconv -f UTF-16 -t UTF-8"),
    ("hunspell", "3\nplanet/S\ngarden/MS\nsimple\n", "unmunch"),
]


class OwnList(unittest.TestCase):
    def setUp(self):
        room = tempfile.TemporaryDirectory()
        self.addCleanup(room.cleanup)
        self.dictionary, self.list, self.rest = (
            os.path.join(room.name, name) for name in ("dictionary", "list", "rest"))

    def run_tool(self, content, *options, target=None):
        with open(self.dictionary, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        done = subprocess.run([TOOL, *options, self.dictionary, target or self.list], text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        return done.returncode, done.stdout

    def test_makes_a_list(self):
        for rule, options, content, words, said in MADE:
            with self.subTest(rule):
                status, output = self.run_tool(content, *options)
                self.assertEqual(status, 0, output)
                self.assertIn(said, output)
                with open(self.list, encoding="utf-8") as file:
                    self.assertEqual(file.read().split(), words)
                self.assertNotIn("ninja", output)

    def test_refuses_what_it_cannot_read(self):
        for rule, content, said in REFUSED:
            with self.subTest(rule):
                status, output = self.run_tool(content)
                self.assertNotEqual(status, 0)
                self.assertIn(said, output)
                self.assertFalse(os.path.exists(self.list))

    def test_target_that_cannot_be_written_is_said_at_once(self):
        for target in (self.dictionary + "/list", os.path.dirname(self.dictionary), self.dictionary):
            status, output = self.run_tool(FEW, target=target)
            self.assertNotEqual(status, 0)
            self.assertEqual(len(output.splitlines()), 1, output)

    def test_sums_up_what_leaves(self):
        letters = "abcdefghijklmnopqr"  # which make all of the words
        many = [letters[:6], letters[6:12], letters[12:]]
        draw = random.Random(1)
        while len(many) < 2100:
            many.append("".join(draw.sample(letters, 6)))
        many = list(dict.fromkeys(many))
        status, output = self.run_tool("\n".join(many), "--left-out", self.rest)
        self.assertEqual(status, 0, output)
        with open(self.rest, encoding="utf-8") as file:
            left = sorted(line[:6] for line in file)
        self.assertEqual(len(left), len(many) - 2000)
        evenly = ", ".join(left[k * len(left) // 10] for k in range(10))
        self.assertIn(f"{len(left)} words leave, so that the largest game fits, such as {evenly}.\n",
                      output)


if __name__ == "__main__":
    unittest.main()

"""What holds for the neutral file of every board, whatever is on it."""

import functools
import math
import os
import re
import subprocess
import unittest

import boards
from list_file import is_number, parse, split, text_of, walk
from neutral_file import Block, Func, NamedValue, read, write
from program_case import ProgramCase

# Sums and products of smaller numbers stay finite.
LARGE = 1e100


def fold(name):
    """A name as the readers compare it: the letters A to Z only."""
    return name.lower()


def child(block, *names):
    """The block of a path of names; each has to be there."""
    for name in names:
        block = next(item for item in block.items if isinstance(item, Block) and item.name == name)
    return block


def funcs(block, *names):
    return [item for item in block.items if isinstance(item, Func) and (not names or item.name in names)]


def walk_file(items):
    """All items and arguments, in file order."""
    for item in items:
        yield item
        if isinstance(item, Block):
            yield from walk_file(item.items)
        elif isinstance(item, Func):
            yield from walk_file(item.arguments)


class File:
    """The parts of a neutral file that laws speak of."""

    def __init__(self, text):
        self.root = read(text)
        self.pads = funcs(child(self.root, b"PadShapes"))
        self.padstacks = child(self.root, b"Padstacks").items
        self.footprints = child(self.root, b"Footprints").items
        self.definitions = child(self.root, b"Components").items
        cell = child(self.root, b"LayoutData", b"LayoutCell")
        netlist = child(cell, b"Netlist").items
        self.instances = [funcs(item)[0] for item in netlist if item.name == b"CompInst"]
        self.nets = [item for item in netlist if item.name == b"Net"]
        self.layers = child(cell, b"Layout", b"Layers")
        self.top_layers = child(self.root, b"LayoutData", b"Design", b"TopLayout", b"Layers")
        self.placed = child(cell, b"Layout", b"LayoutComponents").items
        self.drawn = child(cell, b"Layout", b"LayoutNets")

    def layer_names(self):
        return {layer.arguments[0] for layer in self.layers.items}


@functools.cache
def file_of(text):
    return File(text)


class Names:
    """The names that a board uses and doesn't define, as they may stand in its neutral file."""

    def __init__(self, board):
        lists = [list(walk(parse(content) or parse(b""))) for content in (board.pcf, board.ftf)]
        # A number that no layer has: it is looked up, which gives an empty name, or made a name as it is.
        used = [found.values()[0] for found, _ in lists[0] if found.key() == b"conductive" and found.values()]
        self.layers = {b""} | {b"Conductive_%d" % int(number) for number in used if re.fullmatch(rb"[+-]?[0-9]+", number)}
        known = {fold(text_of(found.values()[0])) for found, _ in lists[1] if found.key() == b"pin" and found.values()}
        pins = {text_of(found.values()[0]) for found, _ in lists[0] if found.key() == b"pin" and found.values()}
        self.pins = {pin for pin in pins if fold(pin) not in known}


def counts_components_twice(board):
    """Whether definitions can share a name: each section of components counts from 1."""
    return sum(found.key() == b"components" for found, _ in walk(parse(board.pcf) or parse(b""))) > 1


def has_large_number(board):
    tokens = [token for content in (board.pcf, board.ftf) for token in split(content)[0]]
    return any(abs(float(token)) > LARGE for token in tokens if is_number(token))


class BoardInvariantsTest(ProgramCase):
    def for_every_board(self, check):
        for board in boards.every(boards.SEVERAL):
            with self.subTest(board=board.name):
                check(board, self.output_of(board.pcf, board.ftf, board.txt))

    def for_every_file(self, check):
        self.for_every_board(lambda board, text: check(board, file_of(text)))

    def test_there_are_boards_of_all_kinds(self):
        names = [board.name for board in boards.every(boards.SEVERAL)]
        for kind in ("examples/", "generated"):
            self.assertTrue(any(name.startswith(kind) for name in names), kind)

    def test_the_file_is_well_formed_and_is_written_again_as_it_was(self):
        self.for_every_board(lambda _, text: self.assert_bytes(text, write(read(text)), "rewritten"))

    def test_the_program_reads_its_own_file_back(self):
        rewriter = os.environ.get("REWRITE_NEUTRAL_FILE")
        self.assertTrue(rewriter, "REWRITE_NEUTRAL_FILE has to name the built program that reads and writes a neutral file")

        def check(_, text):
            ended = subprocess.run([rewriter], input=text, capture_output=True, check=False)
            self.assertEqual((0, b""), (ended.returncode, ended.stderr))
            self.assert_bytes(text, ended.stdout, "rewritten")

        self.for_every_board(check)

    def test_a_second_run_gives_the_same_bytes(self):
        def check(board, text):
            self.new_folder()
            self.put_board("again", board.pcf, board.ftf, board.txt)
            self.run_program("again.pcf")
            self.assert_bytes(text, self.files()[b"again.qrl"], "second run")

        self.for_every_board(check)

    def test_ids_run_from_one_without_a_gap_in_file_order(self):
        def check(_, file):
            ids = [item.arguments[0] for item in walk_file(file.drawn.items)
                   if isinstance(item, Func) and item.name in (b"Via", b"Path", b"Circle", b"Polygon")]
            self.assertEqual(list(range(1, len(ids) + 1)), ids)

        self.for_every_file(check)

    def test_the_stackup_is_written_twice(self):
        self.for_every_file(lambda _, file: self.assert_bytes(write(file.layers), write(file.top_layers), "Layers"))

    def test_copper_and_dielectrics_alternate(self):
        def check(_, file):
            for i, layer in enumerate(file.layers.items):
                self.assertEqual(i % 2 == 1, layer.arguments[1] == b"Dielectric", layer)
                if i % 2:
                    self.assertEqual(b"Dielectric_%d" % (i // 2 + 1), layer.arguments[0])
            self.assertIn(len(file.layers.items) % 2, (1, len(file.layers.items)))

        self.for_every_file(check)

    def test_every_pad_of_a_padstack_is_defined(self):
        def check(_, file):
            defined = {pad.name for pad in file.pads}
            self.assertEqual(b"NULLPAD", file.pads[0].name)
            for padstack in file.padstacks:
                for entry in padstack.items[1:]:
                    self.assertIn(entry.arguments[0], defined)
                    for unconnected in entry.arguments[4:]:
                        self.assertLessEqual(set(unconnected.arguments[:1]), defined)

        self.for_every_file(check)

    def test_every_padstack_has_one_entry_a_copper_layer(self):
        def check(_, file):
            layers = (len(file.layers.items) + 1) // 2
            for padstack in file.padstacks:
                self.assertEqual(b"Hole", padstack.items[0].name)
                self.assertEqual(layers, len(padstack.items) - 1, padstack.name)

        self.for_every_file(check)

    def test_every_padstack_of_a_pin_or_via_is_defined(self):
        def check(_, file):
            defined = {padstack.name for padstack in file.padstacks}
            for footprint in file.footprints:
                for pin in child(footprint, b"FpPins").items:
                    self.assertIn(pin.items[0].arguments[3], defined)
            for net in file.drawn.items:
                for via in funcs(net, b"Via"):
                    self.assertIn(via.arguments[5], defined)

        self.for_every_file(check)

    def test_components_with_a_footprint_are_defined_instanced_and_placed_in_one_order(self):
        def check(board, file):
            if counts_components_twice(board):
                return
            definitions = [definition.name for definition in file.definitions]
            instanced = [instance for instance in file.instances if instance.arguments[0] in definitions]
            placed = [funcs(component, b"LayoutCompInst")[0].arguments for component in file.placed]
            self.assertEqual(len(definitions), len(set(definitions)))
            self.assertEqual(definitions, [instance.arguments[0] for instance in instanced])
            self.assertEqual([instance.name for instance in instanced], [arguments[2] for arguments in placed])
            self.assertEqual([funcs(definition, b"CompDef")[0].arguments[1] for definition in file.definitions],
                             [arguments[1] for arguments in placed])

        self.for_every_file(check)

    def test_every_footprint_of_a_component_is_defined(self):
        def check(_, file):
            defined = {footprint.name for footprint in file.footprints}
            for definition in file.definitions:
                self.assertIn(definition.items[0].arguments[1], defined)

        self.for_every_file(check)

    def test_terminals_are_the_footprints_pins_in_their_order_and_more(self):
        def check(_, file):
            footprints = {}
            for footprint in file.footprints:
                pins = [pin.items[0].arguments[0] for pin in child(footprint, b"FpPins").items]
                footprints.setdefault(footprint.name, pins)
            for definition in file.definitions:
                terminals = iter(terminal.arguments[0] for terminal in funcs(definition, b"Terminal"))
                for pin in footprints[definition.items[0].arguments[1]]:
                    self.assertIn(pin, terminals, f"{definition.name} lacks it, or has another order")

        self.for_every_file(check)

    def test_every_net_pin_is_a_terminal(self):
        def check(_, file):
            terminals = {}
            for instance in file.instances:
                for definition in file.definitions:
                    if definition.name == instance.arguments[0]:
                        count = len(funcs(definition, b"Terminal"))
                        terminals[instance.name] = max(count, terminals.get(instance.name, 0))
            for net in file.nets:
                for pin in net.items[1:]:
                    component, _, index = pin.value.rpartition(b".")
                    self.assertIn(component, terminals)
                    self.assertLess(int(index), terminals[component], pin.value)

        self.for_every_file(check)

    def test_a_net_has_no_pin_twice_and_its_pins_are_sorted(self):
        def check(_, file):
            for net in file.nets:
                # By units of 16 bits, as texts are compared.
                pins = [pin.value.decode("utf-8", "surrogateescape").encode("utf-16-be", "surrogatepass") for pin in net.items[1:]]
                self.assertEqual(sorted(set(pins)), pins)

        self.for_every_file(check)

    def test_every_net_is_drawn_once_under_its_name(self):
        def check(_, file):
            names = [net.items[0].name for net in file.nets]
            self.assertEqual(names, [net.items[0].value for net in file.drawn.items])
            self.assertEqual(len(names), len({fold(name) for name in names}))

        self.for_every_file(check)

    def test_every_layer_is_in_the_stackup(self):
        def check(board, file):
            defined = file.layer_names() | Names(board).layers
            for net in file.drawn.items:
                for item in net.items:
                    if isinstance(item, Func):
                        used = item.arguments[1:3] if item.name == b"Via" else item.arguments[:1]
                    else:
                        used = [inner.value for inner in item.items if isinstance(inner, NamedValue)] \
                            if isinstance(item, Block) else []
                    self.assertLessEqual(set(used), defined)
            for component in file.placed:
                self.assertIn(component.items[0].arguments[0], defined)
            for item in walk_file(file.root.items):
                if isinstance(item, Func) and item.name == b"RemoveThermalVoids":
                    self.assertLessEqual(set(item.arguments[::2]), defined)

        self.for_every_file(check)

    def test_every_pin_without_thermals_is_a_pin_of_its_footprint(self):
        def check(board, file):
            unknown = Names(board).pins
            for definition, component in zip(file.definitions, file.placed):
                pins = {fold(terminal.arguments[0]) for terminal in funcs(definition, b"Terminal")}
                for pin in funcs(component, b"fpPinInst"):
                    if pin.arguments[0] not in unknown:
                        self.assertIn(fold(pin.arguments[0]), pins)

        self.for_every_file(check)

    def test_outlines_without_voids_are_closed_and_heights_stand_between_vertices(self):
        def check(_, file):
            for item in walk_file(file.drawn.items):
                if isinstance(item, Func) and item.name in (b"Polygon", b"Path"):
                    kinds = [argument.name for argument in item.arguments if isinstance(argument, Func)]
                    for i, kind in enumerate(kinds):
                        if kind == b"Arc":
                            self.assertIn(kinds[i - 1] if i else None, (b"Vertex", b"vertex"))
                if isinstance(item, Func) and item.name == b"Graphics" and item.arguments[1].name == b"Polygon":
                    vertices = [argument for argument in item.arguments[1].arguments if isinstance(argument, Func)]
                    if vertices:
                        self.assertEqual(vertices[0].arguments, vertices[-1].arguments)

        self.for_every_file(check)

    def test_numbers_are_finite_where_the_board_has_no_huge_ones(self):
        def check(board, file):
            if not has_large_number(board):
                numbers = [item for item in walk_file(file.root.items) if isinstance(item, float)]
                self.assertTrue(all(map(math.isfinite, numbers)))

        self.for_every_file(check)


if __name__ == "__main__":
    unittest.main()

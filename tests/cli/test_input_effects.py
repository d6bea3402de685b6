"""Changes of a board's files of which it is known what they change in the neutral file, and that they change nothing else."""

import copy
import re
import unittest

import boards
from list_file import List, is_number, parse, split, text_of, walk, write as write_lists
from neutral_file import Block, Func, read, write
from program_case import ProgramCase

# Lists whose values are lengths, all of them or the first one alone.
LENGTH_LISTS = (b"pt", b"width", b"height", b"r", b"outlinewidth", b"circle", b"in", b"out", b"bridgewidth", b"bwdiameter")
# Where the neutral file has lengths: the places of the arguments, or all.
PADSTACK_ENTRIES = (b"Top", b"Signal", b"Wirebond", b"Bottom")
LENGTHS = {b"FpPin": (1, 2), b"LayoutCompInst": (3, 4), b"Via": (3, 4), **{name: (1, 2) for name in PADSTACK_ENTRIES}}
ALL_LENGTHS = (b"Hole", b"Circle", b"Rectangle", b"Obround", b"Vertex", b"vertex", b"Arc", b"Polygon")
# Where it has places on the board: x and y.
PLACES = {b"LayoutCompInst": (3, 4), b"Via": (3, 4), b"Circle": (2, 3), b"vertex": (0, 1), b"Vertex": (0, 1)}
# A bond wire has a width of its own, and a pad that is made of a line is called after its size.
BOND_WIRE = re.compile(rb"bondwire_-?[0-9]+")
LINE_PAD = re.compile(rb"^[0-9]+\.[0-9]{6}X[0-9]+\.[0-9]{6}")
# Lengths up to 1e-5 are compared with numbers that don't scale. Sums and products of lengths up to 1e100 stay finite.
SHORTEST, LONGEST = 1e-4, 1e100
SHIFT_OF_UNIT = {b"dbunit": (1000000, -2000000)}
SHIFT = (64, -128)
NEW_NET_NAMES = (b"RENAMED_NET", b"+renamed/net")
NEW_COMPONENT = b"ADDED1"


def block(root, *names):
    for name in names:
        root = next(item for item in root.items if isinstance(item, Block) and item.name == name)
    return root


def walk_items(items, change):
    """Calls `change` with every func, and with the layer on which it is drawn when it stands in `Graphics`."""
    def visit(item, layer):
        if isinstance(item, Block):
            for inner in item.items:
                visit(inner, layer)
        elif isinstance(item, Func):
            change(item, layer)
            layer = item.arguments[0] if item.name == b"Graphics" else layer
            for argument in item.arguments:
                visit(argument, layer)

    for item in items:
        visit(item, b"")


def multiply(token, factor):
    """The token of a number times a power of two, which a double takes without rounding."""
    if not is_number(token):
        return token
    product = float(token) * factor
    return b"%d" % int(product) if re.fullmatch(rb"[+-]?[0-9]+", token) and product.is_integer() else repr(product).encode()


def lengths(top):
    return [abs(float(element)) for found, _ in walk(top) if found.key() in LENGTH_LISTS
            for element in found.values() if is_number(element)]


def scale_lists(top, factor):
    for found, _ in walk(top):
        if found.key() in LENGTH_LISTS:
            found.elements = [element if isinstance(element, List) else multiply(element, factor) for element in found.elements]


def scale_file(root, factor):
    def scale(func, layer):
        places = range(len(func.arguments)) if func.name in ALL_LENGTHS else LENGTHS.get(func.name, ())
        if func.name == b"Vertex" and BOND_WIRE.fullmatch(layer):
            places = (0, 1)
        for i in places:
            if i < len(func.arguments) and isinstance(func.arguments[i], float):
                func.arguments[i] *= factor

    walk_items(root.items, scale)


def name_line_pads_by_place(root):
    """Gives the pads that are called after their sizes names that don't depend on them."""
    places = {}

    def renamed(name):
        size = LINE_PAD.match(name)
        return b"line pad %d" % places.setdefault(size[0], len(places)) + name[size.end():] if size else name

    def rename(func, _):
        func.name = renamed(func.name)
        func.arguments = [renamed(argument) if isinstance(argument, bytes) else argument for argument in func.arguments]

    walk_items(root.items, rename)
    for padstack in block(root, b"Padstacks").items:
        padstack.name = renamed(padstack.name)


def shift_file(root, shift):
    def move(func, _):
        for i, distance in zip(PLACES.get(func.name, ()), shift):
            if i < len(func.arguments) and isinstance(func.arguments[i], float):
                func.arguments[i] += distance

    walk_items(block(root, b"LayoutData", b"LayoutCell", b"Layout").items, move)


def take_over_close_numbers(expected, actual, tolerance):
    """Makes the numbers of a tree those of another one where they are close."""
    pairs = zip(expected.items, actual.items) if isinstance(expected, Block) and isinstance(actual, Block) \
        else zip(expected.arguments, actual.arguments) if isinstance(expected, Func) and isinstance(actual, Func) else ()
    for i, (left, right) in enumerate(pairs):
        if isinstance(left, float) and isinstance(right, float) and abs(left - right) <= tolerance:
            expected.arguments[i] = right
        else:
            take_over_close_numbers(left, right, tolerance)


def stays_when_moved(found, path):
    """Whether a list puts something on the board where no point of the board file says: at the origin, for want of a point."""
    key, above = found.key(), path[-1] if path else b""
    if key == b"pt":
        return len([element for element in found.values() if is_number(element)]) < 2
    if key == b"refer":
        # The copper of a pin is drawn twice, once without regard to the component's place.
        return b"pin" in path
    if key == b"arc":
        return not (found.child(b"begin", b"pt") and found.child(b"end", b"pt"))
    if key == b"vertex":
        return not found.lists(b"pt", b"arc")
    if key == b"openshape":
        return not found.child(b"vertex")
    if key == b"pad" and above == b"layer":
        return not found.child(b"pt")
    if key == b"layer" and (b"pin" not in path or len(found.lists(b"padstack")) > 1):
        return any(not padstack.child(b"pt") for padstack in found.lists(b"padstack"))
    if key == b"component":
        order = [element.key() for element in found.lists()]
        return not found.child(b"location", b"pt") or b"layout" in order[:order.index(b"location")]
    return False


def unit_of(top):
    """The unit of a board file, if it is the same for all of the file."""
    sections = [section for board in top.lists(b"pcf") for section in board.lists()]
    headers = [section for section in sections if section.key() == b"header"]
    if len(headers) != 1 or headers[0] is not sections[0]:
        return None
    unit = headers[0].child(b"unit")
    return text_of(unit.values()[0]).lower() if unit and unit.values() else b""


def remove_what_stays(found, path=()):
    for inner in found.lists():
        remove_what_stays(inner, path + (inner.key(),))
    found.elements = [element for element in found.elements
                      if not isinstance(element, List) or not stays_when_moved(element, path)]


def draws_copper(component):
    """Whether a component has copper of its own, bond wires, or a pin that can have."""
    return any(found.key() in (b"bondwire", b"refer") or len(found.lists(b"padstack")) > 1 for found, _ in walk(component)) \
        or bool(component.lists(b"layout"))


class InputEffectsTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.tried = 0

    def tearDown(self):
        self.assertLess(0, self.tried, "boards on which the change was tried")

    def for_every_board(self, check):
        """Calls `check` with each board whose files have no fault, and with the lists of its files."""
        for board in boards.every():
            pcf, ftf = parse(board.pcf), parse(board.ftf)
            if pcf is not None and ftf is not None:
                with self.subTest(board=board.name):
                    check(board, pcf, ftf)

    def file_of(self, board):
        return read(self.output_of(board.pcf, board.ftf, board.txt))

    def assert_file(self, expected, board):
        self.tried += 1
        self.assert_bytes(write(expected), self.output_of(board.pcf, board.ftf, board.txt), "neutral file")

    def test_all_lengths_times_a_power_of_two(self):
        def check(board, pcf, ftf):
            all_lengths = [length for length in lengths(pcf) + lengths(ftf) if length]
            scale = 1e-5 if b"dbunit" in board.pcf.lower() else 1.0
            if all_lengths and (min(all_lengths) * scale < SHORTEST or max(all_lengths) > LONGEST):
                return
            for factor in (2.0, 0.25):
                scaled = [copy.deepcopy(top) for top in (pcf, ftf)]
                for top in scaled:
                    scale_lists(top, factor)
                other = board.with_files(pcf=write_lists(scaled[0]), ftf=write_lists(scaled[1]))
                expected, actual = self.file_of(board), self.file_of(other)
                scale_file(expected, factor)
                name_line_pads_by_place(expected)
                name_line_pads_by_place(actual)
                self.tried += 1
                self.assert_bytes(write(expected), write(actual), f"neutral file, times {factor}")

        self.for_every_board(check)

    def test_a_board_that_is_moved(self):
        def check(board, pcf, _):
            remove_what_stays(pcf)
            board = board.with_files(pcf=write_lists(pcf))
            unit = unit_of(pcf)
            if unit is None:
                return
            shift = SHIFT_OF_UNIT.get(unit, SHIFT)
            for found, path in walk(pcf):
                # What a component refers to is drawn from its location on.
                if found.key() == b"pt" and not (b"component" in path and b"refer" in path):
                    numbers = [i for i, element in enumerate(found.elements) if not isinstance(element, List)][:2]
                    for i, distance in zip(numbers, shift):
                        found.elements[i] = repr(float(found.elements[i]) + distance).encode()
            expected = self.file_of(board)
            actual = self.file_of(board.with_files(pcf=write_lists(pcf)))
            scale = 1e-5 if unit == b"dbunit" else 1.0
            shift_file(expected, [distance * scale for distance in shift])
            # Points that are sums are rounded to the last of 53 bits, and what is computed from them a little more.
            size = max(lengths(pcf), default=0.0) * scale
            take_over_close_numbers(expected, actual, size * 1e-11)
            self.tried += 1
            self.assert_bytes(write(expected), write(actual), "neutral file")

        self.for_every_board(check)

    def test_a_net_of_another_name(self):
        def check(board, pcf, _):
            nets = [net for net in block(self.file_of(board), b"LayoutData", b"LayoutCell", b"Netlist").items if net.name == b"Net"]
            names = [net.items[0].name for net in nets if net.items[0].name.lower() != b"zuken_dummy"]
            for name in {name for i, name in enumerate(names) if i in (0, len(names) // 2, len(names) - 1)}:
                for new_name in NEW_NET_NAMES:
                    self.check_net_name(board, copy.deepcopy(pcf), name, new_name)

        self.for_every_board(check)

    def check_net_name(self, board, pcf, name, new_name):
        for found, _ in walk(pcf):
            if found.key() in (b"net", b"signalname") and found.elements and not isinstance(found.elements[0], List) \
                    and not is_number(found.elements[0]) and text_of(found.elements[0]).lower() == name.lower():
                found.elements[0] = new_name
        expected = self.file_of(board)
        cell = block(expected, b"LayoutData", b"LayoutCell")
        for net in block(cell, b"Netlist").items:
            if net.name == b"Net" and net.items[0].name == name:
                net.items[0].name = new_name
        for net in block(cell, b"Layout", b"LayoutNets").items:
            if net.items[0].value == name:
                net.items[0].value = new_name
        self.assert_file(expected, board.with_files(pcf=write_lists(pcf)))

    def test_a_component_that_is_added_behind_all_others(self):
        def check(board, pcf, _):
            sections = [found for found, _ in walk(pcf) if found.key() == b"components"]
            if len(sections) != 1:
                return
            expected = self.file_of(board)
            definitions = block(expected, b"Components").items
            footprint = definitions[0].items[0].arguments[1] if definitions else b""
            added = [List(b"reference", [NEW_COMPONENT]), List(b"location", [List(b"pt", [b"0", b"0"])]), List(b"angle", [b"90"])]
            if definitions:
                added.append(List(b"footprint", [b'"' + footprint + b'"']))
            number = len(sections[0].lists(b"component")) + 1
            sections[0].elements.append(List(b"component", added))
            self.add_component(expected, b"Component_%d" % number, definitions[:1])
            self.assert_file(expected, board.with_files(pcf=write_lists(pcf)))

        self.for_every_board(check)

    def add_component(self, expected, definition, like):
        """Adds a component to a neutral file, with the footprint of another one's definition if there is one."""
        cell = block(expected, b"LayoutData", b"LayoutCell")
        netlist = block(cell, b"Netlist").items
        components = [item for item in netlist if item.name == b"CompInst"]
        netlist.insert(len(components), Block(b"CompInst", [Func(NEW_COMPONENT, [definition]), Block(b"Properties", [])]))
        for other in like:
            footprint = other.items[0].arguments[1]
            added = Block(definition, [Func(b"CompDef", [b"", footprint, b"", NEW_COMPONENT[:1], 1]), *other.items[1:]])
            block(expected, b"Components").items.append(added)
            # Bond wire layers come ahead of the top layer, and aren't for components.
            layers = [layer.arguments[0] for layer in block(cell, b"Layout", b"Layers").items
                      if layer.arguments[1] in (b"Signal", b"MetalizedSignal")]
            placed = Func(b"LayoutCompInst", [layers[0] if layers else b"", footprint, NEW_COMPONENT, 0.0, 0.0, 90.0, False])
            block(cell, b"Layout", b"LayoutComponents").items.append(Block(b"LayoutComp", [placed]))

    def test_a_copy_of_a_component_behind_all_others(self):
        def check(board, pcf, _):
            sections = [found for found, _ in walk(pcf) if found.key() == b"components"]
            if len(sections) != 1:
                return
            components = sections[0].lists(b"component")
            for i, component in enumerate(components):
                if not draws_copper(component):
                    other = copy.deepcopy(pcf)
                    section = next(found for found, _ in walk(other) if found.key() == b"components")
                    twin = copy.deepcopy(component)
                    twin.elements = [element for element in twin.elements
                                     if not isinstance(element, List) or element.key() != b"reference"]
                    twin.elements.append(List(b"reference", [NEW_COMPONENT]))
                    section.elements.append(twin)
                    expected = self.file_of(board)
                    if self.copy_component(expected, b"Component_%d" % (i + 1), b"Component_%d" % (len(components) + 1), component):
                        self.assert_file(expected, board.with_files(pcf=write_lists(other)))

        self.for_every_board(check)

    def copy_component(self, expected, original, definition, component):
        """Adds a copy of a component to a neutral file. False where the component isn't in it."""
        cell = block(expected, b"LayoutData", b"LayoutCell")
        netlist = block(cell, b"Netlist").items
        instances = [item for item in netlist if item.name == b"CompInst"]
        if original not in [instance.items[0].arguments[0] for instance in instances]:
            return False
        # What the side file says is said of the original.
        parts = [text_of(part.elements[0]) for part in component.lists(b"part") if part.elements and not isinstance(part.elements[0], List)]
        properties = [Func(b"TextProp", [b"PART_NUMBER", parts[-1]])] if parts and parts[-1] else []
        netlist.insert(len(instances), Block(b"CompInst", [Func(NEW_COMPONENT, [definition]), Block(b"Properties", properties)]))
        definitions = block(expected, b"Components").items
        placed = block(cell, b"Layout", b"LayoutComponents").items
        for defined, place in list(zip(definitions, placed)):
            if defined.name == original:
                defined, place = copy.deepcopy((defined, place))
                defined.name = definition
                defined.items[0].arguments[3] = NEW_COMPONENT[:1]
                place.items[0].arguments[2] = NEW_COMPONENT
                definitions.append(defined)
                placed.append(place)
        return True

    def test_a_component_without_pins_that_is_taken_away(self):
        def check(board, pcf, _):
            sections = [found for found, _ in walk(pcf) if found.key() == b"components"]
            if len(sections) != 1:
                return
            components = sections[0].lists(b"component")
            referred = {text_of(found.values()[0]) for found, _ in walk(pcf) if found.key() == b"comp" and found.values()}
            for i, component in enumerate(components):
                references = component.child(b"reference").values() if component.child(b"reference") else []
                if component.lists(b"pin", b"layout") or not references or text_of(references[0]) in referred:
                    continue
                other = copy.deepcopy(pcf)
                section = next(found for found, _ in walk(other) if found.key() == b"components")
                section.elements.remove(component)
                expected = self.file_of(board)
                self.remove_component(expected, i + 1)
                self.assert_file(expected, board.with_files(pcf=write_lists(other)))

        self.for_every_board(check)

    def remove_component(self, expected, number):
        """Takes a component away and renumbers the definitions of those behind it."""
        def moved(definition):
            place = int(definition.removeprefix(b"Component_"))
            return b"Component_%d" % (place - (place > number))

        gone = b"Component_%d" % number
        cell = block(expected, b"LayoutData", b"LayoutCell")
        definitions = block(expected, b"Components").items
        for i, definition in enumerate(definitions):
            if definition.name == gone:
                del block(cell, b"Layout", b"LayoutComponents").items[i]
        definitions[:] = [definition for definition in definitions if definition.name != gone]
        for definition in definitions:
            definition.name = moved(definition.name)
        netlist = block(cell, b"Netlist").items
        netlist[:] = [item for item in netlist if item.name != b"CompInst" or item.items[0].arguments[0] != gone]
        for item in netlist:
            if item.name == b"CompInst":
                item.items[0].arguments[0] = moved(item.items[0].arguments[0])


if __name__ == "__main__":
    unittest.main()

"""Boards that make careless code slow: each is large in one way only."""

import os

_HEADER = "(header (version 11.0) (unit DBUNIT))\n"
_TECHNOLOGY = (
    "(technologyContainer (technology T (conductiveLayer (layerNumber 1 (type POSI)) (layerNumber 2 (type POSI)))\n"
    " (layerMapping (map A (correspondence (footLayer PAD_A) (boardLayer (conductive 1)))))))\n"
)
_FOOTPRINT_LAYERS = (
    "(technologyContainer (technology L (footprintLayer (layer PAD_A (type CONDUCTIVE) (side A)))))\n"
)
_PADS = (
    "(pads (pad C60 (geometry (circle 30000 (pt 0 0)))))\n"
    "(padstacks (padstack P60 (padSet (footLayer PAD_A) (connect (pad C60)))))\n"
)


def _board(container):
    yield "(pcf hostile\n" + _HEADER + _TECHNOLOGY + "(boardContainer\n"
    yield from container
    yield ")\n)\n"


def _library(footprints):
    yield "(ftf hostile\n" + _HEADER + _FOOTPRINT_LAYERS + "(footprintContainer\n" + _PADS + "(footprints\n"
    yield from footprints
    yield "))\n)\n"


def _footprint(name, pins, pin_name):
    yield f"(footprint {name} (toeprint\n"
    for i in range(pins):
        yield (
            f"(pin {pin_name(i)} (pt {i * 1000} 0) (layout (layer (fpadstack (pt {i * 1000} 0) (angle 0)"
            " (padstackGroup (padstack P60))))))\n"
        )
    yield "))\n"


def _components(names, footprint):
    yield "(components\n"
    for i, name in enumerate(names):
        yield (
            f"(component (reference {name}) (part X-{i}) (footprint {footprint}) (placed YES) (placementSide A)"
            f" (location (pt {i * 1000} 0)) (angle 0))\n"
        )
    yield ")\n"


def _rounded_line():
    yield "(boardLayout (layout (layer (conductive 1) (line (net N) (geometry (line (vertex\n"
    for i in range(1_000_000):
        yield f"(pt {i * 100000} {i % 2 * 100000} (tarc (r 20000)))\n"
    yield "))))))\n"


def _lines_of_one_net():
    letters = "abcdefghijklmnopq"
    yield "(boardLayout (layout (layer (conductive 1)\n"
    for i in range(100_000):
        name = "".join(c.upper() if i >> k & 1 else c for k, c in enumerate(letters))
        yield f"(line (net {name}) (geometry (line (vertex (pt 0 {i} (width 1000)) (pt 100000 {i})))))\n"
    yield ")))\n"


def _nested_lists():
    yield "(a\n" * 1_000_000
    yield ")" * 1_000_000


# Name, board file, footprint file.
HOSTILE_BOARDS = [
    ("a line of 1,000,000 rounded corners", lambda: _board(_rounded_line()), lambda: _library([])),
    (
        "a footprint of 100,000 pins of one name",
        lambda: _board([]),
        lambda: _library(_footprint("F", 100_000, lambda i: "A")),
    ),
    (
        "100,000 components whose names end in a dot",
        lambda: _board(_components((f"U{i}." for i in range(100_000)), "F")),
        lambda: _library(_footprint("F", 1, lambda i: "1")),
    ),
    ("1,000,000 nested lists", lambda: _board(_nested_lists()), lambda: _library([])),
    ("100,000 spellings of one net", lambda: _board(_lines_of_one_net()), lambda: _library([])),
    (
        "10,000 components on a footprint of 1,000 pins",
        lambda: _board(_components((f"U{i}" for i in range(10_000)), "F")),
        lambda: _library(_footprint("F", 1000, lambda i: str(i + 1))),
    ),
]


def write_hostile_board(prefix, board, library):
    """Writes PREFIX.pcf and PREFIX.ftf, unless they are there."""
    for extension, pieces in ((".pcf", board), (".ftf", library)):
        if os.path.exists(prefix + extension):
            continue
        with open(prefix + extension, "w", encoding="ascii") as file:
            file.writelines(pieces())

"""The lines and vias of a board as a Gerber file: what a viewer of such files has to draw for the same copper."""

import re

# Lengths of a board are counted in hundred thousandths of a millimetre.
HEAD = "%FSLAX35Y35*%\n%MOMM*%\n"
VIA_DIAMETER = 0.6
ITEM = re.compile(r"\((padstack) [^ ]+ \(net [^ ]+ \(pt (-?\d+) (-?\d+)\)|\(pt (-?\d+) (-?\d+)(?: \(width (\d+)\))?")


def apertures_of(text):
    """The number of the aperture of each pen's width, and the lines that define them, a via's first."""
    widths = sorted(set(re.findall(r"\(width (\d+)\)", text)), key=int)
    numbers = {width: 11 + at for at, width in enumerate(widths)}
    definitions = [f"%ADD10C,{VIA_DIAMETER}*%\n"]
    definitions += [f"%ADD{number}C,{int(width) / 1e5:.5f}*%\n" for width, number in numbers.items()]
    return numbers, definitions


def write_gerber(board, name):
    """Arcs are drawn as straight pieces, and surfaces by their outlines."""
    with open(board, encoding="latin-1") as file:
        text = file.read()
    numbers, definitions = apertures_of(text)
    with open(name, "w", encoding="ascii") as file:
        file.writelines([HEAD, *definitions, "%LPD*%\n"])
        for line in text.splitlines():
            draw = "D02"
            for item in ITEM.finditer(line):
                if item[1]:
                    file.write(f"G54D10*\nX{item[2]}Y{item[3]}D03*\n")
                    continue
                if item[6]:
                    file.write(f"G54D{numbers[item[6]]}*\n")
                file.write(f"X{item[4]}Y{item[5]}{draw}*\n")
                draw = "D01"
        file.write("M02*\n")

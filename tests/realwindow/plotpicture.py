"""Finds the oscilloscope's plots in a picture of a window: frames, axes, grid lines and labels."""

import re
import subprocess
from dataclasses import dataclass

LINE = 64  # brightest dot of a black line
INK = 100  # brightest dot of a label; its smoothed edges are brighter
GRID = range(120, 200)


@dataclass
class Rectangle:
    """Rows and columns from the first to the last."""

    top: int
    bottom: int
    left: int
    right: int


@dataclass
class Plot:
    """One framed plot; all numbers are dots from the picture's top left corner."""

    inside: Rectangle  # of the frame
    area: Rectangle  # what the curves and grid lines fill, without the axes


class Picture:
    """The red channel of a picture file: red curves and their read-outs vanish in it."""

    def __init__(self, file):
        self.width, self.height = map(int, run("identify", "-format", "%w %h", file).split())
        self.red = run("convert", file, "-background", "white", "-flatten", "-channel", "R", "-separate", "-depth", "8",
                       "gray:-")
        assert len(self.red) == self.width * self.height, f"{file}: {len(self.red)} bytes"

    def row(self, y, left=0, right=None):
        return self.red[y * self.width + left : y * self.width + (self.width if right is None else right)]

    def column(self, x, top, bottom):
        return self.red[top * self.width + x : bottom * self.width + x : self.width]

    def rectangle(self, area):
        return [self.row(y, area.left, area.right + 1) for y in range(area.top, area.bottom + 1)]

    def plots(self, narrowest):
        """The plots from top to bottom, each at least `narrowest` dots wide; None if a frame is not whole."""
        pattern = re.compile(rb"[\0-\x%02x]{%d,}" % (LINE, narrowest))
        found = {y: match for y in range(self.height) if (match := pattern.search(self.row(y)))}
        lines = groups(found)  # top and bottom of each frame in turn, as nothing interrupts them
        if len(lines) % 2 != 0:
            return None
        frames = [(found[above], above, below) for (_, above), (below, _) in zip(lines[::2], lines[1::2])]
        return [self.plot(Rectangle(above + 1, below - 1, line.start() + 3, line.end() - 4))
                for line, above, below in frames]

    def plot(self, inside):
        """Grid lines cross the axes: they are the row and the column that are mostly black."""
        rows = [y for y in range(inside.top, inside.bottom) if is_line(self.row(y, inside.left, inside.right))]
        bottom = rows[0] if rows else inside.bottom
        columns = [x for x in range(inside.left, inside.right)
                   if is_line(self.column(x, (inside.top + bottom) // 2, bottom))]
        left = columns[-1] if columns else inside.left
        return Plot(inside, Rectangle(inside.top, bottom - 1, left + 1, inside.right))

    def grid_columns(self, plot):
        """The middle of each vertical grid line."""
        area = plot.area
        return middles(x for x in range(area.left, area.right + 1)
                       if is_grid(self.column(x, area.top, area.bottom + 1)))

    def grid_rows(self, plot):
        """The middle of each horizontal grid line."""
        area = plot.area
        return middles(y for y in range(area.top, area.bottom + 1) if is_grid(self.row(y, area.left, area.right + 1)))

    def time_labels(self, plot):
        """First and last row with ink below the time axis; nothing without ink."""
        rows = self.inked_rows(plot.area.bottom + 4, plot.inside.bottom, plot.area)
        return (rows[0], rows[-1]) if rows else None

    def inked_rows(self, top, bottom, columns):
        return [y for y in range(top, bottom + 1) if min(self.row(y, columns.left, columns.right + 1)) < INK]

    def value_labels(self, plot):
        """First and last row of each label of the value axis."""
        inside = plot.inside
        left_of_axis = Rectangle(inside.top, inside.bottom, inside.left, plot.area.left - 4)
        return groups(self.inked_rows(inside.top, inside.bottom, left_of_axis))


def is_line(dots):
    return sum(dot <= LINE for dot in dots) > 0.6 * len(dots)


def is_grid(dots):
    return sum(dot in GRID for dot in dots) > 0.5 * len(dots)


def run(*command):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True).stdout


def groups(numbers):
    """(first, last) of each group of numbers in a row."""
    result = []
    for number in numbers:
        if result and result[-1][1] == number - 1:
            result[-1] = (result[-1][0], number)
        else:
            result.append((number, number))
    return result


def middles(numbers):
    return [(first + last) / 2 for first, last in groups(numbers)]

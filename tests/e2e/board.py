"""The board in pictures of the window."""

MARGIN = 30  # thickness in pixels
DEFAULT_LINES = 8, 0, 10  # of the primary and the secondary lines and the border

GIVEN_FILL = (32, 96, 80)
UNKNOWN_FILL = (66, 120, 107)
SELECTED_FILL = (54, 162, 253)


class Board:
    """The board in a picture of the window: where the cells are and what is painted there."""

    def __init__(self, picture, thicknesses=DEFAULT_LINES):
        self.picture = picture
        self.primary, self.secondary, self.border = thicknesses
        width, height = picture.size
        # The room of the board ends with the window and begins under the toolbar: going up through
        # the black of the left margin, the toolbar is the first thing that is not black.
        top = height // 2
        while top > 0 and picture.getpixel((4, top - 1)) == (0, 0, 0):
            top -= 1
        self.top = top
        client_height = height - top
        lines = 4 * self.primary + 6 * self.secondary
        edges = 2 * (MARGIN + self.border)
        self.cell_width = (width - lines - edges) // 9
        self.cell_height = (client_height - lines - edges) // 9
        board_width = 9 * self.cell_width + lines + 2 * self.border
        board_height = 9 * self.cell_height + lines + 2 * self.border
        self.left = (width - board_width) // 2
        self.board_top = top + (client_height - board_height) // 2

    def origin(self, column, row):
        def offset(line, size):
            boxes = (line + 2) // 3
            return (self.border + (line - 1) * size + boxes * self.primary
                    + (line - boxes) * self.secondary)
        return (self.left + offset(column, self.cell_width),
                self.board_top + offset(row, self.cell_height))

    def centre(self, column, row):
        x, y = self.origin(column, row)
        return x + self.cell_width // 2, y + self.cell_height // 2

    def fill(self, column, row):
        """Colour of a cell, taken inside its frame and beside its numbers."""
        x, y = self.origin(column, row)
        return self.picture.getpixel((x + 3, y + 3))

    def share(self, colour, column, row):
        """Share of a cell's pixels that have this very colour."""
        x, y = self.origin(column, row)
        box = (x, y, x + self.cell_width, y + self.cell_height)
        pixels = list(self.picture.crop(box).getdata())
        return sum(1 for pixel in pixels if pixel == colour) / len(pixels)

    def rating(self):
        """The left end of the margin under the board, where the rating stands."""
        width, height = self.picture.size
        return self.picture.crop((0, height - MARGIN + 2, width // 3, height))

    def ink(self, column, row, place=None):
        """Share of white pixels in the middle of a cell, or in the ninth of a pencilmark."""
        x, y = self.origin(column, row)
        width, height = self.cell_width, self.cell_height
        if place is None:
            box = (x + width // 4, y + height // 4, x + 3 * width // 4, y + 3 * height // 4)
        else:
            left, up = (place - 1) % 3, (place - 1) // 3
            box = (x + width * left // 3 + 3, y + height * up // 3 + 3,
                   x + width * (left + 1) // 3 - 3, y + height * (up + 1) // 3 - 3)
        pixels = list(self.picture.crop(box).getdata())
        return sum(1 for r, g, b in pixels if min(r, g, b) > 200) / len(pixels)

    def has_pencilmark(self, column, row, number):
        return self.ink(column, row, number) > 0.02

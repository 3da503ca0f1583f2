"""Positions that several stories play, as a line of text."""

PUZZLE = "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79"
SOLUTION = "534678912672195348198342567859761423426853791713924856961537284287419635345286179"
MIRRORED = "".join(PUZZLE[row:row + 9][::-1] for row in range(0, 81, 9))

"""Changes that make no difference, each with the reason. A row names the file, the line's text, the
change, and why no test can notice it. A row that a test does notice, or that names no change any
more, is a fault."""

CHANGES = [
]

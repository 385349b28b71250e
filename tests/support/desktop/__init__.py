"""A desktop to throw away, and a hand to use it. See README.md."""

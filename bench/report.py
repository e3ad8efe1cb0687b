"""A table of figures, some of which have limits."""


class Report:
    """Prints rows of figures and remembers which exceed their limits."""

    def __init__(self):
        self.missed = []

    def heading(self, name, *columns):
        print(f"\n{name:34}" + "".join(f"{column:>10}" for column in (*columns, "at most")))

    def row(self, name, *figures, limit=None):
        """None leaves a column empty. The limit is that of the last figure."""
        cells = "".join(" " * 10 if figure is None else f"{figure:10.2f}" for figure in figures)
        if limit is None:
            print(f"{name:34}{cells}")
            return
        is_missed = figures[-1] > limit
        print(f"{name:34}{cells}{limit:10.2f}{' MISSED' if is_missed else ''}")
        if is_missed:
            self.missed.append(name)

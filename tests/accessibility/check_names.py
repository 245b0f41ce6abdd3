"""Reads the running program's accessibility tree over AT-SPI and checks
that every control is named in words. Run by check_names.sh, which starts
the program on a private X display and D-Bus session."""

import sys
import time

import pyatspi

APP_NAME = sys.argv[1]
TIMEOUT = float(sys.argv[2]) if len(sys.argv) > 2 else 30.0

KEY_NAMES = [
    "Feet", "Inch", "Space", "Backspace", "Clear", "Clear Entry", "Square",
    "Square Root", "Pi", "Circumference", "Area of Circle",
    "Volume of Cylinder", "Plus", "Minus", "Multiply", "Divide", "Equals",
    "Decimal Point",
] + [str(d) for d in range(10)]


def find_app():
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            if app is not None and app.name == APP_NAME:
                return app
        time.sleep(0.25)
    return None


def walk(node, depth=0, out=None):
    if out is None:
        out = []
    if node is None or depth > 30:
        return out
    try:
        role = node.getRoleName()
        name = node.name
        description = node.description
        count = node.childCount
    except Exception:  # a node that went away while being read
        return out
    if name == "Readout":
        # The readout's value must be readable as text, not only described.
        try:
            description = (description, node.queryText().getText(0, -1))
        except Exception:
            description = (description, None)
    out.append((role, name, description, depth))
    for i in range(count):
        try:
            child = node.getChildAtIndex(i)
        except Exception:
            continue
        walk(child, depth + 1, out)
    return out


def main():
    app = find_app()
    if app is None:
        print(f"no application named {APP_NAME!r} on the accessibility bus")
        return 1
    failures = []
    nodes = []
    # The windows come up one after the other: wait until the last one is
    # in the tree.
    deadline = time.monotonic() + TIMEOUT
    while time.monotonic() < deadline:
        nodes = walk(app)
        names = {name for _, name, _, _ in nodes}
        if "Tape: Calculator" in names and "Kitchen wall" in names:
            break
        time.sleep(0.25)
    by_name = {}
    for role, name, description, _ in nodes:
        by_name.setdefault(name, []).append((role, description))

    for key in KEY_NAMES:
        entries = [e for e in by_name.get(key, []) if e[0] == "push button"]
        if not entries:
            failures.append(f"no push button named {key!r}")
        elif not entries[0][1]:
            failures.append(f"the button {key!r} has no description")
    readout = by_name.get("Readout", [])
    if not readout:
        failures.append("no control named 'Readout'")
    elif readout[0][1] != ("0.", "0."):
        failures.append(f"the readout tells {readout[0][1]!r} (description,"
                        " text), not ('0.', '0.')")
    if not any(role == "table" for role, _ in by_name.get("Tape: Calculator", [])):
        failures.append("no table named 'Tape: Calculator'")
    tape = by_name.get("Tape", [])
    if not any(role in ("window", "frame", "dialog") for role, _ in tape):
        failures.append(f"the tape is no window: {tape!r}")
    memory = by_name.get("Kitchen wall", [])
    if not any(description == 'Kitchen wall: 12\'- 6"' for _, description in memory):
        failures.append(f"the memory is not announced with its value: {memory!r}")
    # No key is announced by its picture.
    for bad in ("\u2190", "\u2423", '"', "\u00f7", "\u00d7", "\u2212", "\u221a"):
        if any(role == "push button" for role, _ in by_name.get(bad, [])):
            failures.append(f"a button is named {bad!r}")

    for failure in failures:
        print("FAIL:", failure)
    if failures:
        print("the tree:")
        for role, name, description, depth in nodes:
            print("  " * depth + f"{role}: {name!r} {description!r}")
        return 1
    print(f"ok: {len(nodes)} accessible objects, every name in words")
    return 0


if __name__ == "__main__":
    sys.exit(main())

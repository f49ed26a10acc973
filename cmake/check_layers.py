#!/usr/bin/env python3
"""Holds the includes of src/ to the table of rooms in docs/architecture.md: check_layers.py TOP"""
import dataclasses
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
STANDARD = re.compile(r"[a-z0-9_]+$")
LIBRARIES = {
    "Qt": re.compile(r"(Qt[A-Za-z0-9]+/)?(Q[A-Za-z0-9]+|q[a-z0-9_]+\.h)$"),
    "Lua": re.compile(r"(lua|lauxlib|lualib|luaconf)\.(h|hpp)$"),
    "chmlib": re.compile(r"chm_lib\.h$"),
    "libwmf": re.compile(r"libwmf/.+\.h$"),
}


@dataclasses.dataclass(frozen=True)
class Room:
    name: str
    headers: frozenset
    sources: frozenset
    libraries: frozenset


def names(cell, above):
    """The names that one cell of the table lists."""
    if cell == "all above":
        return frozenset(above)
    return frozenset(part.strip(" `") for part in cell.split(",") if part.strip())


def read_rooms(page):
    """The rooms of the first table after the mark <!-- rooms -->, by name."""
    rooms = {}
    after = page.split("<!-- rooms -->", 1)[1].strip().splitlines()
    for line in after[2:]:
        if not line.startswith("|"):
            break
        name, headers, sources, libraries = [cell.strip() for cell in line.split("|")[1:5]]
        headers = names(headers, rooms)
        room = Room(name.strip("`"), headers, headers | names(sources, rooms), names(libraries, ()))
        rooms[room.name] = room
    return rooms


def room_of(path, rooms):
    """The name of the innermost room that a path below src/ lies in, or None."""
    inside = [name for name in rooms if path.startswith(name + "/")]
    return max(inside, key=len, default=None)


def fault_of(include, quoted, header, room, rooms):
    """What is wrong with one include of a file in a room, or None."""
    if not quoted:
        allowed = STANDARD.match(include) or any(LIBRARIES[name].match(include) for name in room.libraries)
        return None if allowed else f"<{include}> is not for {room.name}"
    if room.name == "desktop" and include.startswith("ui_"):
        return None
    if include.endswith(".moc") and "Qt" in room.libraries:
        return None
    used = room_of(include, rooms)
    if used is None:
        return f'"{include}" does not begin with a room'
    if used == room.name or used in (room.headers if header else room.sources):
        return None
    return f"{room.name} may not use {used} {'in a header' if header else 'at all'}"


def check_file(path, source, rooms):
    """The faults of one file, as (line number, text)."""
    room_name = room_of(path, rooms)
    if room_name is None:
        yield 1, "this folder is no room of docs/architecture.md"
        return
    for number, line in enumerate(source.splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            fault = fault_of(match[2], match[1] == '"', path.endswith(".h"), rooms[room_name], rooms)
            if fault:
                yield number, fault


def main(arguments):
    top = pathlib.Path(arguments[0])
    rooms = read_rooms((top / "docs/architecture.md").read_text(encoding="utf-8"))
    faults = 0
    for path in sorted((top / "src").rglob("*")):
        if path.suffix in (".cpp", ".h"):
            below = path.relative_to(top / "src").as_posix()
            for number, fault in check_file(below, path.read_text(encoding="utf-8"), rooms):
                print(f"src/{below}:{number}: {fault}")
                faults += 1
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

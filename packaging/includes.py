#!/usr/bin/env python3
"""Holds every #include between the program's own files against the rooms' link lists.

    includes.py DIRECTORY

DIRECTORY is the one with the rooms, `src`. A file may include what lies in its own room and in the rooms that this
one links, directly or through others; of a room with a face (FACE in its CMakeLists.txt) only the headers of the
face. What breaks this is printed, one a line, and the exit code is 1. All rooms share one include directory, so the
compiler can't tell.
"""

import functools
import os
import pathlib
import re
import sys

PREFIX = "quelar_"  # what a room's target is called with, before its name
CALL = re.compile(r"^\s*(quelar_room|quelar_upper_room|add_executable|target_link_libraries)\s*\(([^()]*)\)", re.M)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>).*', re.M)
KEYWORDS = ("SOURCES", "LINKS", "FACE", "PUBLIC", "PRIVATE", "INTERFACE")
FILES = {".cpp", ".h"}


class Room:
    def __init__(self, name, directory):
        self.name, self.directory = name, directory
        self.sources, self.links, self.face = [], [], []


def arguments(words, first):
    """The arguments of a call by the keyword before them; `first` stands for the keyword of those without one."""
    lists, keyword = {}, first
    for word in words:
        if word in KEYWORDS:
            keyword = word
        else:
            lists.setdefault(keyword, []).append(word)
    return lists


def rooms_of(top):
    rooms = {}
    for listing in sorted(top.rglob("CMakeLists.txt")):
        text = re.sub(r"#.*", "", listing.read_text(encoding="utf-8"))
        for call, words in CALL.findall(text):
            name, *words = words.split()
            if name.startswith("$"):
                continue  # the function that makes rooms
            if call == "target_link_libraries":
                lists = arguments(words, "PUBLIC")
                if name in rooms:
                    rooms[name].links += lists.get("PUBLIC", []) + lists.get("PRIVATE", [])
                continue
            if call != "add_executable":
                name = PREFIX + name
            lists = arguments(words, "SOURCES")
            room = rooms[name] = Room(name, listing.parent)
            room.sources = [listing.parent / source for source in lists.get("SOURCES", [])]
            room.links = list(lists.get("LINKS", []))
            room.face = [listing.parent / header for header in lists.get("FACE", [])]
    return rooms


def linked_by(room, rooms):
    """The rooms that `room` links, directly or through others."""
    found, ahead = set(), list(room.links)
    while ahead:
        name = ahead.pop()
        if name in rooms and name not in found:
            found.add(name)
            ahead += rooms[name].links
    return found


def room_of(path, rooms):
    """A room is all that lies in its directory; where several share one, each is its sources and their headers."""
    for directory in path.parents:
        here = [room for room in rooms.values() if room.directory == directory]
        if len(here) == 1:
            return here[0]
        if here:
            stem = path.with_suffix("")
            return next((room for room in here if stem in [source.with_suffix("") for source in room.sources]), None)
    return None


@functools.cache
def own_file(directory, name, top):
    """The file below `top` that `name` is, seen from a directory, if it is one."""
    path = os.path.normpath(os.path.join(directory, name))
    return pathlib.Path(path) if path.startswith(str(top) + os.sep) and os.path.isfile(path) else None


def includes_of(path, top):
    """The includes of files below `top`: the number of the line, the line, the file."""
    text = path.read_text(encoding="utf-8")
    for match in INCLUDE.finditer(text):
        beside, anywhere = match.groups()
        target = (beside and own_file(path.parent, beside, top)) or own_file(top, beside or anywhere, top)
        if target:
            yield text.count("\n", 0, match.start()) + 1, match.group().strip(), target


def called(room):
    return room.name.removeprefix(PREFIX)


def broken_rule(own, other, target, reach):
    if own is other:
        return None
    if other.name not in reach[own.name]:
        return f"the room {called(own)} does not link the room {called(other)}"
    if other.face and target not in other.face:
        face = ", ".join(header.name for header in other.face)
        return f"the room {called(other)} is used by its face alone: {face}"
    return None


def faults_in(top, rooms):
    reach = {room.name: linked_by(room, rooms) for room in rooms.values()}
    for room in rooms.values():
        if room.name in reach[room.name]:
            yield f"{room.directory / 'CMakeLists.txt'}: the room {called(room)} links itself through others"
        for header in room.face:
            if not header.is_file():
                yield f"{room.directory / 'CMakeLists.txt'}: the face of {called(room)} has no file {header.name}"
    files = sorted(file for file in top.rglob("*") if file.suffix in FILES)
    places = {file: room_of(file, rooms) for file in files}
    for path in files:
        if not places[path]:
            yield f"{path}: it belongs to no room"
            continue
        for number, line, target in includes_of(path, top):
            rule = places.get(target) and broken_rule(places[path], places[target], target, reach)
            if rule:
                yield f"{path}:{number}: {line}: {rule}"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    given = pathlib.Path(sys.argv[1])
    top = given.resolve()
    rooms = rooms_of(top)
    if not rooms:
        sys.exit(f"{given} holds no rooms")
    faults = list(faults_in(top, rooms))
    for fault in faults:
        print(fault.replace(str(top), str(given), 1))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Writes seed inputs for the fuzz programs: make_seeds.py DIRECTORY

Makes a directory for each program below DIRECTORY. The images are put
together from the description of the settings format alone.
"""
import pathlib
import struct
import sys

NUMBER, BOOL, STRING, ARRAY, UNKNOWN = 0, 1, 2, 3, 7


def text(value):
    data = value if isinstance(value, bytes) else value.encode()
    return struct.pack(">H", len(data)) + data


def scalar(kind, value):
    if kind == NUMBER:
        return struct.pack(">d", value)
    if kind == BOOL:
        return bytes([value])
    return text(value) if kind == STRING else b""


def entry(key, kind, value=None):
    if kind != ARRAY:
        return text(key) + bytes([kind]) + scalar(kind, value) + b"\0"
    elements = b"".join(
        text(name) + bytes([k]) + scalar(k, v) for name, k, v in value)
    return text(key) + b"\3" + elements + b"\0\0\x09\0"


def image(*entries, name="settings", version=4, long_header=None, length=None):
    body = b"TCSO" + struct.pack(">H", version)
    if version == 4:
        body += bytes(4)
    body += text(name) + bytes(4) + b"".join(entries)
    length = len(body) if length is None else length
    if long_header or (long_header is None and length >= 63):
        return struct.pack(">HI", 0x00BF, length) + body
    return struct.pack(">H", 0x0080 | length) + body


def sites(*names):
    return entry("domains", ARRAY, [(name, BOOL, 1) for name in names])


LIMIT = entry("defaultklimit", NUMBER, 100.0)
IMAGES = {
    "empty": image(),
    "master": image(entry("autoUpdateDisabled", BOOL, 0),
                    entry("trustedPaths", ARRAY, []), LIMIT),
    "every_type": image(entry("n", NUMBER, -2.5), entry("b", BOOL, 7),
                        entry("s", STRING, "x"),
                        entry("a", ARRAY, [("n", NUMBER, 1.0), ("b", BOOL, 1),
                                           ("s", STRING, "y")])),
    "version_2": image(LIMIT, version=2),
    "version_3": image(LIMIT, version=3),
    "version_5": image(LIMIT, version=5),
    "long_header_of_short_body": image(long_header=True),
    "length_too_large": image(LIMIT, length=4000),
    "length_too_small": image(LIMIT, length=1),
    "unknown_type": image(entry("u", UNKNOWN), LIMIT),
    "same_key_twice": image(entry("k", BOOL, 1), entry("k", STRING, "2")),
    "same_bucket": image(entry("ab", BOOL, 1), entry("ba", BOOL, 0)),
    "empty_key": image(entry("", BOOL, 1)),
    "zero_in_key": image(entry(b"a\0b", BOOL, 1)),
    "high_bytes": image(entry(b"\xc3\xa9\xff", STRING, b"\x80\xff")),
    "nested_array": image(text("a") + b"\3" + text("n") + b"\3" + text("x") +
                          b"\1\1" + b"\0\0\x09\0"),
    "unknown_element": image(text("a") + b"\3" + text("u") + b"\7" +
                             b"\0\0\x09\0"),
    "array_without_end": image(text("a") + b"\3" + text("x") + b"\1\1"),
    "no_last_terminator": image(LIMIT)[:-1],
    "wrong_terminator": image(LIMIT)[:-1] + b"\1",
    "many_elements": image(entry("a", ARRAY, [("e", NUMBER, 1.0)] * 300)),
    "long_text": image(entry("s", STRING, "x" * 5000)),
    "text_beyond_end": image(LIMIT) + b"\xff\xff",
}

OUTSIDE = "../../../../../../precious"
MASTER, SITE, DATA, PIPE, DIRECTORY, LINK, LINKED_FILE, ACTION = range(8)


def record(kind, site="", content=b""):
    name = site.encode()
    return (bytes([kind, len(name)]) + name +
            struct.pack("<H", len(content)) + content)


def action(number, site=""):
    return record(ACTION, site, bytes([number]))


SITE_IMAGE = image(entry("klimit", NUMBER, 10.0), name="a/settings")
HOMES = {
    "first_start": b"",
    "all_actions": (record(MASTER, "", image(sites("a", "b", "missing"))) +
                    record(SITE, "a", SITE_IMAGE) +
                    record(SITE, "b", b"rejected") + record(DATA, "a", b"x") +
                    b"".join(action(n, "a") for n in range(8))),
    "types": (record(MASTER, "", image(
        entry("domains", BOOL, 1), entry("autoUpdateInterval", NUMBER, 1.0),
        entry("defaultalways", BOOL, 1), LIMIT)) + action(0, "a")),
    "odd_things": (record(MASTER, "", image(sites("p", "d", "l", "f"))) +
                   record(PIPE, "p") + record(DIRECTORY, "d", b"x") +
                   record(LINK, "l") + record(LINKED_FILE, "f") +
                   action(2, "d") + action(2, "l")),
    "wrong_types": record(MASTER, "", image(
        entry("domains", STRING, "x"), entry("defaultklimit", STRING, "y"),
        entry("defaultalways", NUMBER, 1.0),
        entry("trustedPaths", BOOL, 1))) + action(0, "a"),
    "names": record(MASTER, "", image(sites("", ".", "..", "a/b", "/", "a",
                                            "a", "___MASTER_DOMAIN"))) +
    b"".join(record(SITE, name, SITE_IMAGE) for name in ("", ".", "..", "a")),
    "leads_outside": record(MASTER, "", image(sites(OUTSIDE))) +
    record(SITE, "..", SITE_IMAGE) +
    b"".join(action(n, OUTSIDE) for n in (0, 1, 2, 4, 7)),
}

LANGUAGES = ["", "C", "de_DE.UTF-8", "zh_TW.UTF-8", "zh_CN", "pt_BR", "zh_HK_x",
             "de_DE.ISO_8859-1", "de.UTF-8", "de", "zh", "zh_MO@x", "_", "._"]

CONFIGS = {
    "plain": b"a = b\nc=d=e\n",
    "mark": b"\xef\xbb\xbfa=b\n",
    "wide_mark": b"\xff\xfea\0=\0b\0",
    "line_ends": b"a=1\rb=2\r\nc=3\n\rd=4",
    "ignored": b"=\n =x\ny= \nz\n#k=v\n",
    "long_line": b"k" * 1100 + b"=" + b"v" * 1100,
    "high_bytes": b"\xc3\xa9 = \xe9\x80\n",
    "zero": b"a\0b=c\n",
}

FORMAT = '{"format": "corvane-player-settings 1"'
DOCUMENTS = {
    "document_empty": FORMAT + "}",
    "document_values": FORMAT + """, "global": [
        {"key": "a", "value": true}, {"key": "b", "value": -1.5e-3},
        {"key": {"bytes": "ff61"}, "value": {"bytes": "FE"}},
        {"key": "n", "value": {"number": "NaN"}},
        {"key": "z", "value": {"number": "-0"}},
        {"key": "l", "value": {"array": [{"name": "e", "value": "x"}]}}],
        "trusted_locations": ["/a\\u0007"],
        "sites": [{"site": "a/b", "listed": false, "settings": []}]}""",
    "document_deep": "[" * 5000,
    "document_twice": FORMAT + ', "sites": [], "sites": []}',
    "document_names": FORMAT + ', "sites": [{"site": "..", "settings": []}]}',
}


def main():
    corpora = {
        "settings_reader": IMAGES,
        "settings_round_trip": IMAGES,
        "store": HOMES,
        "document": IMAGES | {name: text.encode()
                              for name, text in DOCUMENTS.items()},
        "language": {f"name_{i}": name.encode()
                     for i, name in enumerate(LANGUAGES)},
        "config_file": CONFIGS,
    }
    for program, inputs in corpora.items():
        directory = pathlib.Path(sys.argv[1]) / program
        directory.mkdir(parents=True, exist_ok=True)
        for name, data in inputs.items():
            (directory / name).write_bytes(data)


if __name__ == "__main__":
    main()

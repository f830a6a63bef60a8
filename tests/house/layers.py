"""Fails when a file includes what its layer must not know.

The inner layers stand on the standard library; each platform part knows base and its own library; workflow, masters
and reports do not know one another. The rules are the table below: for each folder, longest match first, the folders
of the project and the other headers that it may include.
"""

import pathlib
import re
import sys

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio
    cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map
    memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex
    scoped_allocator semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf
    string string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map
    unordered_set utility valarray variant vector version""".split()
)

# folder: (project folders it may know, pattern of other headers it may know)
RULES = {
    "base": (["base"], None),
    "core": (["core", "base"], None),
    "workflow": (["workflow", "core", "base"], None),
    "masters": (["masters", "core", "base"], None),
    "reports": (["reports", "core", "base"], None),
    "platform/embedded": (["platform/embedded", "base"], r"sqlite3\.h|SQLiteCpp/.*|sys/(stat|vfs|statfs|types)\.h|unistd\.h|fcntl\.h"),
    "platform/odbc": (["platform/odbc", "base"], r"sql(ext|types|ucode)?\.h"),
    "platform/office": (["platform/office", "base"], r"xlsxwriter(/.*|\.h)|gsf/.*|sys/file\.h|unistd\.h"),
    "platform/desktop": (["platform/desktop", "core/startup", "base"], r"Q\w+(/\w+)?|windows\.h|X11/XKBlib\.h"),
    "tools/driver/window": (["tools/driver", "platform/desktop", "app", "core", "base"], r"Q\w+(/\w+)?"),
    "tools/driver/papers": (["tools/driver", "platform/office", "base"], r"freexl\.h|gsf/.*|pugixml\.hpp"),
    "tools/driver": (["tools", "platform/embedded", "app", "core", "base"], None),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def rule_for(path):
    folders = [f for f in RULES if str(path).startswith(f + "/")]
    return RULES[max(folders, key=len)] if folders else None


def allowed(rule, quote, header):
    known, other = rule
    if quote == '"':
        return any(header.startswith(folder + "/") for folder in known) or "/" not in header and header.endswith(".moc")
    return header in STANDARD or bool(other and re.fullmatch(other, header))


def offences(root):
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        relative = path.relative_to(root)
        rule = rule_for(relative)
        if rule is None:
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            found = INCLUDE.match(line)
            if found and not allowed(rule, *found.groups()):
                yield f"{relative}:{number}: includes {found.group(2)}, which its layer must not know"


def self_test():
    """The rules are seen failing, so that a rule that allows everything is noticed."""
    assert not allowed(RULES["base"], "<", "QString")
    assert not allowed(RULES["core"], "<", "sqlite3.h")
    assert not allowed(RULES["workflow"], '"', "masters/person.h")
    assert not allowed(RULES["platform/desktop"], '"', "workflow/enrollment.h")
    assert allowed(RULES["workflow"], '"', "core/entry/lists.h") and allowed(RULES["base"], "<", "string")


if __name__ == "__main__":
    self_test()
    found = list(offences(pathlib.Path(sys.argv[1])))
    print("\n".join(found) if found else "every include is within its layer")
    sys.exit(1 if found else 0)

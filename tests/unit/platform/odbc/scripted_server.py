"""Speaks a Transact-SQL server's side of the TDS protocol with its driver, as far as a client's test needs: it knows no SQL,
but answers some statements with what a server would send, and the others with success. So what is tried is the driver, and
how the client reads it: types, NULL, error numbers, several results, what is sent at the start of a session.

    select types      one row of every type that the schema has, and one of NULLs
    select sent       the user, the password and the statements that came before, a row each
    refuse NUMBER     the server's error of that number, with its text
    refuse late       a result of two rows, then an error
    vanish            two rows, then the connection is gone

Prints the port that it listens on. Numbers are little-endian, texts UTF-16, tokens as the protocol's description names them.
"""

import socketserver
import struct

ERRORS = {
    208: (16, "Invalid object name 'Chld'."),
    207: (16, "Invalid column name 'Nme'."),
    102: (15, "Incorrect syntax near 'selct'."),
    2627: (14, "Violation of PRIMARY KEY constraint 'PK_Child'. Cannot insert duplicate key in object 'dbo.Child'."),
    515: (16, "Cannot insert the value NULL into column 'No', table 'ZQR.dbo.Child'; column does not allow nulls."),
    245: (16, "Conversion failed when converting the varchar value '5.' to data type int."),
    241: (16, "Conversion failed when converting date and/or time from character string."),
    8152: (16, "String or binary data would be truncated."),
    2714: (16, "There is already an object named 'Temp61' in the database."),
    8134: (16, "Divide by zero error encountered."),
}
TERMINATED = 3621
COLLATION = bytes.fromhex("0904d00034")
INTN, NUMERICN, DATETIMN, VARCHAR, NVARCHAR = 0x26, 0x6C, 0x6F, 0xA7, 0xE7


def wide(text):
    return text.encode("utf-16-le")


def short_text(text):
    return bytes([len(text)]) + wide(text)


def message(token, number, severity, text):
    body = struct.pack("<iBBH", number, 1, severity, len(text)) + wide(text) + short_text("SERVER") + b"\0"
    body += struct.pack("<i", 1)
    return struct.pack("<BH", token, len(body)) + body


def error(number):
    severity, text = ERRORS[number]
    tokens = message(0xAA, number, severity, text)
    if severity == 14 or number in (515, 8152):
        tokens += message(0xAB, TERMINATED, 0, "The statement has been terminated.")
    return tokens


def done(status=0, count=0):
    return struct.pack("<BHHQ", 0xFD, status | (0x10 if count else 0), 0xC1, count)


COLUMN_TYPES = {
    "int": bytes([INTN, 4]),
    "numeric": bytes([NUMERICN, 17, 38, 0]),
    "datetime": bytes([DATETIMN, 8]),
    "varchar": bytes([VARCHAR]) + struct.pack("<H", 200) + COLLATION,
    "nvarchar": bytes([NVARCHAR]) + struct.pack("<H", 400) + COLLATION,
}


def columns(*described):
    tokens = struct.pack("<BH", 0x81, len(described))
    for name, kind in described:
        tokens += struct.pack("<IH", 0, 9) + COLUMN_TYPES[kind] + short_text(name)
    return tokens


def field(kind, value):
    if kind in ("varchar", "nvarchar"):
        if value is None:
            return b"\xff\xff"
        data = wide(value) if kind == "nvarchar" else value.encode("cp1252")
        return struct.pack("<H", len(data)) + data
    if value is None:
        return b"\0"
    if kind == "int":
        return struct.pack("<Bi", 4, value)
    if kind == "numeric":
        return bytes([17, 1 if value >= 0 else 0]) + abs(value).to_bytes(16, "little")
    return struct.pack("<BiI", 8, *value)


def row(kinds, values):
    return b"\xd1" + b"".join(field(kind, value) for kind, value in zip(kinds, values))


def result(described, rows):
    kinds = [kind for _, kind in described]
    return columns(*described) + b"".join(row(kinds, values) for values in rows)


TYPES = [("No", "int"), ("Sum", "numeric"), ("Seen", "datetime"), ("Name", "varchar"), ("Wide", "nvarchar")]
# 2016-05-31 is the 42519th day after 1900-01-01; a second has 300 ticks.
ROW_OF_TYPES = [7, 12345678901234567, (42519, (13 * 3600 + 45 * 60 + 10) * 300), "Größe", "अनिता 𝄞"]


class Session(socketserver.BaseRequestHandler):
    def handle(self):
        self.sent = []
        try:
            while True:
                self.answer(*self.receive())
        except (EOFError, ConnectionError):
            pass

    def read(self, count):
        data = b""
        while len(data) < count:
            piece = self.request.recv(count - len(data))
            if not piece:
                raise EOFError
            data += piece
        return data

    def receive(self):
        """The type and the whole of one message, which may come in several packets."""
        data = b""
        while True:
            kind, status, length = struct.unpack(">BBH4x", self.read(8))
            data += self.read(length - 8)
            if status & 1:
                return kind, data

    def send(self, data):
        while True:
            piece, data = data[:4000], data[4000:]
            self.request.sendall(struct.pack(">BBHHBB", 4, 0 if data else 1, len(piece) + 8, 0, 1, 0) + piece)
            if not data:
                return

    def answer(self, kind, data):
        if kind == 0x12:  # before the login: version 16, no encryption
            self.send(bytes.fromhex("00000b0006" "0100110001" "ff" "100000000000" "02"))
        elif kind == 0x10:
            self.log_in(data)
        elif kind == 0x01:
            headers = struct.unpack_from("<I", data)[0]
            self.run(data[headers:].decode("utf-16-le"))
        else:
            self.send(done())

    def log_in(self, data):
        def text(place):
            offset, length = struct.unpack_from("<HH", data, place)
            return data[offset:offset + 2 * length]
        # The password's bytes come with their halves exchanged and some bits turned over.
        password = bytes(((byte ^ 0xA5) << 4 | (byte ^ 0xA5) >> 4) & 0xFF for byte in text(44))
        self.sent = [text(40).decode("utf-16-le"), password.decode("utf-16-le")]
        name = short_text("Microsoft SQL Server")
        body = b"\x01" + bytes.fromhex("74000004") + name + bytes([16, 0, 0, 0])
        self.send(struct.pack("<BH", 0xAD, len(body)) + body + done())

    def run(self, statement):
        if statement == "select types":
            self.send(result(TYPES, [ROW_OF_TYPES, [None] * len(TYPES)]) + done(count=2))
        elif statement == "select sent":
            self.send(result([("Text", "nvarchar")], [[text] for text in self.sent]) + done(count=len(self.sent)))
        elif statement == "refuse late":
            self.send(result([("No", "int")], [[1], [2]]) + done(1, 2) + error(8134) + done(2))
        elif statement == "vanish":
            data = result([("No", "int")], [[1], [2]])
            self.request.sendall(struct.pack(">BBHHBB", 4, 0, len(data) + 8, 0, 1, 0) + data)
            raise EOFError
        elif statement.startswith("refuse "):
            self.send(error(int(statement.split()[1])) + done(2))
        else:
            self.sent.append(statement)
            self.send(done(count=3 if statement.startswith("update") else 0))


class Server(socketserver.ThreadingTCPServer):
    daemon_threads = True


if __name__ == "__main__":
    with Server(("127.0.0.1", 0), Session) as server:
        print(server.server_address[1], flush=True)
        server.serve_forever()

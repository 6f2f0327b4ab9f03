"""A very small X11 client: enough to find a window by its title and to ask it to close.

Nothing but the standard library, so that taking a picture of the program needs no package beyond
the virtual screen itself.
"""

import socket
import struct

_WINDOW_ATTRIBUTES = 3
_QUERY_TREE = 15
_INTERN_ATOM = 16
_GET_PROPERTY = 20
_SEND_EVENT = 25

_REPLY = 1
_ERROR = 0
_CLIENT_MESSAGE = 33
_VIEWABLE = 2


class Display:
    """A connection to a local X server that asks for no credentials."""

    def __init__(self, number):
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(10)
        self._socket.connect(f"/tmp/.X11-unix/X{number}")
        self._socket.sendall(struct.pack("<BxHHHHxx", ord("l"), 11, 0, 0, 0))
        accepted, _, _, words = struct.unpack("<BxHHH", self._receive(8))
        setup = self._receive(words * 4)
        if accepted != 1:
            raise ConnectionError(f"X server :{number} refused the connection")
        vendor_length, _, _, formats = struct.unpack_from("<HHBB", setup, 16)
        screens = 32 + (vendor_length + 3) // 4 * 4 + formats * 8
        (self.root,) = struct.unpack_from("<I", setup, screens)
        (self.id_base,) = struct.unpack_from("<I", setup, 4)
        self._atoms = {}

    def close(self):
        self._socket.close()

    def windows(self):
        """The visible windows of programs, lowest first, as (id, title)."""
        reply = self._ask(_QUERY_TREE, struct.pack("<I", self.root))
        (count,) = struct.unpack_from("<H", reply, 16)
        found = []
        for window in struct.unpack_from(f"<{count}I", reply, 32):
            attributes = self._ask(_WINDOW_ATTRIBUTES, struct.pack("<I", window))
            if attributes and attributes[26] == _VIEWABLE:
                found.append((window, self._title(window)))
        return found

    def ask_to_close(self, window):
        """Does what a window manager does when its close button is pressed."""
        protocols, delete = self._atom("WM_PROTOCOLS"), self._atom("WM_DELETE_WINDOW")
        event = struct.pack("<BBHIIIIIII", _CLIENT_MESSAGE, 32, 0, window, protocols, delete,
                            0, 0, 0, 0)
        self._send(_SEND_EVENT, struct.pack("<II", window, 0) + event)
        self._atoms.pop("round trip", None)
        self._atom("round trip")  # makes sure that the event has been taken

    def _title(self, window):
        for name in ("_NET_WM_NAME", "WM_NAME"):
            body = struct.pack("<IIIII", window, self._atom(name), 0, 0, 1024)
            reply = self._ask(_GET_PROPERTY, body)
            if reply and reply[1] == 8:
                (length,) = struct.unpack_from("<I", reply, 16)
                return reply[32:32 + length].decode("utf-8", "replace")
        return ""

    def _atom(self, name):
        if name not in self._atoms:
            text = name.encode()
            padded = text + b"\0" * (-len(text) % 4)
            reply = self._ask(_INTERN_ATOM, struct.pack("<HH", len(text), 0) + padded)
            (self._atoms[name],) = struct.unpack_from("<I", reply, 8)
        return self._atoms[name]

    def _ask(self, opcode, body):
        """The reply, or nothing when the server answers with an error: windows come and go."""
        self._send(opcode, body)
        while True:
            head = self._receive(32)
            if head[0] == _ERROR:
                return None
            if head[0] == _REPLY:
                (words,) = struct.unpack_from("<I", head, 4)
                return head + self._receive(words * 4)

    def _send(self, opcode, body):
        self._socket.sendall(struct.pack("<BBH", opcode, 0, 1 + len(body) // 4) + body)

    def _receive(self, count):
        data = b""
        while len(data) < count:
            piece = self._socket.recv(count - len(data))
            if not piece:
                raise ConnectionError("the X server has closed the connection")
            data += piece
        return data
